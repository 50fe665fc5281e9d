// The board: one widget that shows what lies on it and lets a child handle the cards and the bin.
//
// It holds no state of the database: it paints the session's and lets the hand change it. A finger does what
// the mouse's left button does; one that rests on a card has it play its sound.
#pragma once

#include "board/boardPainter.h"
#include "board/boardVoice.h"
#include "board/hand.h"
#include "core/session.h"
#include "platform/picture.h"

#include <QTimer>
#include <QWidget>

#include <array>

class QHelpEvent;

class BoardWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor paper MEMBER paper)
    Q_PROPERTY(QColor leftTint MEMBER leftTint)
    Q_PROPERTY(QColor rightTint MEMBER rightTint)
public:
    explicit BoardWidget(QWidget* parent = nullptr);

    /// Answers the screen's calls for the board from now on: redrawing it and measuring captions.
    void connectScreen();

    BoardVoice voice{*this};

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void repaintBoard();
    void repaintCard(int card);
    void repaintMoved(QRect& before, const QRect& now);
    void showPointer(QPointF point);
    void showTip(const QHelpEvent& help);
    BoardLook look() const;

    QColor paper = Qt::white;
    QColor leftTint = Qt::transparent;
    QColor rightTint = Qt::transparent;
    const QIcon binUp{picturePath(QStringLiteral("binUp"))};
    const QIcon binDown{picturePath(QStringLiteral("binDown"))};
    Hand hand;
    Hand::Pointer pointer = Hand::Pointer::arrow;
    QTimer fingerRests;
    QPointF fingerPressed;

    // What the screen shows, to be painted over when it moves.
    std::array<QRect, lastCard + 1> shownCard;
    QRect shownFrame;
};
