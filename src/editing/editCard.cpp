#include "editing/editCard.h"

#include "board/droppedPicture.h"
#include "core/screen.h"
#include "editing/cardEditor.h"
#include "guidance/pucTextTip.h"
#include "platform/balloon.h"
#include "platform/dialogParts.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "platform/pictureFile.h"
#include "platform/values.h"
#include "store/settings.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QTabBar>

namespace {

constexpr int rowsInColumn = 6;
constexpr int partsOfRow = 3;  // label, box, button
constexpr int nameWidth = 140; // of a field's label
constexpr QSize monitorSize(193, 150);
constexpr QPoint screenOfMonitor(16, 14);
constexpr int answerHeight = 36; // of a line of the list
constexpr int listGap = 1;       // between a box and its list
constexpr QSize tipSize(230, 110);

/// The element f of a group of controls is called by the group's name and f.
template <class Control>
Control* element(Control* control, const char* group, int f)
{
    return named(control, qPrintable(QLatin1String(group) + QString::number(f)));
}

pucTextTip* advice(const char* name, const QString& text)
{
    auto* tip = new pucTextTip(QLatin1String(name));
    named(tip, name)->setText(text);
    tip->setFixedSize(tipSize);
    return tip;
}

} // namespace

editCard::editCard()
    : AnswerDialog(new AnswerButtons)
    , Tip1(advice("Tip1",
                  QStringLiteral("Fill in what you know. A button with an arrow opens a list of answers.")))
    , Monitor(named(pictureLabel(QStringLiteral("Monitor"), monitorSize), "Monitor"))
    , Picture1(named(new PictureBox, "Picture1"))
    , Tip2(advice("Tip2",
                  QStringLiteral("This is the picture of the card. You can drop a picture file on it.")))
    , FTab1(named(new QTabBar, "FTab1"))
    , Cover(new SoundCover)
    , Answers(new AnswerHolder(this, answerHeight))
    , Timer2(named(new QTimer(this), "Timer2"))
{
    setObjectName(QStringLiteral("editCard"));
    Picture1->setAccessibleName(QStringLiteral("Picture of the card"));
    giveHint(*Picture1, QStringLiteral("Click here to draw/import a picture"));
    FTab1->addTab(QStringLiteral("&Card"));
    FTab1->addTab(QStringLiteral("Add/Edit &Sound"));
    FTab1->setTabToolTip(0, QStringLiteral("Card"));
    FTab1->setTabToolTip(1, QStringLiteral("Add/Edit Sound"));
    FTab1->setTabData(0, QStringLiteral("card"));
    FTab1->setTabData(1, QStringLiteral("addeditsound"));
    Timer2->setSingleShot(true);
    Timer2->setInterval(1);

    auto* lowest = new QHBoxLayout;
    lowest->addWidget(answers);
    lowest->addStretch();
    auto* video = videoButton(QStringLiteral("Entering Data"));
    lowest->addWidget(video);

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(pictureRow());
    rows->addWidget(FTab1);
    auto* pages = new QGridLayout; // the cover lies over the fields
    pages->addWidget(fieldRows(), 0, 0);
    pages->addWidget(Cover, 0, 0);
    Cover->hide();
    rows->addLayout(pages, 1);
    rows->addLayout(lowest);
    setTabOrder(answers->cancel, video);
    connectControls();
}

QLayout* editCard::pictureRow()
{
    Monitor->setFixedSize(monitorSize);
    Picture1->setParent(Monitor);
    Picture1->move(screenOfMonitor);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(Tip1);
    row->addWidget(Monitor);
    row->addWidget(Tip2);
    row->addStretch();
    return row;
}

QWidget* editCard::fieldRows()
{
    fields = named(new QWidget, "fields");
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);
    for (int f = 1; f <= lastField; ++f)
        addFieldRow(*grid, f);
    return fields;
}

void editCard::addFieldRow(QGridLayout& grid, int f)
{
    fieldName[f] = element(new FittedLabel, "fieldName", f);
    fieldName[f]->setMinimumWidth(nameWidth);
    fieldName[f]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    DataBox[f] = element(new QLineEdit, "DataBox", f);
    pullDownBut[f] =
        element(new QPushButton(QIcon(picturePath(QStringLiteral("pullDown"))), QString()), "pullDownBut", f);
    QSizePolicy place = pullDownBut[f]->sizePolicy();
    place.setRetainSizeWhenHidden(true); // the boxes stay in line
    pullDownBut[f]->setSizePolicy(place);

    const int row = (f - 1) % rowsInColumn;
    int column = (f - 1) / rowsInColumn * partsOfRow;
    grid.setColumnStretch(column, 1);
    grid.setColumnStretch(column + 1, 2);
    for (QWidget* part : std::initializer_list<QWidget*>{fieldName[f], DataBox[f], pullDownBut[f]})
        grid.addWidget(part, row, column++);
    grid.setRowMinimumHeight(row, pullDownBut[f]->sizeHint().height()); // also while the row is hidden
}

