// The board for assistive technology: a list of its cards, each with its label, its place and what can be
// done with it, and after them the bin and the captions. It is the way to the cards without a mouse.
#pragma once

#include "core/session.h"

#include <QAccessible>

#include <array>
#include <functional>

class QWidget;

class BoardVoice {
public:
    explicit BoardVoice(QWidget& boardWidget);
    ~BoardVoice();
    BoardVoice(const BoardVoice&) = delete;
    BoardVoice& operator=(const BoardVoice&) = delete;

    /// Tells assistive technology what has come, gone, been renamed or selected since the last time.
    void follow();
    /// The same for one card only: quick enough for every step of a flight.
    void follow(int card);

    /// How news of an item is told; to assistive technology, when there is any.
    std::function<void(int item, QAccessible::Event news)> tell;

    // An item is something on the board that can be told: a card by its number, the bin, a caption.
    int shownItems() const;
    QAccessibleInterface* shownItem(int index);
    int indexOf(const QAccessibleInterface* item) const;
    QAccessibleInterface* itemAt(QPoint point);
    QAccessibleInterface* selectedItem();

private:
    static constexpr int captions = 15; // of 13 groups, and the two titles of a find
    static constexpr int items = lastCard + 1 + 1 + captions;

    QAccessibleInterface* interfaceOf(int item);
    void followItem(int item);
    void followSelection();
    void forget(int item);

    struct Told {
        QAccessible::Id id = 0; // 0 until somebody asks for the item
        bool shown = false;
        QString name;
    };

    QWidget& board;
    std::array<Told, items> told;
    int toldSelection = 0;
};
