// The canvas on the screen: shows a painting with all that lies over it, and paints with mouse, finger or
// keys.
#pragma once

#include "paint/painting.h"

#include <QPixmap>
#include <QWidget>

class CanvasWidget : public QWidget {
    Q_OBJECT
public:
    explicit CanvasWidget(Painting& painting);

    /// The pointer of the tool in hand.
    void showCursor();
    /// A drag of the keys ends where it is.
    void liftKeys();

Q_SIGNALS:
    void painted();
    void fileDropped(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Act = void (*)(Painting& painting, const MouseAt& mouse);
    void act(Act routine, const MouseAt& mouse);
    MouseAt mouseAt(const QMouseEvent& event) const;
    MouseAt keysAt(Qt::KeyboardModifiers modifiers) const;
    void moveKeys(QPoint by, Qt::KeyboardModifiers modifiers);
    void pressKeys(Qt::KeyboardModifiers modifiers);
    void tellPlace();

    Painting& painting;
    QPoint keys = QRect(QPoint(), canvasSize).center(); // where the keys draw
    bool keysDown = false;
    bool keysShown = false; // not while the mouse is used
};
