#include "analysis/DataMapForm.h"

#include "choices/fieldChoice.h"
#include "controls/dialogParts.h"
#include "controls/wizardPages.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pageSize(560, 200);

const QString untitled = u"Title"_s;

} // namespace

DataMapForm::DataMapForm()
    : AnswerDialog(new AnswerButtons({"OKbut", u"OK"_s}, {"Btncancel", u"Cancel"_s}))
    , fieldCombo(fieldChoice("fieldCombo"))
    , mapMaxCol(named(new QLabel, "mapMaxCol"))
    , graphTitle(named(new QLineEdit, "graphTitle"))
    , prevBut(named(new QPushButton(u"< Bac&k"_s), "prevBut"))
    , nextBut(named(new QPushButton(u"&Next >"_s), "nextBut"))
    , pages(new WizardPages(*this))
{
    setObjectName(u"DataMapForm"_s);
    setWindowTitle(u"DataMap"_s);
    page(0, u"1. Make a Data Map about:"_s)->insertWidget(1, fieldCombo);
    fieldCombo->setAccessibleName(u"Make a Data Map about"_s);
    page(1, u"2. Choose colours:"_s)->insertWidget(1, mapMaxCol, 0, Qt::AlignLeft);
    mapMaxCol->setAccessibleName(u"Colour of the largest value"_s);
    auto* titleRow = new QHBoxLayout;
    auto* graphTitleLabel = named(new QLabel(u"&Title"_s), "graphTitleLabel");
    graphTitleLabel->setBuddy(graphTitle);
    titleRow->addWidget(graphTitleLabel);
    titleRow->addWidget(graphTitle, 1);
    page(2, u"3. Titles"_s)->insertLayout(1, titleRow);
    graphTitle->installEventFilter(this);

    pages->setMinimumSize(pageSize);
    pages->setPages({{Frame[0], fieldCombo, nextBut, nullptr},
                     {Frame[1], nullptr, nextBut, prevBut},
                     {Frame[2], graphTitle, answers->ok, prevBut}});
    onClick(nextBut, [this] { pages->goOn(); });
    onClick(prevBut, [this] { pages->goBack(); });
    answerByButtons();

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QWidget* button : std::initializer_list<QWidget*>{prevBut, nextBut, answers})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(16);
    column->addWidget(pages, 1);
    column->addLayout(buttons);
}

QVBoxLayout* DataMapForm::page(int number, const QString& heading)
{
    QWidget* frame = Frame[std::size_t(number)] = element(new QWidget, "Frame", number);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins({});
    column->setSpacing(16);
    auto* label = element(words(heading, "heading"), "Label", number + 1);
    column->addWidget(label);
    column->addStretch(1);
    return column;
}

void DataMapForm::load() { prepare(); }

void DataMapForm::prepare()
{
    fillFieldChoice(*fieldCombo);
    graphTitle->setText(untitled);
    pages->goTo(0);
}

bool DataMapForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == graphTitle && event->type() == QEvent::MouseButtonRelease &&
        graphTitle->text() == untitled)
        graphTitle->clear();
    return AnswerDialog::eventFilter(watched, event);
}
