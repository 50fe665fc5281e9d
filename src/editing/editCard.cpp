#include "editing/editCard.h"

#include "board/droppedPicture.h"
#include "controls/balloon.h"
#include "controls/dialogParts.h"
#include "controls/fittedLabel.h"
#include "controls/pucTextTip.h"
#include "controls/typographicQuotes.h"
#include "core/mainView.h"
#include "editing/cardEntry.h"
#include "platform/desktop.h"
#include "platform/picture.h"
#include "platform/pictureFile.h"
#include "platform/values.h"
#include "store/options.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QIcon>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowsInColumn = 6;
constexpr int partsOfRow = 3;  // label, box with its button, gap
constexpr int nameWidth = 116; // of a field's label
constexpr int rowHeight = 36;
constexpr QMargins margins(11, 6, 11, 8);
constexpr int moreHeight = 48;   // where the screen has room: the rows then stand further apart
constexpr int aroundWindow = 24; // of the screen's height, for the window's frame
constexpr int columnGap = 14;    // after the first six fields
constexpr QSize monitorSize(193, 150);
constexpr QPoint screenOfMonitor(16, 14);
constexpr int answerHeight = 36; // of one line
constexpr int answersInView = 6;
constexpr QSize tipSize(230, 110);
constexpr QSize tabIcon(28, 28);

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
    , Tip1(advice("Tip1", u"Fill in what you know. A button with an arrow opens a list of answers."_s))
    , Monitor(named(pictureLabel(u"Monitor"_s, monitorSize), "Monitor"))
    , Picture1(named(new PictureBox, "Picture1"))
    , Tip2(advice("Tip2", u"Click the picture to draw it. You can also drop a picture file on it."_s))
    , FTab1(named(new QTabBar, "FTab1"))
    , Cover(new SoundCover)
    , Answers(new AnswerHolder(this, answerHeight, answersInView))
    , Timer2(named(new QTimer(this), "Timer2"))
{
    setObjectName(u"editCard"_s);
    Picture1->setAccessibleName(u"Picture of the card"_s);
    giveHint(*Picture1, u"Click here to draw/import a picture"_s);
    FTab1->addTab(u"&Card"_s);
    FTab1->addTab(u"Add/Edit &Sound"_s);
    FTab1->setTabToolTip(0, u"Card"_s);
    FTab1->setTabToolTip(1, u"Add/Edit Sound"_s);
    FTab1->setIconSize(tabIcon);
    FTab1->setTabData(0, u"card"_s);
    FTab1->setTabData(1, u"addeditsound"_s);
    Timer2->setSingleShot(true);
    Timer2->setInterval(1);

    auto* video = videoButton();
    auto* rows = new QVBoxLayout(this);
    rows->setSpacing(4);
    rows->setContentsMargins(margins);
    rows->addLayout(pictureRow());
    rows->addWidget(FTab1);
    auto* pages = new QGridLayout; // the cover is on top of the fields
    pages->addWidget(fieldRows(), 0, 0);
    pages->addWidget(Cover, 0, 0);
    Cover->hide();
    rows->addLayout(pages, 1);
    rows->addLayout(answerRow(answers, video));
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
    grid->setVerticalSpacing(2);
    for (int f = 1; f <= lastField; ++f)
        addFieldRow(*grid, f);
    grid->setColumnMinimumWidth(partsOfRow - 1, columnGap);
    return fields;
}

void editCard::addFieldRow(QGridLayout& grid, int f)
{
    fieldName[f] = element(new FittedLabel, "fieldName", f);
    fieldName[f]->setMinimumWidth(nameWidth);
    fieldName[f]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    DataBox[f] = element(new QLineEdit, "DataBox", f);
    pullDownBut[f] = element(iconButton(u"pullDown"_s), "pullDownBut", f);
    keepPlaceWhenHidden(*pullDownBut[f]); // keeps the boxes aligned
    auto* boxAndButton = new QHBoxLayout; // which touch, to be seen as one
    boxAndButton->setSpacing(0);
    boxAndButton->addWidget(DataBox[f], 1);
    boxAndButton->addWidget(pullDownBut[f]);

    const int row = (f - 1) % rowsInColumn;
    const int column = (f - 1) / rowsInColumn * partsOfRow;
    grid.setColumnStretch(column, 1);
    grid.setColumnStretch(column + 1, 2);
    grid.addWidget(fieldName[f], row, column);
    grid.addLayout(boxAndButton, row, column + 1);
    grid.setRowMinimumHeight(row, rowHeight); // also while the row is hidden
}