void editCard::connectControls()
{
    for (int f = 1; f <= lastField; ++f) {
        connect(DataBox[f], &QLineEdit::textChanged, this, [this, f] { guarded([&] { filterValue(f); }); });
        DataBox[f]->installEventFilter(this);
        onClick(pullDownBut[f], [this, f] { toggleAnswers(f); });
    }
    Answers->picked = [this](const QString& answer) { DataBox[answersOf]->setText(answer); };
    Answers->installEventFilter(this);
    onClick(Picture1, [] { ::screen.openPictureEditor(); });
    connect(Picture1, &PictureBox::fileDropped, this, [this](const QString& file) {
        guarded([&] { paintDroppedPicture(readPicture(file)); });
        Picture1->update();
    });
    connect(FTab1, &QTabBar::currentChanged, this, [this](int tab) {
        closeAnswers();
        Cover->setVisible(tab == 1);
        fields->setVisible(tab != 1);
    });
    connect(Timer2, &QTimer::timeout, this, [this] { guarded([this] { testLock(); }); });
    onClick(answers->ok, [this] {
        keepCard();
        leave();
    });
    onClick(answers->cancel, [this] {
        session.dialogResult = QStringLiteral("Cancel");
        leave();
    });
}

void editCard::load()
{
    const double soundStatus = leadingNumber(
        readSetting(settingsFile(), QStringLiteral("Sound"), QStringLiteral("Status"), QStringLiteral("0")));
    if (soundStatus == 0)
        FTab1->hide();
}

void editCard::showCard()
{
    setWindowTitle(QStringLiteral("Edit Card ") + QString::number(session.selectedCard));
    for (QWidget* part : std::initializer_list<QWidget*>{Monitor, Tip2})
        part->setVisible(session.Picture1.visible); // with the picture in it
    for (int f = 1; f <= session.numFields; ++f)
        DataBox[f]->setText(session.DataBox[f]);
    layoutFieldBoxes();
    Cover->showOpening(!session.cardSoundFound.isEmpty());
    DataBox[1]->setFocus();
}

void editCard::layoutFieldBoxes()
{
    for (int f = 1; f <= session.maxFields; ++f) {
        const bool used = f <= session.numFields;
        const bool hasList = used && session.fieldUseList[f];
        fieldName[f]->setText(session.editorFieldName[f]);
        fieldName[f]->setVisible(used);
        DataBox[f]->setVisible(used);
        DataBox[f]->setAccessibleName(session.editorFieldName[f]);
        DataBox[f]->setReadOnly(hasList);
        pullDownBut[f]->setVisible(hasList);
        pullDownBut[f]->setAccessibleName(session.editorFieldName[f] + QStringLiteral(", list of answers"));
    }
    Timer2->start();
}

void editCard::filterValue(int f)
{
    const QString text = DataBox[f]->text();
    const QString fitting = fittingValue(text);
    const qsizetype caret = fitting == text ? DataBox[f]->cursorPosition() : fitting.size();
    const QString kept = allowedValue(f, fitting);
    if (kept != text) {
        DataBox[f]->setText(kept);
        DataBox[f]->setCursorPosition(int(allowedValue(f, fitting.left(caret)).size()));
    }
    session.DataBox[f] = kept;
}

void editCard::toggleAnswers(int f)
{
    if (Answers->isVisible() && answersOf == f) {
        Answers->hide();
        return;
    }
    answersOf = f;
    QStringList ready;
    for (int j = 1; j <= AnswerHolder::lines; ++j)
        ready.append(session.fieldListItem[f][j]);
    Answers->setAnswers(ready);
    const QRect box(DataBox[f]->mapTo(this, QPoint()),
                    pullDownBut[f]->mapTo(this, pullDownBut[f]->rect().bottomRight()));
    Answers->resize(box.width(), Answers->height());
    int top = box.bottom() + listGap;
    if (top + Answers->height() > height()) // above the box where there is no room below
        top = std::max(0, box.top() - listGap - Answers->height());
    Answers->openAt({box.left(), top});
}

void editCard::closeAnswers()
{
    answersOf = 0;
    Answers->hide();
}

void editCard::testLock()
{
    txtDBLock =
        readSetting(settingsFile(), QStringLiteral("LockDB"), QStringLiteral("Status"), QStringLiteral("0"));
    if (txtDBLock != QLatin1String("1"))
        return;
    answers->ok->setEnabled(false);
    Picture1->setEnabled(false);
    FTab1->setEnabled(false);
}

void editCard::leave() { unload<editCard>(); }

void editCard::closeEvent(QCloseEvent* event)
{
    event->accept(); // the frame's close box answers nothing
    leave();
}

void editCard::mousePressEvent(QMouseEvent*) { closeAnswers(); }

bool editCard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Answers) {
        if (event->type() == QEvent::Hide && answersOf > 0)
            pullDownBut[answersOf]->setFocus();
        return false;
    }
    if (event->type() == QEvent::FocusIn)
        closeAnswers();
    const int f = int(std::find(DataBox.begin(), DataBox.end(), watched) - DataBox.begin());
    const bool asks =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (!asks || !session.fieldUseList[f])
        return false;
    guarded([&] { toggleAnswers(f); });
    return true;
}

void openCardEditor(int card)
{
    withErrorBox([card] {
        fillEditor(card);
        auto& editor = form<editCard>();
        editor.showCard();
        showModal(editor);
    });
}
