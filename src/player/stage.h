// The recorded screen of a lesson as large as the window allows, with the lesson's pointer on it.
#pragma once

#include "player/playback.h"

#include <QPixmap>
#include <QWidget>

class Stage : public QWidget {
    Q_OBJECT
public:
    Stage();

    void showScreen(const QImage& screen);
    void showPointer(const std::optional<PointerView>& pointer);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRectF pictureArea() const;
    QPointF onStage(QPointF place) const;
    QRect marksArea() const;
    void scaleScreen();

    QImage source;
    QPixmap scaled;
    std::optional<PointerView> shown;
};
