// A sheet of paper that hangs from a roll, torn off below: the ground for results that pile up.
#pragma once

#include <QColor>
#include <QWidget>

class PaperRoll : public QWidget {
    Q_OBJECT
    // From the style sheet.
    Q_PROPERTY(QColor ink MEMBER ink)
    Q_PROPERTY(QColor paper MEMBER paper)
    Q_PROPERTY(QColor roller MEMBER roller)
public:
    /// Takes `content`, which covers the sheet.
    explicit PaperRoll(QWidget* content);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor ink = Qt::black;
    QColor paper = Qt::white;
    QColor roller = Qt::lightGray;
};
