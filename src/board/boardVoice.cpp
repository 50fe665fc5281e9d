#include "board/boardVoice.h"

#include "board/boardPainter.h"
#include "board/hand.h"
#include "board/mode.h"
#include "store/cardFiles.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QHash>
#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int binItem = lastCard + 1;
constexpr int firstCaption = binItem + 1;
constexpr int groupCaptions = 13;

const QString selectAction = u"select"_s;
const QString editAction = u"edit"_s;
const QString playAction = u"play"_s;
const QString deleteAction = u"delete"_s; // only while the bin is shown
const QString closeAction = u"close"_s;

bool isCard(int item) { return item >= 1 && item <= lastCard; }
bool isCaption(int item) { return item >= firstCaption; }

const BoardLabel& caption(int item)
{
    const int number = item - firstCaption;
    if (number < groupCaptions)
        return session.board.groupTitle[number];
    return number == groupCaptions ? session.board.searchTitle : session.board.otherTitle;
}

bool isShown(int item)
{
    if (boardIsCovered())
        return false;
    if (isCard(item))
        return session.box[item].visible;
    if (isCaption(item))
        return caption(item).visible;
    return item == binItem && session.board.BigBin.visible;
}

QString nameOf(int item)
{
    if (isCard(item)) {
        const QString& label = session.box[item].tooltip;
        return label.isEmpty() ? u"Card %1"_s.arg(item) : label;
    }
    return isCaption(item) ? caption(item).text : u"Bin"_s;
}

/// In board pixels.
QRect placeOf(int item)
{
    if (isCard(item))
        return wholePixels(session.box[item]);
    if (!isCaption(item))
        return wholePixels(session.board.BigBin);
    const BoardLabel& label = caption(item);
    return QRectF(label.left, label.top, label.width, label.height).toAlignedRect();
}

QAccessible::Role roleOf(int item)
{
    if (isCard(item))
        return QAccessible::ListItem;
    return isCaption(item) ? QAccessible::StaticText : QAccessible::Button;
}

bool isSelected(int item)
{
    return isCard(item) && item == session.selectedCard && session.board.SelectBox.visible && isShown(item);
}

QStringList actionsOf(int item)
{
    if (isCaption(item))
        return {};
    if (item == binItem)
        return {closeAction};
    QStringList actions{selectAction, editAction, playAction};
    if (session.board.BigBin.visible)
        actions.append(deleteAction);
    return actions;
}

void act(int item, const QString& action)
{
    const bool outOfReach = QGuiApplication::modalWindow() != nullptr; // as for a mouse
    if (outOfReach || !isShown(item) || !actionsOf(item).contains(action))
        return;
    if (action == closeAction)
        closeBin();
    else if (action == selectAction)
        selectCard(item);
    else if (action == editAction)
        openInEditor(item);
    else if (action == playAction)
        playCardSound(item);
    else if (action == deleteAction)
        dropOnBin(item);
}

class ItemInterface : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ItemInterface(QWidget& boardWidget, int itemNumber)
        : board(&boardWidget)
        , item(itemNumber)
    {
    }

    bool isValid() const override { return board && isShown(item); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return board ? board->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(board); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? nameOf(item) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override
    {
        const QRect place = placeOf(item);
        return board ? QRect(board->mapToGlobal(place.topLeft()), place.size()) : QRect();
    }
    QAccessible::Role role() const override { return roleOf(item); }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.invisible = !board || !board->isVisible();
        state.selectable = state.focusable = state.movable = isCard(item);
        state.selected = isSelected(item);
        state.focused = state.selected && board && board->hasFocus();
        state.readOnly = isCaption(item);
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return actionsOf(item); }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override
    {
        // From the event loop: an action may open a dialog, and the screen reader must not wait until that is
        // closed.
        QMetaObject::invokeMethod(
            board, [which = item, action] { guarded([&] { act(which, action); }); }, Qt::QueuedConnection);
    }

private:
    QPointer<QWidget> board;
    int item;
};

class BoardInterface : public QAccessibleWidget {
public:
    BoardInterface(QWidget& board, BoardVoice& boardVoice)
        : QAccessibleWidget(&board, QAccessible::List)
        , voice(boardVoice)
    {
    }

