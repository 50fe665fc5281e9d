#include "tools/warnForm.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "tools/bin.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int leastWidth = 4275; // twips
constexpr int captionGap = 8;    // pixels
constexpr int captionMargin = 28;
constexpr int edge = 20;

void answerWith(QPushButton* button, const QString& word)
{
    onClick(button, [word] {
        session.dialogResult = word;
        form<warnForm>().hide();
    });
}

} // namespace

warnForm::warnForm()
    : AnswerDialog(new AnswerButtons({"YesBut", QStringLiteral("Yes")}, {"NoBut", QStringLiteral("No")}))
    , ActionPic(named(new QLabel, "ActionPic"))
    , DiBoxCaption(named(new QLabel(QStringLiteral("Delete this card?")), "subHeading"))
{
    setObjectName(QStringLiteral("warnForm"));
    setWindowTitle(QStringLiteral("Delete Card"));
    DiBoxCaption->setTextFormat(Qt::PlainText);
    answers->cancel->setDefault(true); // a stray Return spares the card

    auto* question = new QHBoxLayout;
    question->setSpacing(captionGap);
    question->addWidget(ActionPic);
    question->addWidget(DiBoxCaption, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(answers);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, captionMargin, edge);
    column->setSpacing(edge);
    column->addLayout(question);
    column->addLayout(buttons);

    answerWith(answers->ok, QStringLiteral("OK"));
    answerWith(answers->cancel, QStringLiteral("Cancel"));
}

void warnForm::askAbout(int card)
{
    const CardImage& image = session.box[card];
    ActionPic->setFixedSize(int(image.width), int(image.height));
    ActionPic->setPixmap(QPixmap::fromImage(image.picture));
    const QString question = QStringLiteral("Delete ") + session.cardValue[card][1] + QStringLiteral(" ?");
    const int room = desktop.screenSize().width() - 2 * ActionPic->width() - 2 * captionMargin;
    DiBoxCaption->ensurePolished();
    DiBoxCaption->setText(DiBoxCaption->fontMetrics().elidedText(question, Qt::ElideMiddle, room));
    DiBoxCaption->setAccessibleName(question);
    answers->cancel->setFocus();
    setMinimumWidth(int(leastWidth / session.twipsPerPixelX));
    layout()->invalidate(); // a caption that was never shown doesn't tell its layout of its growth
    layout()->activate();
    adjustSize();
}

void checkDropOnBin(int card)
{
    if (liesOnBin(card))
        confirmDelete(card);
}

void confirmDelete(int card)
{
    const QString cardId = session.cardId[card];
    form<warnForm>().askAbout(card);
    session.dialogResult.clear();
    showModal(form<warnForm>());
    if (session.dialogResult == QLatin1String("OK"))
        deleteCard(cardId);
}
