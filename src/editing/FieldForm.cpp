#include "editing/FieldForm.h"

#include "controls/balloon.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "controls/selectOnFocus.h"
#include "controls/typographicQuotes.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

struct TypeLine {
    QString type;
    QString text;
};

const TypeLine typeLines[] = {
    {u"Abc"_s, u"Abc - Letters and Numbers"_s},
    {u"123"_s, u"123 - Numbers only"_s},
};

constexpr int halfWidth = 340;
constexpr int listHeight = 300; // six answers

QLabel* labelFor(QWidget* control, const char* name, const QString& text)
{
    auto* label = named(new QLabel(text), name);
    label->setBuddy(control);
    return label;
}

} // namespace

FieldForm::FieldForm()
    : AnswerDialog(new AnswerButtons)
    , fieldNameBox(named(new QLineEdit, "fieldNameBox"))
    , BtnClear(named(new QPushButton(u"&Clear"_s), "BtnClear"))
    , fieldType(named(new DropDown, "fieldType"))
    , UseList(named(new QCheckBox(u"Offer a &list of answers"_s), "UseList"))
    , listLabel(named(new QLabel(u"&Answers to pick from:"_s), "listLabel"))
    , AnswerHolder(named(new QWidget, "AnswerHolder"))
    , Scroller1(named(new QScrollArea, "Scroller1"))
{
    setObjectName(u"FieldForm"_s);
    setWindowTitle(u"Field Details"_s);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    for (const int half : {0, 1}) {
        grid->setColumnStretch(half, 1);
        grid->setColumnMinimumWidth(half, halfWidth);
    }
    grid->addLayout(nameAndType(), 0, 0);
    grid->addLayout(answerList(), 0, 1);
    grid->addLayout(answerRow(answers, videoButton()), 1, 0, 1, 2);
    connectControls();
}

QLayout* FieldForm::nameAndType()
{
    for (const TypeLine& line : typeLines)
        fieldType->addItem(line.text);

    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(fieldNameBox);
    nameRow->addWidget(BtnClear);
    auto* column = new QVBoxLayout;
    column->addWidget(labelFor(fieldNameBox, "fieldnameLabel", u"&Name of the field:"_s));
    column->addLayout(nameRow);
    column->addSpacing(8);
    column->addWidget(labelFor(fieldType, "Label1", u"&Type of the answers:"_s));
    column->addWidget(fieldType);
    column->addSpacing(8);
    column->addWidget(UseList);
    column->addStretch();
    return column;
}

QLayout* FieldForm::answerList()
{
    auto* list = new QWidget;
    auto* rows = new QGridLayout(list);
    for (int item = 1; item <= lastAnswer; ++item) {
        possAnswer[item] = element(new QLineEdit, "possAnswer", item);
        possAnswer[item]->setAccessibleName(u"Answer %1"_s.arg(item));
        takeTypographicQuotes(possAnswer[item]);
        possAnswer[item]->installEventFilter(this);
        rows->addWidget(new QLabel(QString::number(item)), item, 0);
        rows->addWidget(possAnswer[item], item, 1);
    }
    Scroller1->setWidget(list);
    Scroller1->setWidgetResizable(true);
    Scroller1->setMinimumHeight(listHeight);
    Scroller1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Scroller1->setFocusPolicy(Qt::NoFocus); // it scrolls to the focused box
    listLabel->setBuddy(possAnswer[1]);

    auto* holderLayout = new QVBoxLayout(AnswerHolder);
    holderLayout->setContentsMargins({});
    holderLayout->addWidget(Scroller1);
    auto* column = new QVBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{listLabel, AnswerHolder}) {
        keepPlaceWhenHidden(*part);
        column->addWidget(part);
    }
    column->setStretch(1, 1);
    offerList(false);
    return column;
}

void FieldForm::connectControls()
{
    giveHint(*BtnClear, u"Empty the name"_s);
    selectOnFocus(fieldNameBox);
    takeTypographicQuotes(fieldNameBox);
    onClick(BtnClear, [this] {
        fieldNameBox->clear();
        fieldNameBox->setFocus();
    });
    onToggle(UseList, [this](bool ticked) { offerList(ticked); });
    answerByButtons();
}

void FieldForm::offerList(bool offered)
{
    for (int item = 1; item <= lastAnswer; ++item)
        possAnswer[item]->clear();
    AnswerHolder->setVisible(offered);
    listLabel->setVisible(offered);
    if (!offered)
        return;
    Scroller1->verticalScrollBar()->setValue(0);
    possAnswer[1]->setFocus();
}

void FieldForm::fill(const FieldDefinition& definition)
{
    fieldNameBox->setText(definition.name);
    for (const TypeLine& line : typeLines) {
        if (line.type == definition.type)
            fieldType->setCurrentText(line.text);
    }
    UseList->setChecked(definition.useList);
    for (int item = 1; item <= lastAnswer; ++item)
        possAnswer[item]->setText(definition.answers[item]);
    Scroller1->verticalScrollBar()->setValue(0); // not the previous field's position
    fieldNameBox->setFocus();
}

FieldDefinition FieldForm::definition() const
{
    FieldDefinition definition{fieldNameBox->text(), chosenType(), UseList->isChecked(), {}};
    for (int item = 1; item <= lastAnswer; ++item)
        definition.answers[item] = possAnswer[item]->text();
    return definition;
}

QString FieldForm::chosenType() const
{
    for (const TypeLine& line : typeLines) {
        if (line.text == fieldType->currentText())
            return line.type;
    }
    return {};
}

/// Return in the list begins a new line: the box below the watched one gets the focus.
bool FieldForm::beginsLine(const QObject* watched, const QEvent& event)
{
    if (event.type() != QEvent::KeyPress ||
        !static_cast<const QKeyEvent&>(event).matches(QKeySequence::InsertParagraphSeparator))
        return false;
    const auto box = std::find(possAnswer.begin(), possAnswer.end(), watched);
    if (box != possAnswer.end() && box + 1 != possAnswer.end())
        (*(box + 1))->setFocus();
    return true;
}

bool FieldForm::eventFilter(QObject* watched, QEvent* event)
{
    if (beginsLine(watched, *event))
        return true;
    if (!refuses(*event))
        return AnswerDialog::eventFilter(watched, event);
    if (event->type() == QEvent::InputMethod) {
        QInputMethodEvent nothing; // drops unfinished input-method text
        QCoreApplication::sendEvent(watched, &nothing);
    }
    return true;
}

bool FieldForm::refuses(QEvent& event) const
{
    QString typed;
    if (event.type() == QEvent::InputMethod)
        typed = static_cast<QInputMethodEvent&>(event).commitString();
    if (event.type() == QEvent::KeyPress) {
        const auto& press = static_cast<QKeyEvent&>(event);
        constexpr int free[] = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,
                                Qt::Key_Enter, Qt::Key_Escape,  Qt::Key_Delete};
        if (std::find(std::begin(free), std::end(free), press.key()) == std::end(free))
            typed = press.text();
    }
    return std::any_of(typed.begin(), typed.end(),
                       [this](QChar key) { return !answerTakesKey(chosenType(), key); });
}

bool editField(int f)
{
    form<FieldForm>().fill(fieldDefinition(f));
    if (!saysOk(form<FieldForm>()))
        return false;
    defineField(f, form<FieldForm>().definition());
    return true;
}
