#include "controls/answerButtons.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/picture.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr int frames = 8;
constexpr int frameTime = 100; // ms

/// The animation frames of Yes_pic and no_pic, loaded once.
const QIcon& framePicture(const QString& name, int number)
{
    static QHash<QString, QIcon> read;
    const QString key = name + QString::number(number);
    if (!read.contains(key))
        read.insert(key, QIcon(picturePath(key)));
    return read[key];
}

QPushButton* answerButton(const Answer& answer, const char* role)
{
    auto* button = named(new QPushButton(answer.text), answer.name);
    button->setProperty("role", QLatin1String(role));
    return button;
}

} // namespace

AnswerButtons::AnswerButtons(const Answer& okAnswer, const Answer& cancelAnswer)
    : ok(answerButton(okAnswer, "ok"))
    , cancel(answerButton(cancelAnswer, "cancel"))
    , Timer1(named(new QTimer(this), "Timer1"))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(ok);
    row->addWidget(cancel);
    showFrame(0);
    Timer1->setInterval(frameTime);
    connect(Timer1, &QTimer::timeout, this, [this] { showFrame((frame + 1) % frames); });
}

void AnswerButtons::showEvent(QShowEvent*) { Timer1->start(); }

void AnswerButtons::hideEvent(QHideEvent*) { Timer1->stop(); }

void AnswerButtons::showFrame(int number)
{
    frame = number;
    ok->setIcon(framePicture(u"yes"_s, frame));
    cancel->setIcon(framePicture(u"no"_s, frame));
}

AnswerDialog::AnswerDialog(AnswerButtons* buttons)
    : answers(buttons)
{
    // A minimised modal dialog would block the main window, and a maximised one would spread its parts too
    // far.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    answers->setParent(this);
    answers->ok->setDefault(true); // set here because a default button must belong to a dialog
}

void AnswerDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        showNormal(); // some window managers minimise it anyway, and no other window can be used
}

void AnswerDialog::reject() { answers->cancel->click(); }

void AnswerDialog::answer(const QString& word)
{
    session.dialogResult = word;
    hide();
}

void AnswerDialog::answerByButtons()
{
    onClick(answers->ok, [this] { answer(u"OK"_s); });
    onClick(answers->cancel, [this] { answer(u"Cancel"_s); });
}
