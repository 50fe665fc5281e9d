#include "analysis/statsForm.h"

#include "analysis/copying.h"
#include "analysis/refusals.h"
#include "analysis/statistics.h"
#include "choices/fieldChoice.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "controls/paperRoll.h"
#include "controls/plainText.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"

#include <QBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize leastRoll(380, 230);

} // namespace

statsForm::statsForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"BtnNo", u"Cancel"_s}))
    , fieldCombo(fieldChoice("fieldCombo"))
    , functionCombo(named(new DropDown, "functionCombo"))
    , equalsBut(named(new QPushButton(u"="_s), "equalsBut"))
    , display(named(new QPlainTextEdit, "display"))
    , copyBut(named(new QPushButton(u"Co&py Data"_s), "copyBut"))
    , ClearBut(named(new QPushButton(u"C&lear Data"_s), "ClearBut"))
{
    setObjectName(u"statsForm"_s);
    setWindowTitle(u"Statistics"_s);
    display->setAccessibleName(u"Results"_s);
    display->setTabChangesFocus(true);
    display->setMinimumSize(leastRoll);
    functionCombo->setMinimumContentsLength(11); // as wide as its longest word from the start

    auto* top = new QHBoxLayout;
    top->addWidget(pictureLabel(u"menuStatistics"_s, {48, 48}));
    top->addWidget(named(words(u"Calculate Statistics"_s, "heading"), "DiBoxCaption"), 1);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(20);
    middle->addLayout(calculator());
    middle->addLayout(roll(), 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(12);
    column->addLayout(top);
    column->addLayout(middle, 1);
    auto* video = videoButton(u"Entering Data"_s);
    column->addLayout(answerRow(answers, video));
    chainTabs({fieldCombo, functionCombo, equalsBut, display, copyBut, ClearBut, answers->ok, answers->cancel,
               video});
    equalsBut->setDefault(true); // as on a calculator
    connectControls();
}

QLayout* statsForm::calculator()
{
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    for (const auto& [text, choice] :
         {std::pair(u"&Field:"_s, fieldCombo), {u"F&unction:"_s, functionCombo}}) {
        auto* label = words(text);
        label->setBuddy(choice);
        column->addWidget(label);
        column->addWidget(choice);
        column->addSpacing(10);
    }
    column->addWidget(equalsBut);
    column->addStretch(1);
    return column;
}

QLayout* statsForm::roll()
{
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copyBut);
    buttons->addWidget(ClearBut);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout;
    column->addWidget(new PaperRoll(display), 1);
    column->addLayout(buttons);
    return column;
}

void statsForm::connectControls()
{
    connect(fieldCombo, &QComboBox::currentIndexChanged, this,
            [this] { guarded([this] { offerFunctions(); }); });
    connect(fieldCombo, &QComboBox::activated, this, [this] { guarded([this] { offerFunctions(); }); });
    connect(display, &QPlainTextEdit::textChanged, this,
            [this] { copyBut->setEnabled(!display->document()->isEmpty()); });
    onClickLater(equalsBut, [this] { calculate(); });
    onClickLater(copyBut, [this] { copyRoll(); });
    onClick(ClearBut, [this] { display->clear(); });
    onClick(answers->ok, [] { answerAndUnload<statsForm>(u"OK"_s); });
    onClick(answers->cancel, [] { answerAndUnload<statsForm>(u"Cancel"_s); });
}

void statsForm::load() { TxtDate = shortDateText(desktop.now().date()); }

void statsForm::prepare()
{
    fillFieldChoice(*fieldCombo);
    display->clear();
    copyBut->setEnabled(false);
    fieldCombo->setFocus();
}

/// Those of the chosen field's type; none of them is chosen, also when the field is the same as before.
void statsForm::offerFunctions()
{
    functionCombo->clear();
    if (fieldCombo->currentIndex() < 0)
        return;
    functionCombo->addItems(statisticsFunctions(session.fieldType[session.chosenField]));
    functionCombo->setCurrentIndex(-1);
}

void statsForm::calculate()
{
    if (session.numCards > mostCardsInGraph)
        refuseStatistics();
    else
        addToRoll(statisticsResult(functionCombo->currentText()));
}

void statsForm::addToRoll(const QString& result)
{
    QTextCursor end(display->document());
    end.movePosition(QTextCursor::End);
    end.insertText(result + u"\r\n"_s);
    display->setTextCursor(end);
    display->ensureCursorVisible();
    equalsBut->setAccessibleDescription(result); // read out at once where the focus is
    if (!display->hasFocus())
        equalsBut->setFocus();
}

void statsForm::copyRoll() { copyText(statisticsToCopy(TxtDate, typedText(*display))); }