    int childCount() const override { return voice.shownItems(); }
    QAccessibleInterface* child(int index) const override { return voice.shownItem(index); }
    int indexOfChild(const QAccessibleInterface* item) const override { return voice.indexOf(item); }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        return voice.itemAt(widget()->mapFromGlobal(QPoint(x, y)));
    }
    QAccessibleInterface* focusChild() const override
    {
        return widget()->hasFocus() ? voice.selectedItem() : nullptr;
    }

private:
    BoardVoice& voice;
};

QHash<QObject*, BoardVoice*> voices; // by board

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    BoardVoice* voice = voices.value(object);
    return voice ? new BoardInterface(*static_cast<QWidget*>(object), *voice) : nullptr;
}

} // namespace

BoardVoice::BoardVoice(QWidget& boardWidget)
    : tell([this](int item, QAccessible::Event news) {
        if (!QAccessible::isActive())
            return;
        QAccessibleEvent event(interfaceOf(item), news);
        QAccessible::updateAccessibility(&event);
    })
    , board(boardWidget)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
    voices.insert(&boardWidget, this);
}

BoardVoice::~BoardVoice()
{
    voices.remove(&board);
    for (int item = 0; item < items; ++item)
        forget(item);
}

void BoardVoice::follow()
{
    for (int item = 1; item < items; ++item)
        followItem(item);
    followSelection();
}

void BoardVoice::follow(int card)
{
    followItem(card);
    followSelection();
}

void BoardVoice::followItem(int item)
{
    Told& last = told.at(item);
    const bool shown = isShown(item);
    if (shown == last.shown && (!shown || nameOf(item) == last.name))
        return;
    const bool appeared = shown && !last.shown;
    if (!shown) {
        tell(item, QAccessible::ObjectDestroyed);
        forget(item);
    }
    last.shown = shown;
    last.name = shown ? nameOf(item) : QString();
    if (shown)
        tell(item, appeared ? QAccessible::ObjectCreated : QAccessible::NameChanged);
}

void BoardVoice::followSelection()
{
    const int selection = isSelected(session.selectedCard) ? session.selectedCard : 0;
    if (selection == toldSelection)
        return;
    toldSelection = selection;
    if (selection == 0)
        return;
    tell(selection, QAccessible::Selection);
    if (board.hasFocus())
        tell(selection, QAccessible::Focus); // makes a screen reader read the card
}

void BoardVoice::forget(int item)
{
    Told& last = told.at(item);
    if (last.id != 0)
        QAccessible::deleteAccessibleInterface(last.id);
    last.id = 0;
}

QAccessibleInterface* BoardVoice::interfaceOf(int item)
{
    Told& last = told.at(item);
    if (last.id == 0)
        last.id = QAccessible::registerAccessibleInterface(new ItemInterface(board, item));
    return QAccessible::accessibleInterface(last.id);
}

int BoardVoice::shownItems() const
{
    int count = 0;
    for (int item = 1; item < items; ++item)
        count += isShown(item);
    return count;
}

QAccessibleInterface* BoardVoice::shownItem(int index)
{
    for (int item = 1; item < items; ++item) {
        if (isShown(item) && index-- == 0)
            return interfaceOf(item);
    }
    return nullptr;
}

int BoardVoice::indexOf(const QAccessibleInterface* wanted) const
{
    int index = 0;
    for (int item = 1; item < items; ++item) {
        if (!isShown(item))
            continue;
        const QAccessible::Id id = told.at(item).id;
        if (id != 0 && QAccessible::accessibleInterface(id) == wanted)
            return index;
        ++index;
    }
    return -1;
}

QAccessibleInterface* BoardVoice::itemAt(QPoint point)
{
    if (const int card = cardAt(point))
        return interfaceOf(card);
    for (int item = binItem; item < items; ++item) {
        if (isShown(item) && placeOf(item).contains(point))
            return interfaceOf(item);
    }
    return nullptr;
}

QAccessibleInterface* BoardVoice::selectedItem()
{
    return isSelected(session.selectedCard) ? interfaceOf(session.selectedCard) : nullptr;
}
