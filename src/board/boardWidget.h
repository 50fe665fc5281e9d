// The board: one widget that shows the cards, bin and captions and handles mouse and touch.
//
// It holds no database state: it paints the session's data, and `hand` changes that data. Cards that fly or
// are dragged are painted once for each frame of the screen, however often they move. A touch acts like the
// left mouse button; a long press on a card plays its sound.
#pragma once

#include "board/boardPainter.h"
#include "board/boardVoice.h"
#include "board/hand.h"
#include "core/session.h"
#include "platform/picture.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <bitset>

class QHelpEvent;

class BoardWidget : public QWidget, private QAccessible::ActivationObserver {
    Q_OBJECT
    Q_PROPERTY(QColor paper MEMBER paper)
    Q_PROPERTY(QColor leftTint MEMBER leftTint)
    Q_PROPERTY(QColor rightTint MEMBER rightTint)
public:
    explicit BoardWidget(QWidget* parent = nullptr);
    ~BoardWidget() override;

    void repaintBoard();
    void repaintCard(int card);
    /// The size of a caption in the board's font, in pixels.
    void measureLabel(const QString& text, double& width, double& height) const;

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
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    void paintWhatMoved();
    void repaintMoved(QRect& before, const QRect& now);
    void showPointer(QPointF point);
    void showTip(const QHelpEvent& help);
    void showTip(int card, QPoint point);
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

    // What was painted where, so that the old place is repainted after a move.
    std::array<QRect, lastCard + 1> shownCard;
    QRect shownFrame;

    // Cards that have moved since, to be painted when the screen shows its next picture.
    std::bitset<lastCard + 1> moved;
    QElapsedTimer sinceStart;
    qint64 nextPicture = 0; // nanoseconds since then
    QTimer pictureDue;
};
