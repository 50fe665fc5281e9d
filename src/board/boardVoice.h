// The board for assistive technology: a list of the cards, each with its label, place and actions, followed
// by the bin and the captions. It makes the cards usable without a mouse.
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

    /// Notifies assistive technology of items that have appeared, disappeared, been renamed or selected since
    /// the last call.
    void follow();
    /// The same for one card only; fast enough for every step of a flight.
    void follow(int card);

    /// Sends the notification about an item: to assistive technology, unless a test replaces it.
    std::function<void(int item, QAccessible::Event news)> tell;

    // Items are numbered: the cards by their own number, then the bin, then the captions.
    int shownItems() const;
    QAccessibleInterface* shownItem(int index);
    int indexOf(const QAccessibleInterface* item) const;
    QAccessibleInterface* itemAt(QPoint point);
    QAccessibleInterface* selectedItem();

private:
    static constexpr int captions = 15; // 13 group captions and the two titles of a find
    static constexpr int items = lastCard + 1 + 1 + captions;

    QAccessibleInterface* interfaceOf(int item);
    void followItem(int item);
    void followSelection();
    void forget(int item);

    struct Told {
        QAccessible::Id id = 0; // 0 until the item is requested
        bool shown = false;
        QString name;
    };

    QWidget& board;
    std::array<Told, items> told;
    int toldSelection = 0;
};
