#include "tools/findForm.h"

#include "choices/fieldChoice.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "controls/typographicQuotes.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "platform/values.h"
#include "tools/conditions.h"

#include <QCheckBox>
#include <QEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

// The window's height decides how many rows are visible; heights in twips.
constexpr int heightOfOneRow = 3660;

struct JoinHeights {
    int joined;
    int alone;
};
constexpr JoinHeights heights[] = {{5500, heightOfOneRow}, {6500, 6300}};

// Positions in pixels of the window.
constexpr int windowWidth = 692;
constexpr int margin = 20;
constexpr int controlHeight = 44;
constexpr int rowTops[] = {64, 176, 288};
constexpr int joinTops[] = {120, 232};
constexpr int belowAnswers = 12; // from OK and Cancel to the window's lower edge
constexpr int answerLineHeight = 30;
constexpr int answersInView = 4;

/// The control's name for assistive technology: "Value of condition 2".
QString ofCondition(const QString& what, int row)
{
    return what + u" of condition "_s + QString::number(row + 1);
}

bool joins(const QComboBox& box) { return box.currentText() != " "_L1; }

} // namespace

findForm::findForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , vennTick(named(new QCheckBox(u"Make a &Venn Diagram"_s, this), "vennTick"))
    , Logo2(pictureLabel(u"venn"_s, {64, 48}))
    , BtnVid(videoButton())
    , answerHolder(new AnswerHolder(this, answerLineHeight, answersInView))
{
    setObjectName(u"findForm"_s);
    setWindowTitle(u"Find"_s);
    for (int row = 0; row < 3; ++row)
        makeRow(row);
    for (int join = 0; join < 2; ++join)
        makeJoin(join);
    connect(vennTick, &QCheckBox::toggled, this, [](bool ticked) { session.vennTick = ticked; });
    onClick(answers->ok, [this] {
        answerHolder->putAway();
        answer(u"OK"_s);
    });
    onClick(answers->cancel, [] { answerAndUnload<findForm>(u"Cancel"_s); });
    layOut();
}

void findForm::makeRow(int row)
{
    Row& made = rows[row];
    made.fieldCombo = dropDown("fieldCombo", row, ofCondition(u"Field"_s, row));
    made.fieldCombo->setPlaceholderText(u"field"_s);
    made.compBox = dropDown("compBox", row, ofCondition(u"Comparison"_s, row));
    made.compBox->setPlaceholderText(u"how"_s);
    made.valBox = element(new QLineEdit(this), "valBox", row);
    made.valBox->setAccessibleName(ofCondition(u"Value"_s, row));
    made.pullDownBut = element(iconButton(u"pullDown"_s, ofCondition(u"Answers"_s, row)), "pullDownBut", row);
    made.pullDownBut->setParent(this);

    connect(made.fieldCombo, &QComboBox::currentIndexChanged, this,
            [this, row] { guarded([=, this] { fieldPicked(row); }); });
    connect(made.compBox, &QComboBox::currentTextChanged, this,
            [row](const QString& word) { guarded([&] { session.findRow[row].word = word; }); });
    connect(made.valBox, &QLineEdit::textChanged, this,
            [this, row] { guarded([=, this] { valueTyped(row); }); });
    onClick(made.pullDownBut, [this, row] { toggleAnswers(row); });
    made.compBox->installEventFilter(this);
    takeTypographicQuotes(made.valBox); // as the cards have them
    made.valBox->installEventFilter(this);
}

QComboBox* findForm::dropDown(const char* group, int number, const QString& meaning)
{
    auto* box = element(new DropDown(this), group, number);
    box->setMeaning(meaning);
    return box;
}

void findForm::makeJoin(int join)
{
    QComboBox* box = dropDown("andOr", join, ofCondition(u"Joining word"_s, join + 1));
    box->setPlaceholderText(u"and / or"_s);
    andOr[join] = box;
    connect(box, &QComboBox::currentIndexChanged, this,
            [this, join] { guarded([=, this] { joinPicked(join); }); });
}

void findForm::layOut()
{
    auto* DiBoxCaption = named(words(u"Find"_s, "heading"), "DiBoxCaption");
    DiBoxCaption->setParent(this);
    DiBoxCaption->setGeometry(margin, 8, 200, 48);
    for (int row = 0; row < 3; ++row) {
        const Row& each = rows[row];
        each.fieldCombo->setGeometry(margin, rowTops[row], 200, controlHeight);
        each.compBox->setGeometry(228, rowTops[row], 168, controlHeight);
        each.valBox->setGeometry(404, rowTops[row], 224, controlHeight);
        each.pullDownBut->setGeometry(628, rowTops[row], controlHeight, controlHeight);
    }
    for (int join = 0; join < 2; ++join)
        andOr[join]->setGeometry(margin, joinTops[join], 140, controlHeight);
    BtnVid->setParent(this);
    Logo2->setParent(this);
    Logo2->setGeometry(228, joinTops[1] - 2, 64, 48);
    vennTick->setGeometry(300, joinTops[1], 320, controlHeight);
    chainTabs({answers->cancel, rows[0].fieldCombo, rows[0].compBox, rows[0].valBox, rows[0].pullDownBut,
               andOr[0], rows[1].fieldCombo, rows[1].compBox, rows[1].valBox, rows[1].pullDownBut, andOr[1],
               vennTick, rows[2].fieldCombo, rows[2].compBox, rows[2].valBox, rows[2].pullDownBut, BtnVid,
               answers->ok, answers->cancel});
}

