// The pull-down list of ready answers beside a value: twelve lines in a scrolling panel, including empty
// ones.
#pragma once

#include <QFrame>
#include <QPointer>
#include <QStringList>

#include <functional>

class QPushButton;

class AnswerHolder : public QFrame {
    Q_OBJECT
public:
    static constexpr int lines = 12;

    /// `lineHeight` in pixels.
    AnswerHolder(QWidget* parent, int lineHeight, int linesInView);

    /// The twelve answers, items 0..11; missing ones are blank lines.
    void setAnswers(const QStringList& texts);

    /// A value for which the list is opened. `box` is its place in the parent's pixels.
    struct Question {
        QStringList answers;
        QString present; // the value now
        QRect box;
        std::function<void(const QString& answer)> picked;
    };

    /// Opens the list of `button` with the focus on the present value, or closes it when it is open already.
    /// It is as wide as the box and below it, or above it if there is more room. Choosing a line closes the
    /// list and calls `picked` with the answer. Closing it gives `button` the focus, except by putAway().
    void toggle(QPushButton& button, const Question& question);

    /// Closes the list without moving the focus.
    void putAway();

protected:
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void lieBeside(const QRect& box);
    void light(QPushButton* line);
    void moveFocus(QPushButton* from, int by);
    void focusLine(QPushButton* line);

    QList<QPushButton*> possAnswer; // 0..11 for answers 1..12
    QStringList answers;
    QPointer<QPushButton> owner; // the button whose list is open
    std::function<void(const QString& answer)> picked;
};
