// The minimum to compare with: a coloured rectangle moves over a bare widget.
#pragma once

#include <QPainter>
#include <QWidget>

class BareWidget : public QWidget {
public:
    BareWidget() { setAttribute(Qt::WA_OpaquePaintEvent); }

    /// Moves the rectangle and repaints both places.
    void moveCard(QPoint place)
    {
        left = card;
        card.moveTo(place);
        update(left | card);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(left, Qt::lightGray);
        painter.fillRect(card, Qt::blue);
    }

private:
    QRect card{15, 40, 82, 62};
    QRect left;
};
