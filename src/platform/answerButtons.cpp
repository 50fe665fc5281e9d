#include "platform/answerButtons.h"

#include "platform/dialogParts.h"
#include "platform/picture.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>

namespace {

constexpr int frames = 8;
constexpr int frameTime = 100; // ms

/// Yes_pic and no_pic: the frames of the two icons, read once.
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
    ok->setIcon(framePicture(QStringLiteral("yes"), frame));
    cancel->setIcon(framePicture(QStringLiteral("no"), frame));
}

AnswerDialog::AnswerDialog(AnswerButtons* buttons)
    : answers(buttons)
{
    // A minimised dialog leaves a dead main window; one as large as the screen tears its parts apart.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    answers->setParent(this);
    answers->ok->setDefault(true); // only now does the dialog learn which button Return presses
}

void AnswerDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        showNormal(); // some window managers put it aside all the same, and nothing else can be used
}

void AnswerDialog::reject() { answers->cancel->click(); }
