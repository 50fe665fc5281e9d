#include "tools/findForm.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "tools/conditions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace {

// The window shows as many rows as its height lets it; heights in twips.
constexpr int heightOfOneRow = 3660;

struct JoinHeights {
    int joined;
    int alone;
};
constexpr JoinHeights heights[] = {{5500, heightOfOneRow}, {6500, 6300}};

// Places in pixels of the window.
constexpr int windowWidth = 692;
constexpr int margin = 20;
constexpr int controlHeight = 44;
constexpr int rowTops[] = {72, 252, 372};
constexpr int joinTops[] = {190, 314};
constexpr int answersHeight = 124;
constexpr int answerLineHeight = 30;

QComboBox* dropDown(const QString& name, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->setItemDelegate(new QStyledItemDelegate(box));
    return box;
}

/// A combo box gives screen readers its choice for its name, once there is one.
void nameForReaders(QComboBox& box, const QString& name)
{
    box.setAccessibleName(name);
    box.setAccessibleDescription(name);
}

/// "Value of condition 2", as assistive technology names the control.
QString ofCondition(const QString& what, int row)
{
    return what + QStringLiteral(" of condition ") + QString::number(row + 1);
}

QString numbered(const char* name, int number) { return QLatin1String(name) + QString::number(number); }

bool joins(const QComboBox& box) { return box.currentText() != QLatin1String(" "); }

} // namespace

findForm::findForm()
    : AnswerDialog(new AnswerButtons({"YesBut", QStringLiteral("OK")}, {"NoBut", QStringLiteral("Cancel")}))
    , vennTick(named(new QCheckBox(QStringLiteral("Make a &Venn Diagram"), this), "vennTick"))
    , Logo2(pictureLabel(QStringLiteral("venn"), {64, 48}))
    , answerHolder(new AnswerHolder(this, answerLineHeight))
{
    setObjectName(QStringLiteral("findForm"));
    setWindowTitle(QStringLiteral("Find"));
    for (int row = 0; row < 3; ++row)
        makeRow(row);
    for (int join = 0; join < 2; ++join)
        makeJoin(join);
    connect(vennTick, &QCheckBox::toggled, this, [](bool ticked) { session.vennTick = ticked; });
    answerHolder->picked = [this](const QString& answer) {
        if (answersOfRow >= 0)
            rows[std::size_t(answersOfRow)].valBox->setText(answer);
    };
    onClick(answers->ok, [this] {
        answerHolder->hide();
        session.dialogResult = QStringLiteral("OK");
        hide();
    });
    onClick(answers->cancel, [] {
        session.dialogResult = QStringLiteral("Cancel");
        unload<findForm>();
    });
    layOut();
}

void findForm::makeRow(int row)
{
    const auto at = std::size_t(row);
    Row& made = rows[at];
    made.fieldCombo = dropDown(numbered("fieldCombo", row), this);
    nameForReaders(*made.fieldCombo, ofCondition(QStringLiteral("Field"), row));
    made.fieldCombo->setPlaceholderText(QStringLiteral("field"));
    made.compBox = dropDown(numbered("compBox", row), this);
    nameForReaders(*made.compBox, ofCondition(QStringLiteral("Comparison"), row));
    made.compBox->setPlaceholderText(QStringLiteral("how"));
    made.valBox = new QLineEdit(this);
    made.valBox->setObjectName(numbered("valBox", row));
    made.valBox->setAccessibleName(ofCondition(QStringLiteral("Value"), row));
    made.pullDownBut = new QPushButton(this);
    made.pullDownBut->setObjectName(numbered("pullDownBut", row));
    made.pullDownBut->setAccessibleName(ofCondition(QStringLiteral("Answers"), row));
    made.pullDownBut->setIcon(QIcon(picturePath(QStringLiteral("pullDown"))));

    connect(made.fieldCombo, &QComboBox::currentIndexChanged, this,
            [this, row] { guarded([=, this] { fieldPicked(row); }); });
    connect(made.compBox, &QComboBox::currentTextChanged, this,
            [row](const QString& word) { guarded([&] { session.findRow[row].word = word; }); });
    connect(made.valBox, &QLineEdit::textChanged, this,
            [this, row] { guarded([=, this] { valueTyped(row); }); });
    onClick(made.pullDownBut, [this, row] { toggleAnswers(row); });
    made.compBox->installEventFilter(this);
    made.valBox->installEventFilter(this);
}

