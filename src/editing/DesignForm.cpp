#include "editing/DesignForm.h"

#include "controls/dialogParts.h"
#include "controls/fittedLabel.h"
#include "editing/FieldForm.h"
#include "editing/design.h"
#include "editing/frmRemind.h"
#include "editing/mapImport.h"
#include "platform/desktop.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowsInColumn = 6;
constexpr int partsOfRow = 6; // the last part is a gap
constexpr int nameWidth = 110;
constexpr int columnGap = 16;

/// One press is one field: a held button that went on would take the work of many.
QPushButton* stepButton(const char* name, const QString& icon, const QString& meaning)
{
    return named(iconButton(icon, meaning), name);
}

} // namespace

DesignForm::DesignForm()
    : AnswerDialog(new AnswerButtons)
    , numFieldsBox(named(words(QString(), "subHeading"), "numFieldsBox"))
    , spinUp(stepButton("spinUp", u"stepUp"_s, u"One field more"_s))
    , spinDown(stepButton("spinDown", u"pullDown"_s, u"One field less"_s))
    , ChkRD(named(new QCheckBox(u"&Read Only Database"_s), "ChkRD"))
    , LblRO(named(words(u"(Requires you to restart the database)"_s, "explanation"), "LblRO"))
    , mapBut(named(new QPushButton(u"&Import Map"_s), "mapBut"))
{
    setObjectName(u"DesignForm"_s);
    setWindowTitle(u"Design Cards"_s);

    auto* rows = fieldRows();
    auto* side = new QVBoxLayout;
    side->addWidget(fieldCount());
    side->addWidget(cardSizes());
    side->addWidget(ChkRD);
    side->addWidget(LblRO);
    side->addStretch();
    side->addSpacing(12);
    side->addWidget(mapBut);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(12);
    grid->addLayout(side, 0, 1);
    grid->addWidget(rows, 0, 0);
    grid->addLayout(answerRow(answers, videoButton(u"Newdb"_s)), 1, 0, 1, 2);
    connectControls();
}

QWidget* DesignForm::fieldRows()
{
    auto* panel = new QGroupBox(u"Fields"_s);
    auto* grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    for (int f = 1; f <= lastField; ++f)
        addFieldRow(*grid, f);
    grid->setColumnMinimumWidth(partsOfRow - 1, columnGap);
    return panel;
}

void DesignForm::addFieldRow(QGridLayout& grid, int f)
{
    number[f] = new QLabel(u"%1%2"_s.arg(f < 10 ? u"&"_s : QString()).arg(f));
    fieldName[f] = element(new FittedLabel, "fieldName", f);
    DataBox[f] = element(new QLabel, "DataBox", f);
    EditFieldBut[f] = element(new QPushButton(u"Edit"_s), "EditFieldBut", f);
    number[f]->setBuddy(EditFieldBut[f]);
    // It only shows that the field has a list; nothing can be picked here.
    pullDownBut[f] = element(iconButton(u"pullDown"_s, u"This field has a list"_s), "pullDownBut", f);
    pullDownBut[f]->setFlat(true);
    pullDownBut[f]->setFocusPolicy(Qt::NoFocus);
    pullDownBut[f]->setAttribute(Qt::WA_TransparentForMouseEvents);

    const int row = (f - 1) % rowsInColumn;
    int column = (f - 1) / rowsInColumn * partsOfRow;
    grid.setColumnStretch(column + 1, 1);
    grid.setColumnMinimumWidth(column + 1, nameWidth);
    for (QWidget* part : std::initializer_list<QWidget*>{number[f], fieldName[f], DataBox[f], pullDownBut[f],
                                                         EditFieldBut[f]}) {
        keepPlaceWhenHidden(*part); // the dialog's size doesn't depend on the number of fields
        grid.addWidget(part, row, column++);
    }
    grid.setRowStretch(row, 1);
}

QWidget* DesignForm::fieldCount()
{
    auto* block = new QWidget;
    auto* row = new QHBoxLayout(block);
    row->setContentsMargins({});
    auto* numFieldsLab = named(new QLabel(u"&Number of Fields"_s), "numFieldsLab");
    numFieldsLab->setBuddy(spinUp);
    row->addWidget(numFieldsLab);
    row->addWidget(numFieldsBox);
    row->addWidget(spinUp);
    row->addWidget(spinDown);
    return block;
}

QWidget* DesignForm::cardSizes()
{
    auto* Frame1 = named(new QGroupBox(u"Show Card"_s), "Frame1");
    auto* column = new QVBoxLayout(Frame1);
    int size = 0;
    for (const auto* caption : {"&Small", "&Medium", "&Text Only"}) {
        cardSizeRadio[size] = element(new QRadioButton(QLatin1String(caption)), "cardSizeRadio", size);
        column->addWidget(cardSizeRadio[size]);
        ++size;
    }
    return Frame1;
}

void DesignForm::connectControls()
{
    onClick(spinUp, [this] {
        addField();
        layoutDesignFields();
    });
    onClick(spinDown, [this] {
        removeField();
        layoutDesignFields();
    });
    for (int f = 1; f <= lastField; ++f) {
        onClickLater(EditFieldBut[f], [f] {
            if (editField(f) && isLoaded<DesignForm>())
                form<DesignForm>().showField(f);
        });
    }
    for (int size = 0; size <= 2; ++size)
        onToggle(cardSizeRadio[size], [size](bool chosen) {
            if (chosen)
                session.cardSize = qint16(size);
        });
    onToggle(ChkRD, [](bool ticked) { session.design.ChkRD = ticked; });
    onClickLater(mapBut, layMapUnderCards);
    onClickLater(answers->ok, [this] { confirm(); });
    onClick(answers->cancel, [] { answerAndUnload<DesignForm>(u"Cancel"_s); });
}

void DesignForm::load()
{
    const bool free = readOnlyMayChange();
    ChkRD->setEnabled(free);
    LblRO->setEnabled(free);
    session.design.ChkRD = session.databaseStatus == "RO"_L1; // a tick before a Cancel is dropped
    ChkRD->setChecked(session.design.ChkRD);
}

void DesignForm::layoutDesignFields()
{
    numFieldsBox->setText(QString::number(session.numFields));
    for (auto* button : {spinUp, spinDown})
        button->setAccessibleDescription(u"Number of Fields: %1"_s.arg(session.numFields));
    for (int f = 1; f <= lastField; ++f)
        showField(f);
    cardSizeRadio[session.cardSize]->setChecked(true);
    letTabFindTheChosen({cardSizeRadio[0], cardSizeRadio[1], cardSizeRadio[2]});
}

void DesignForm::showField(int f)
{
    const bool inUse = f <= session.numFields;
    for (QWidget* part :
         std::initializer_list<QWidget*>{number[f], fieldName[f], DataBox[f], EditFieldBut[f]})
        part->setVisible(inUse);
    pullDownBut[f]->setVisible(inUse && session.fieldUseList[f]);
    fieldName[f]->setText(session.fieldName[f]);
    DataBox[f]->setText(fieldTypeWord(f));
    EditFieldBut[f]->setAccessibleName(u"Edit field %1, %2"_s.arg(f).arg(session.fieldName[f]));
}

void DesignForm::confirm()
{
    acceptDesign();
    session.dialogResult = u"OK"_s;
    if (reminderWanted()) {
        desktop.sound.beep();
        showModal(form<frmRemind>());
    }
    unload<DesignForm>();
}
