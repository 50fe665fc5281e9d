#include "editing/DesignForm.h"

#include "editing/FieldForm.h"
#include "editing/design.h"
#include "editing/frmRemind.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "platform/picture.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QRadioButton>

namespace {

constexpr int rowsInColumn = 6;
constexpr int partsOfRow = 6; // the last is a gap
constexpr int nameWidth = 130;
constexpr int columnGap = 16;

/// The element f of a group of controls is called by the group's name and f.
template <class Control>
Control* element(Control* control, const char* group, int f)
{
    control->setObjectName(QLatin1String(group) + QString::number(f));
    return control;
}

QPushButton* stepButton(const char* name, const QString& icon, const QString& meaning)
{
    auto* button = named(new QPushButton(QIcon(picturePath(icon)), QString()), name);
    button->setAccessibleName(meaning);
    button->setAutoRepeat(true);
    return button;
}

} // namespace

DesignForm::DesignForm()
    : AnswerDialog(new AnswerButtons)
    , numFieldsBox(named(words(QString(), "subHeading"), "numFieldsBox"))
    , spinUp(stepButton("spinUp", QStringLiteral("stepUp"), QStringLiteral("One field more")))
    , spinDown(stepButton("spinDown", QStringLiteral("pullDown"), QStringLiteral("One field less")))
    , ChkRD(named(new QCheckBox(QStringLiteral("&Read Only Database")), "ChkRD"))
    , LblRO(named(words(QStringLiteral("(Requires you to restart the database)"), "explanation"), "LblRO"))
    , mapBut(named(new QPushButton(QStringLiteral("&Import Map")), "mapBut"))
{
    setObjectName(QStringLiteral("DesignForm"));
    setWindowTitle(QStringLiteral("Design Cards"));
    mapBut->setEnabled(false); // until pictures can be laid under the cards

    auto* rows = fieldRows();
    auto* side = new QVBoxLayout;
    side->addWidget(fieldCount());
    side->addWidget(cardSizes());
    side->addWidget(ChkRD);
    side->addWidget(LblRO);
    side->addStretch();
    side->addSpacing(12);
    side->addWidget(mapBut);

    auto* lowest = new QHBoxLayout;
    lowest->addWidget(answers);
    lowest->addStretch();
    lowest->addWidget(videoButton(QStringLiteral("Newdb")));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(12);
    grid->addLayout(side, 0, 1);
    grid->addWidget(rows, 0, 0);
    grid->addLayout(lowest, 1, 0, 1, 2);
    connectControls();
}

QWidget* DesignForm::fieldRows()
{
    auto* panel = new QGroupBox(QStringLiteral("Fields"));
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
    number[f] = new QLabel(QStringLiteral("%1%2").arg(f < 10 ? QStringLiteral("&") : QString()).arg(f));
    fieldName[f] = element(new FittedLabel, "fieldName", f);
    DataBox[f] = element(new QLabel, "DataBox", f);
    EditFieldBut[f] = element(new QPushButton(QStringLiteral("Edit")), "EditFieldBut", f);
    number[f]->setBuddy(EditFieldBut[f]);
    // It only tells that the field has a list: nothing can be picked from it here.
    pullDownBut[f] =
        element(new QPushButton(QIcon(picturePath(QStringLiteral("pullDown"))), QString()), "pullDownBut", f);
    pullDownBut[f]->setAccessibleName(QStringLiteral("This field has a list"));
    pullDownBut[f]->setFlat(true);
    pullDownBut[f]->setFocusPolicy(Qt::NoFocus);
    pullDownBut[f]->setAttribute(Qt::WA_TransparentForMouseEvents);

    const int row = (f - 1) % rowsInColumn;
    int column = (f - 1) / rowsInColumn * partsOfRow;
    grid.setColumnStretch(column + 1, 1);
    grid.setColumnMinimumWidth(column + 1, nameWidth);
    for (QWidget* part : std::initializer_list<QWidget*>{number[f], fieldName[f], DataBox[f], pullDownBut[f],
                                                         EditFieldBut[f]}) {
        keepPlaceWhenHidden(*part); // so that the dialog doesn't grow with the number of fields
        grid.addWidget(part, row, column++);
    }
    grid.setRowStretch(row, 1);
}

QWidget* DesignForm::fieldCount()
{
    auto* block = new QWidget;
    auto* row = new QHBoxLayout(block);
    row->setContentsMargins({});
    auto* numFieldsLab = named(new QLabel(QStringLiteral("&Number of Fields")), "numFieldsLab");
    numFieldsLab->setBuddy(spinUp);
    row->addWidget(numFieldsLab);
    row->addWidget(numFieldsBox);
    row->addWidget(spinUp);
    row->addWidget(spinDown);
    return block;
}

QWidget* DesignForm::cardSizes()
{
    auto* Frame1 = named(new QGroupBox(QStringLiteral("Show Card")), "Frame1");
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
    onToggle(ChkRD, [](bool ticked) { session.designReadOnly = ticked; });
    onClickLater(answers->ok, [this] { confirm(); });
    onClick(answers->cancel, [] {
        session.dialogResult = QStringLiteral("Cancel");
        unload<DesignForm>();
    });
}

void DesignForm::load()
{
    const bool free = readOnlyMayChange();
    ChkRD->setEnabled(free);
    LblRO->setEnabled(free);
    session.designReadOnly = session.databaseStatus == QLatin1String("RO"); // a cancelled tick is forgotten
    ChkRD->setChecked(session.designReadOnly);
}

void DesignForm::layoutDesignFields()
{
    numFieldsBox->setText(QString::number(session.numFields));
    for (auto* button : {spinUp, spinDown})
        button->setAccessibleDescription(QStringLiteral("Number of Fields: %1").arg(session.numFields));
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
    EditFieldBut[f]->setAccessibleName(QStringLiteral("Edit field %1, %2").arg(f).arg(session.fieldName[f]));
}

void DesignForm::confirm()
{
    acceptDesign();
    session.dialogResult = QStringLiteral("OK");
    if (reminderWanted()) {
        desktop.beep();
        showModal(form<frmRemind>());
    }
    unload<DesignForm>();
}