void editCard::connectControls()
{
    for (int f = 1; f <= lastField; ++f) {
        connect(DataBox[f], &QLineEdit::textChanged, this, [this, f] { guarded([&] { filterValue(f); }); });
        takeTypographicQuotes(DataBox[f]);
        DataBox[f]->installEventFilter(this);
        onClick(pullDownBut[f], [this, f] { toggleAnswers(f); });
    }
    onClickLater(Picture1, [this] {
        Cover->stopRecording(); // its light can't be seen from the picture editor
        mainView.openPictureEditor();
        Picture1->update();
    });
    connect(Picture1, &PictureBox::fileDropped, this, [this](const QString& file) {
        guarded([&] { paintDroppedPicture(readDroppedPicture(file)); });
        Picture1->update();
    });
    connect(FTab1, &QTabBar::currentChanged, this, [this](int tab) {
        Answers->putAway();
        Cover->setVisible(tab == 1);
        fields->setVisible(tab != 1);
    });
    connect(Cover, &SoundCover::recordingShown, this,
            [this](bool on) { FTab1->setTabIcon(1, on ? QIcon(picturePath(u"lightOn"_s)) : QIcon()); });
    connect(Timer2, &QTimer::timeout, this, [this] { guarded([this] { testLock(); }); });
    onClick(answers->ok, [this] {
        Cover->stopRecording();
        if (keepCard(Cover->Option2->isChecked()))
            leave();
    });
    onClick(answers->cancel, [] { answerAndUnload<editCard>(u"Cancel"_s); });
}

void editCard::load()
{
    session.options.soundStatus = soundStatusOf(read(option::sound));
    if (session.options.soundStatus == 0)
        FTab1->hide();
    else
        keepPlaceWhenHidden(*Cover); // it is wider than a card of few fields
}

void editCard::showCard()
{
    setWindowTitle(u"Edit Card "_s + QString::number(session.selectedCard));
    for (QWidget* part : std::initializer_list<QWidget*>{Monitor, Tip2})
        part->setVisible(session.editor.Picture1.visible); // as the picture in it
    for (int f = 1; f <= session.numFields; ++f)
        DataBox[f]->setText(session.editor.DataBox[f]);
    layoutFieldBoxes();
    const int room = desktop.screen.size().height() - aroundWindow;
    resize(sizeHint().width(), std::min(sizeHint().height() + moreHeight, room));
    Cover->showOpening(!session.editor.cardSoundFound.isEmpty());
    DataBox[1]->setFocus();
}

void editCard::layoutFieldBoxes()
{
    for (int f = 1; f <= session.maxFields; ++f) {
        const bool used = f <= session.numFields;
        const bool hasList = used && session.fieldUseList[f];
        fieldName[f]->setText(session.editor.fieldName[f]);
        fieldName[f]->setVisible(used);
        DataBox[f]->setVisible(used);
        DataBox[f]->setAccessibleName(session.editor.fieldName[f]);
        DataBox[f]->setReadOnly(hasList);
        pullDownBut[f]->setVisible(hasList);
        pullDownBut[f]->setAccessibleName(session.editor.fieldName[f] + u", list of answers"_s);
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
    session.editor.DataBox[f] = kept;
}

void editCard::toggleAnswers(int f)
{
    QStringList ready;
    for (int j = 1; j <= lastAnswer; ++j)
        ready.append(session.fieldListItem[f][j]);
    const QRect box(DataBox[f]->mapTo(this, QPoint()),
                    pullDownBut[f]->mapTo(this, pullDownBut[f]->rect().bottomRight()));
    Answers->toggle(*pullDownBut[f], {ready, DataBox[f]->text(), box,
                                      [this, f](const QString& answer) { DataBox[f]->setText(answer); }});
}

void editCard::testLock()
{
    txtDBLock = read(option::lockDatabase);
    if (txtDBLock != "1"_L1)
        return;
    answers->ok->setEnabled(false);
    Picture1->setEnabled(false);
    FTab1->setEnabled(false);
}

void editCard::leave() { unload<editCard>(); }

void editCard::hideEvent(QHideEvent* event)
{
    AnswerDialog::hideEvent(event);
    if (!event->spontaneous())
        guarded([this] { Cover->leave(); });
}

void editCard::closeEvent(QCloseEvent* event)
{
    event->accept(); // the window's close button gives no answer, whatever the picture editor gave
    session.dialogResult.clear();
    leave();
}

void editCard::mousePressEvent(QMouseEvent*) { Answers->putAway(); }

bool editCard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        Answers->putAway();
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
        ask(editor);
    });
}
