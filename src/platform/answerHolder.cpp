#include "platform/answerHolder.h"

#include "platform/errors.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int linesInView = 6;

QPushButton* answerLine(int number, int height)
{
    auto* line = new QPushButton;
    line->setObjectName(QStringLiteral("possAnswer%1").arg(number));
    line->setFlat(true);
    line->setAutoDefault(false);
    line->setFixedHeight(height);
    return line;
}

} // namespace

AnswerHolder::AnswerHolder(QWidget* parent, int lineHeight)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("AnswerHolder"));
    setAccessibleName(QStringLiteral("Answers"));
    auto* column = new QVBoxLayout;
    column->setContentsMargins({});
    column->setSpacing(0);
    for (int number = 1; number <= lines; ++number) {
        auto* line = answerLine(number, lineHeight);
        line->installEventFilter(this);
        connect(line, &QPushButton::clicked, this, [this, number] {
            guarded([&] {
                hide();
                if (picked)
                    picked(answers.value(number - 1));
            });
        });
        column->addWidget(line);
        possAnswer.append(line);
    }
    auto* content = new QWidget;
    content->setLayout(column);
    auto* Scroller1 = new QScrollArea;
    Scroller1->setObjectName(QStringLiteral("Scroller1"));
    Scroller1->setFrameShape(QFrame::NoFrame);
    Scroller1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Scroller1->setWidgetResizable(true);
    Scroller1->setFocusPolicy(Qt::NoFocus);
    Scroller1->setWidget(content);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(2, 2, 2, 2);
    around->addWidget(Scroller1);
    resize(width(), linesInView * lineHeight + 4);
    hide();
}

void AnswerHolder::setAnswers(const QStringList& texts)
{
    answers = texts;
    for (int i = 0; i < lines; ++i) {
        const QString answer = answers.value(i);
        possAnswer[i]->setText(QString(answer).replace(QLatin1Char('&'), QLatin1String("&&")));
        possAnswer[i]->setAccessibleName(answer.isEmpty() ? QStringLiteral("no answer") : answer);
    }
}

void AnswerHolder::openAt(QPoint place)
{
    move(place);
    raise();
    show();
    possAnswer.first()->setFocus();
    light(possAnswer.first());
}

bool AnswerHolder::eventFilter(QObject* watched, QEvent* event)
{
    auto* line = static_cast<QPushButton*>(watched);
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn)
        light(line);
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        moveFocus(line, 1);
        return true;
    case Qt::Key_Up:
        moveFocus(line, -1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        line->click();
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

/// Paints that line white on navy and all others black on white.
void AnswerHolder::light(QPushButton* lit)
{
    for (QPushButton* line : possAnswer) {
        const bool now = line == lit;
        if (line->property("lit").toBool() == now)
            continue;
        line->setProperty("lit", now);
        line->style()->unpolish(line);
        line->style()->polish(line);
    }
}

void AnswerHolder::moveFocus(QPushButton* from, int by)
{
    const auto to = possAnswer.indexOf(from) + by;
    if (to < 0 || to >= possAnswer.size())
        return;
    possAnswer[to]->setFocus();
    findChild<QScrollArea*>()->ensureWidgetVisible(possAnswer[to], 0, 0);
}