/// The lowest line, as in every dialog: the video on the left, OK and Cancel on the right.
void findForm::placeAnswers()
{
    for (QWidget* part : std::initializer_list<QWidget*>{BtnVid, answers}) {
        part->adjustSize();
        part->move(part == BtnVid ? margin : width() - margin - part->width(),
                   height() - belowAnswers - part->height());
    }
}

void findForm::prepare()
{
    for (int row = 0; row < 3; ++row) {
        const Row& each = rows[row];
        offerFields(*each.fieldCombo);
        session.findRow[row] = {};
        each.valBox->clear();
        fillCompBox(row);
    }
    for (QComboBox* box : andOr) {
        box->clear();
        box->addItems({u" "_s, u"and"_s, u"or"_s});
        box->setCurrentIndex(0);
    }
    showRow(1, false);
    showRow(2, false);
    vennTick->setChecked(false);
    session.vennTick = false;
    takeHeight(heightOfOneRow);
    rows[0].fieldCombo->setFocus();
}

int findForm::fieldOf(int row) const { return session.findRow[row].fieldTag.toInt(); }

void findForm::fillCompBox(int row)
{
    const Row& each = rows[row];
    each.compBox->clear();
    each.compBox->addItems(comparisonWords(session.fieldType[fieldOf(row)]));
    each.compBox->setCurrentIndex(-1);
    each.pullDownBut->setVisible(session.fieldUseList[fieldOf(row)] && !each.fieldCombo->isHidden());
}

void findForm::fieldPicked(int row)
{
    const QComboBox& fields = *rows[row].fieldCombo;
    if (fields.currentIndex() < 0)
        return; // the list is being filled
    answerHolder->putAway();
    session.findRow[row].fieldTag = QString::number(fields.currentIndex() + 1);
    session.findRow[row].field = fields.currentText();
    fillCompBox(row);
    answerHolder->setAnswers({});
}

void findForm::valueTyped(int row)
{
    const Row& each = rows[row];
    if (each.compBox->itemText(0) == "="_L1) {
        const QString kept = filterNumeric(withDecimalPoints(each.valBox->text()));
        if (kept != each.valBox->text())
            each.valBox->setText(kept); // calls this function again with the accepted text
    }
    session.findRow[row].value = each.valBox->text();
}

void findForm::toggleAnswers(int row)
{
    const Row& each = rows[row];
    QStringList listed;
    for (int j = 1; j <= lastAnswer; ++j)
        listed.append(session.fieldListItem[fieldOf(row)][j]);
    answerHolder->toggle(*each.pullDownBut,
                         {listed, each.valBox->text(), each.valBox->geometry() | each.pullDownBut->geometry(),
                          [each](const QString& answer) { each.valBox->setText(answer); }});
}

void findForm::joinPicked(int join)
{
    QComboBox& box = *andOr[join];
    if (box.currentIndex() < 0)
        return; // the list is being filled
    session.andOr[join] = box.currentText();
    showRow(join + 1, joins(box));
    takeHeight(joins(box) ? heights[join].joined : heights[join].alone);
    const bool offered = session.andOr[0] == "and"_L1 && session.andOr[1] == " "_L1;
    if (!offered)
        vennTick->setChecked(false); // a tick out of sight must not make a Venn diagram
    vennTick->setVisible(offered);
    Logo2->setVisible(offered);
}

void findForm::showRow(int row, bool visible)
{
    rowShown[row] = visible;
    showWhatFits();
}

/// Gives the window its new height and centres it again between the screen's upper and lower edge.
void findForm::takeHeight(int twips)
{
    const QSize screen = desktop.screen.size();
    const QSize size(windowWidth, twips / session.twipsPerPixelY);
    setFixedSize(size);
    const QPoint corner((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2);
    setGeometry({isVisible() ? QPoint(geometry().left(), corner.y()) : corner, size});
    placeAnswers();
    showWhatFits();
}

/// What has no room above OK and Cancel keeps its state, but is hidden from keyboard and screen readers too.
void findForm::showWhatFits()
{
    const auto fits = [this](int top) { return top + controlHeight <= answers->y(); };
    for (int row = 0; row < 3; ++row) {
        const Row& each = rows[row];
        const bool inView = rowShown[row] && fits(rowTops[row]);
        for (QWidget* control : std::initializer_list<QWidget*>{each.fieldCombo, each.compBox, each.valBox})
            control->setVisible(inView);
        each.pullDownBut->setVisible(inView && session.fieldUseList[fieldOf(row)]);
    }
    for (int join = 0; join < 2; ++join)
        andOr[join]->setVisible(fits(joinTops[join]));
}

void findForm::mousePressEvent(QMouseEvent* event)
{
    answerHolder->putAway();
    AnswerDialog::mousePressEvent(event);
}

bool findForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        answerHolder->putAway();
    return AnswerDialog::eventFilter(watched, event);
}
