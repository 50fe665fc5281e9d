#include "controls/singleTab.h"

#include <QAccessibleWidget>
#include <QTabBar>

namespace {

constexpr const char* mark = "singleTab";

/// The bar and its tab in one.
class SingleTab : public QAccessibleWidget {
public:
    explicit SingleTab(QTabBar& tabBar)
        : QAccessibleWidget(&tabBar, QAccessible::PageTab, tabBar.tabText(0))
        , bar(tabBar)
    {
    }

    int childCount() const override { return 0; } // scroll buttons that are never needed
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = state.selected = true;
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            Q_EMIT bar.tabBarClicked(0);
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QTabBar& bar;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* bar = qobject_cast<QTabBar*>(object);
    return bar && bar->property(mark).toBool() ? new SingleTab(*bar) : nullptr;
}

} // namespace

void pressableSingleTab(QTabBar& bar)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
    bar.setProperty(mark, true);
}
