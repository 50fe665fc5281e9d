// A chart in a window: drawn, pointed at or touched, walked through with the arrow keys, and read out value
// by value.
#pragma once

#include "controls/chartVoice.h"
#include "platform/chartPainter.h"

#include <QWidget>

#include <functional>

class ChartView : public QWidget {
    Q_OBJECT
    // From the style sheet.
    Q_PROPERTY(QColor ink MEMBER ink)
    Q_PROPERTY(QColor paper MEMBER paper)
    Q_PROPERTY(QColor grid MEMBER grid)
    Q_PROPERTY(QColor curve MEMBER curve)
    Q_PROPERTY(QColor focusColour MEMBER focusColour)
    Q_PROPERTY(QString fills READ fillNames WRITE setFillNames) // of neighbours, with blanks between them
public:
    explicit ChartView(QWidget* parent = nullptr);

    void setChart(const Chart& chart);
    /// The chart in the size of the view, with `ratio` pixels to each of the view's.
    QImage picture(double ratio);
    /// What paints the chart as it is now, in the size of the view.
    std::function<void(QPainter&)> painting();

    const ChartLayout& layout() const { return laidOut; }
    /// The value that the arrow keys or a press have chosen, -1 for none.
    int chosenMark() const { return chosen; }
    void chooseMark(int mark);

    std::function<void()> pressed; // by mouse or finger

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void layOutAnew();
    void tellMarkAt(QPointF point);
    void paintChosen(QPainter& painter);
    ChartLook look() const;
    QString fillNames() const;
    void setFillNames(const QString& names);

    Chart shown;
    ChartLayout laidOut;
    ChartVoice voice;
    int chosen = -1;
    bool reachedByKey = false; // the focus came by Tab: it is shown
    QColor ink = Qt::black;
    QColor paper = Qt::white;
    QColor grid = Qt::lightGray;
    QColor curve = Qt::darkBlue;
    QColor focusColour = Qt::blue;
    std::array<QColor, chartColours> fillColours;
};
