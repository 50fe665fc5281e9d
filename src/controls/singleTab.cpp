#include "controls/singleTab.h"

#include <QAccessibleWidget>
#include <QTabBar>

namespace {

/// A class of its own, known from its first moment: once asked for, an interface is kept.
class SingleTabBar : public QTabBar {};

/// The bar and its tab in one.
class TabInterface : public QAccessibleWidget {
public:
    explicit TabInterface(SingleTabBar& tabBar)
        : QAccessibleWidget(&tabBar, QAccessible::PageTab)
        , bar(tabBar)
    {
    }

    int childCount() const override { return 0; } // scroll buttons that are never needed
    /// What Qt says of the bar's tab is said of this.
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? const_cast<TabInterface*>(this) : nullptr;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? bar.tabText(0) : QAccessibleWidget::text(kind);
    }
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
    SingleTabBar& bar;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* bar = dynamic_cast<SingleTabBar*>(object);
    return bar ? new TabInterface(*bar) : nullptr;
}

} // namespace

SingleTab::SingleTab()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed);
    setTabBar(new SingleTabBar);
}