void findForm::makeJoin(int join)
{
    QComboBox* box = dropDown(numbered("andOr", join), this);
    andOr[std::size_t(join)] = box;
    nameForReaders(*box, ofCondition(QStringLiteral("Joining word"), join + 1));
    connect(box, &QComboBox::currentIndexChanged, this,
            [this, join] { guarded([=, this] { joinPicked(join); }); });
}

void findForm::layOut()
{
    auto* DiBoxCaption = named(words(QStringLiteral("Find")), "heading");
    DiBoxCaption->setParent(this);
    DiBoxCaption->setGeometry(margin, 12, 200, 48);
    answers->adjustSize();
    answers->move(windowWidth - margin - answers->width(), 14);
    for (int row = 0; row < 3; ++row) {
        const Row& each = rows[std::size_t(row)];
        each.fieldCombo->setGeometry(margin, rowTops[row], 200, controlHeight);
        each.compBox->setGeometry(228, rowTops[row], 168, controlHeight);
        each.valBox->setGeometry(404, rowTops[row], 220, controlHeight);
        each.pullDownBut->setGeometry(628, rowTops[row], controlHeight, controlHeight);
    }
    for (int join = 0; join < 2; ++join)
        andOr[std::size_t(join)]->setGeometry(margin, joinTops[join], 112, controlHeight);
    QPushButton* BtnVid = videoButton(QStringLiteral("Finding"));
    BtnVid->setParent(this);
    BtnVid->adjustSize();
    BtnVid->move(windowWidth - margin - BtnVid->width(), joinTops[0]);
    Logo2->setParent(this);
    Logo2->setGeometry(228, joinTops[1] - 2, 64, 48);
    vennTick->setGeometry(300, joinTops[1], 320, controlHeight);
    answerHolder->resize(220 + controlHeight + 4, answersHeight);
    QWidget* before = answers->cancel;
    for (QWidget* next : std::initializer_list<QWidget*>{
             rows[0].fieldCombo, rows[0].compBox, rows[0].valBox, rows[0].pullDownBut, andOr[0],
             rows[1].fieldCombo, rows[1].compBox, rows[1].valBox, rows[1].pullDownBut, andOr[1], vennTick,
             rows[2].fieldCombo, rows[2].compBox, rows[2].valBox, rows[2].pullDownBut, BtnVid, answers->ok,
             answers->cancel}) {
        setTabOrder(before, next);
        before = next;
    }
}

void findForm::prepare()
{
    for (int row = 0; row < 3; ++row) {
        const Row& each = rows[std::size_t(row)];
        each.fieldCombo->clear();
        for (int f = 1; f <= session.numFields; ++f)
            each.fieldCombo->addItem(session.fieldName[f]);
        each.fieldCombo->setCurrentIndex(-1);
        session.findRow[row] = {};
        each.valBox->clear();
        fillCompBox(row);
    }
    for (QComboBox* box : andOr) {
        box->clear();
        box->addItems({QStringLiteral(" "), QStringLiteral("and"), QStringLiteral("or")});
        box->setCurrentIndex(0);
    }
    showRow(1, false);
    showRow(2, false);
    move((desktop.screenSize().width() - windowWidth) / 2, y());
    vennTick->setChecked(false);
    session.vennTick = false;
    takeHeight(heightOfOneRow);
    rows[0].fieldCombo->setFocus();
}

