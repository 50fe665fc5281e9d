#include "tools/warnForm.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "tools/bin.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastWidth = 4275; // twips
constexpr int captionGap = 8;    // pixels
constexpr int captionMargin = 28;
constexpr int edge = 20;
constexpr int betweenAnswers = 24; // around the middle of the window

} // namespace

warnForm::warnForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"Yes"_s}, {"NoBut", u"No"_s}))
    , ActionPic(named(new QLabel, "ActionPic"))
    , DiBoxCaption(named(words(u"Delete this card?"_s, "subHeading"), "DiBoxCaption"))
{
    setObjectName(u"warnForm"_s);
    setWindowTitle(u"Delete Card"_s);
    DiBoxCaption->setWordWrap(false);
    answers->cancel->setDefault(true); // an accidental Return doesn't delete the card

    auto* question = new QHBoxLayout;
    question->setSpacing(captionGap);
    question->setContentsMargins(0, 0, captionMargin - edge, 0);
    question->addWidget(ActionPic);
    question->addWidget(DiBoxCaption, 1);
    answers->layout()->setSpacing(betweenAnswers);
    const int answerWidth = std::max(answers->ok->sizeHint().width(), answers->cancel->sizeHint().width());
    for (QPushButton* button : {answers->ok, answers->cancel})
        button->setFixedWidth(answerWidth);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(answers);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, edge, edge);
    column->setSpacing(edge);
    column->addLayout(question);
    column->addLayout(buttons);

    answerByButtons();
}

void warnForm::askAbout(int card)
{
    const CardImage& image = session.box[card];
    ActionPic->setFixedSize(int(image.width), int(image.height));
    ActionPic->setPixmap(QPixmap::fromImage(image.picture));
    const QString question = u"Delete "_s + session.cardValue[card][1] + u" ?"_s;
    const int room = desktop.screen.size().width() - 2 * ActionPic->width() - 2 * captionMargin;
    DiBoxCaption->ensurePolished();
    DiBoxCaption->setText(DiBoxCaption->fontMetrics().elidedText(question, Qt::ElideMiddle, room));
    DiBoxCaption->setAccessibleName(question);
    answers->cancel->setFocus();
    setMinimumWidth(int(leastWidth / session.twipsPerPixelX));
    layout()->invalidate(); // a caption that was never shown doesn't notify the layout of a new size
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
    const QString recordName = session.recordName[card];
    form<warnForm>().askAbout(card);
    if (saysOk(form<warnForm>()))
        deleteCard(cardId, recordName);
}
