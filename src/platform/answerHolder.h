// The pull-down list of ready answers beside a value: twelve lines in a scrolling panel, empty ones in place.
#pragma once

#include <QFrame>
#include <QStringList>

#include <functional>

class QPushButton;

class AnswerHolder : public QFrame {
    Q_OBJECT
public:
    static constexpr int lines = 12;

    /// `lineHeight` in pixels. Without a frame of its own height the panel shows six lines.
    AnswerHolder(QWidget* parent, int lineHeight);

    /// The twelve answers, items 0..11; missing ones are blank lines.
    void setAnswers(const QStringList& texts);

    /// Shows the panel at a place of the parent's and gives the first line the focus.
    void openAt(QPoint place);

    /// Called with the answer that was picked, after the panel was hidden.
    std::function<void(const QString& answer)> picked;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void light(QPushButton* line);
    void moveFocus(QPushButton* from, int by);

    QList<QPushButton*> possAnswer; // 0..11 for answers 1..12
    QStringList answers;
};
