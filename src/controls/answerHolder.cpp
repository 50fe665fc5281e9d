#include "controls/answerHolder.h"

#include "platform/errors.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int frame = 2;
constexpr int gap = 1; // between a box and its list

QPushButton* answerLine(int number, int height)
{
    auto* line = new QPushButton;
    line->setObjectName(u"possAnswer%1"_s.arg(number));
    line->setFlat(true);
    line->setAutoDefault(false);
    line->setFixedHeight(height);
    return line;
}

} // namespace

AnswerHolder::AnswerHolder(QWidget* parent, int lineHeight, int linesInView)
    : QFrame(parent)
{
    setObjectName(u"AnswerHolder"_s);
    setAccessibleName(u"Answers"_s);
    auto* column = new QVBoxLayout;
    column->setContentsMargins({});
    column->setSpacing(0);
    for (int number = 1; number <= lines; ++number) {
        auto* line = answerLine(number, lineHeight);
        line->installEventFilter(this);
        connect(line, &QPushButton::clicked, this, [this, number] {
            guarded([&] {
                hide();
                picked(answers.value(number - 1));
            });
        });
        column->addWidget(line);
        possAnswer.append(line);
    }
    auto* content = new QWidget;
    content->setLayout(column);
    auto* Scroller1 = new QScrollArea;
    Scroller1->setObjectName(u"Scroller1"_s);
    Scroller1->setFrameShape(QFrame::NoFrame);
    Scroller1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Scroller1->setWidgetResizable(true);
    Scroller1->setFocusPolicy(Qt::NoFocus);
    Scroller1->setWidget(content);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(frame, frame, frame, frame);
    around->addWidget(Scroller1);
    resize(width(), linesInView * lineHeight + 2 * frame);
    hide();
}

void AnswerHolder::setAnswers(const QStringList& texts)
{
    answers = texts;
    for (int i = 0; i < lines; ++i) {
        const QString answer = answers.value(i);
        possAnswer[i]->setText(QString(answer).replace(u'&', "&&"_L1));
        possAnswer[i]->setAccessibleName(answer.isEmpty() ? u"no answer"_s : answer);
    }
}

void AnswerHolder::toggle(QPushButton& button, const Question& question)
{
    if (isVisible() && owner == &button) {
        hide();
        return;
    }
    owner = &button;
    picked = question.picked;
    setAnswers(question.answers);
    lieBeside(question.box);
    raise();
    show();
    const auto present = question.present.isEmpty() ? -1 : answers.indexOf(question.present);
    focusLine(possAnswer[std::max<qsizetype>(present, 0)]);
}

void AnswerHolder::lieBeside(const QRect& box)
{
    resize(box.width(), height());
    const int above = box.top() - height();
    const int below = box.bottom() + 1 + gap;
    const bool fits = box.bottom() + 1 + height() <= parentWidget()->height();
    const bool moreRoomBelow = parentWidget()->height() - box.bottom() > box.top();
    move(box.left(), fits || moreRoomBelow ? below : std::max(0, above));
}

void AnswerHolder::putAway()
{
    owner.clear();
    hide();
}

void AnswerHolder::hideEvent(QHideEvent*)
{
    if (owner && owner->isVisible())
        owner->setFocus();
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

/// Highlights that line, white on navy; all others are black on white.
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
    focusLine(possAnswer[to]);
}

void AnswerHolder::focusLine(QPushButton* line)
{
    line->setFocus();
    light(line); // in a window that isn't active no focus event comes
    findChild<QScrollArea*>()->ensureWidgetVisible(line, 0, 0);
}
