// A small square to choose by: a tool, whose picture lets the current colour through, or a colour.
#pragma once

#include <QRadioButton>

class PaintButton : public QRadioButton {
    Q_OBJECT
public:
    /// `picture` names what lies over the colour, empty for a bare one.
    PaintButton(const QString& name, const QString& picture, QRect place, QWidget* parent);

    void setColour(QRgb colour);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& at) const override;

private:
    QString drawing;
    QRgb ground = 0xFFFFFFFF;
};
