#include "controls/chartVoice.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace {

class MarkInterface : public QAccessibleInterface {
public:
    MarkInterface(ChartVoice& chartVoice, int number)
        : view(&chartVoice.view)
        , voice(chartVoice)
        , mark(number)
    {
    }

    bool isValid() const override { return value() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view ? view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && value() ? value()->words : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override
    {
        if (!value())
            return {};
        const QRect place = value()->place().toAlignedRect();
        return {view->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.invisible = !view || !view->isVisible();
        state.focusable = state.selectable = state.readOnly = true;
        state.selected = state.focused = view && view->hasFocus() && voice.chosen == mark;
        return state;
    }

private:
    /// Null when the chart or its value is gone.
    const ChartMark* value() const
    {
        return view && std::size_t(mark) < voice.layout.marks.size() ? &voice.layout.marks[std::size_t(mark)]
                                                                     : nullptr;
    }

    QPointer<QWidget> view; // the voice lives as long
    ChartVoice& voice;
    int mark;
};

class ChartInterface : public QAccessibleWidget {
public:
    explicit ChartInterface(ChartVoice& chartVoice)
        : QAccessibleWidget(&chartVoice.view, QAccessible::List)
        , voice(chartVoice)
    {
    }

    int childCount() const override { return int(voice.layout.marks.size()); }
    QAccessibleInterface* child(int index) const override { return voice.markInterface(index); }
    int indexOfChild(const QAccessibleInterface* mark) const override { return voice.indexOf(mark); }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        return voice.markInterface(voice.layout.markAt(widget()->mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface* focusChild() const override
    {
        return widget()->hasFocus() ? voice.markInterface(voice.chosen) : nullptr;
    }

private:
    ChartVoice& voice;
};

QHash<QObject*, ChartVoice*> voices; // of the charts there are

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    ChartVoice* voice = voices.value(object);
    return voice ? new ChartInterface(*voice) : nullptr;
}

void tell(QAccessibleInterface* mark, QAccessible::Event news)
{
    QAccessibleEvent event(mark, news);
    QAccessible::updateAccessibility(&event);
}

} // namespace

ChartVoice::ChartVoice(QWidget& chartView, const ChartLayout& laidOut, const int& chosenMark)
    : view(chartView)
    , layout(laidOut)
    , chosen(chosenMark)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
    voices.insert(&chartView, this);
}

ChartVoice::~ChartVoice()
{
    voices.remove(&view);
    for (const QAccessible::Id id : ids) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

void ChartVoice::forgetMarks()
{
    for (const QAccessible::Id id : ids) {
        if (id == 0)
            continue;
        if (QAccessible::isActive())
            tell(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
        QAccessible::deleteAccessibleInterface(id);
    }
    ids.clear();
}

void ChartVoice::tellMarks()
{
    for (int mark = 0; QAccessible::isActive() && mark < int(layout.marks.size()); ++mark)
        tell(markInterface(mark), QAccessible::ObjectCreated);
}

void ChartVoice::tellFocus(int mark)
{
    if (QAccessible::isActive() && view.hasFocus())
        tell(markInterface(mark), QAccessible::Focus); // makes a screen reader say it
}

QAccessibleInterface* ChartVoice::markInterface(int mark)
{
    if (mark < 0 || std::size_t(mark) >= layout.marks.size())
        return nullptr;
    ids.resize(std::max(ids.size(), layout.marks.size()));
    QAccessible::Id& id = ids[std::size_t(mark)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new MarkInterface(*this, mark));
    return QAccessible::accessibleInterface(id);
}

int ChartVoice::indexOf(const QAccessibleInterface* mark) const
{
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (ids[i] != 0 && QAccessible::accessibleInterface(ids[i]) == mark)
            return int(i);
    }
    return -1;
}