int findForm::fieldOf(int row) const { return session.findRow[row].fieldTag.toInt(); }

void findForm::fillCompBox(int row)
{
    const Row& each = rows[std::size_t(row)];
    each.compBox->clear();
    each.compBox->addItems(comparisonWords(session.fieldType[fieldOf(row)]));
    each.compBox->setCurrentIndex(-1);
    each.pullDownBut->setVisible(session.fieldUseList[fieldOf(row)] && !each.fieldCombo->isHidden());
}

void findForm::fieldPicked(int row)
{
    const QComboBox& fields = *rows[std::size_t(row)].fieldCombo;
    if (fields.currentIndex() < 0)
        return; // the list is being filled
    answerHolder->hide();
    session.findRow[row].fieldTag = QString::number(fields.currentIndex() + 1);
    session.findRow[row].field = fields.currentText();
    fillCompBox(row);
    answerHolder->setAnswers({});
}

void findForm::valueTyped(int row)
{
    const Row& each = rows[std::size_t(row)];
    if (each.compBox->itemText(0) == QLatin1String("=")) {
        const QString kept = filterNumeric(each.valBox->text());
        if (kept != each.valBox->text())
            each.valBox->setText(kept); // comes back here with what may stay
    }
    session.findRow[row].value = each.valBox->text();
}

void findForm::toggleAnswers(int row)
{
    if (answerHolder->isVisible() && answersOfRow == row) {
        answerHolder->hide();
        return;
    }
    const Row& each = rows[std::size_t(row)];
    answersOfRow = row;
    QStringList listed;
    for (int j = 1; j <= AnswerHolder::lines; ++j)
        listed.append(session.fieldListItem[fieldOf(row)][j]);
    answerHolder->setAnswers(listed);
    const QRect button = each.pullDownBut->geometry();
    int top = button.bottom() + 2;
    if (row != 0 && button.bottom() + 1 + answerHolder->height() > height())
        top = button.top() - answerHolder->height();
    answerHolder->openAt({each.valBox->x(), top});
}

void findForm::joinPicked(int join)
{
    QComboBox& box = *andOr[std::size_t(join)];
    if (box.currentIndex() < 0)
        return; // the list is being filled
    session.andOr[join] = box.currentText();
    showRow(join + 1, joins(box));
    takeHeight(joins(box) ? heights[join].joined : heights[join].alone);
    const bool offered = session.andOr[0] == QLatin1String("and") && session.andOr[1] == QLatin1String(" ");
    vennTick->setVisible(offered);
    Logo2->setVisible(offered);
}

void findForm::showRow(int row, bool visible)
{
    const Row& each = rows[std::size_t(row)];
    each.fieldCombo->setVisible(visible);
    each.compBox->setVisible(visible);
    each.valBox->setVisible(visible);
    each.pullDownBut->setVisible(visible && session.fieldUseList[fieldOf(row)]);
}

/// Gives the window its new height and centres it again between the screen's upper and lower edge. What lies
/// below the window's edge keeps its state, but the keyboard passes it over.
void findForm::takeHeight(int twips)
{
    setFixedSize(windowWidth, twips / session.twipsPerPixelY);
    move(x(), (desktop.screenSize().height() - height()) / 2);
    for (int row = 1; row < 3; ++row) {
        const bool inView = rowTops[row] < height();
        const Row& each = rows[std::size_t(row)];
        for (QWidget* control :
             std::initializer_list<QWidget*>{each.fieldCombo, each.compBox, each.valBox, each.pullDownBut})
            control->setEnabled(inView);
        andOr[std::size_t(row - 1)]->setEnabled(joinTops[row - 1] < height());
    }
}

void findForm::mousePressEvent(QMouseEvent* event)
{
    answerHolder->hide();
    AnswerDialog::mousePressEvent(event);
}

bool findForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        answerHolder->hide();
    return AnswerDialog::eventFilter(watched, event);
}
