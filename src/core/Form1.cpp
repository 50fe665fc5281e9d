#include "core/Form1.h"

#include "board/boardWidget.h"
#include "board/mode.h"
#include "board/tablePanel.h"
#include "core/mainSettings.h"
#include "core/menu.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/shutDown.h"
#include "core/startValues.h"
#include "core/title.h"
#include "core/windowLayout.h"
#include "platform/balloon.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "store/loading.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>

namespace {

constexpr QSize leastSize(700, 400);

QPushButton* bandButton(const char* name, const QString& pictureName, const QString& spokenName)
{
    auto* button = named(new QPushButton, name);
    button->setIcon(QIcon(picturePath(pictureName)));
    button->setAccessibleName(spokenName);
    giveHint(*button, spokenName);
    return button;
}

QPushButton* modeButton(const char* name, const char* tag, const QString& pictureName,
                        const QString& spokenName)
{
    auto* button = bandButton(name, pictureName, spokenName);
    button->setCheckable(true);
    button->setProperty("Tag", QLatin1String(tag));
    return button;
}

QTimer* onceTimer(const char* name, int interval, QObject* parent)
{
    auto* timer = named(new QTimer(parent), name);
    timer->setSingleShot(true);
    timer->setInterval(interval);
    return timer;
}

void follow(QWidget& control, const ControlState& state)
{
    control.setVisible(state.visible);
    control.setEnabled(state.enabled);
    if (auto* button = qobject_cast<QAbstractButton*>(&control); button && button->isCheckable())
        button->setChecked(state.pressed);
}

/// Ctrl and Shift with the teacher's letter, and no other key held.
bool opensTeacherOptions(const QKeyEvent& key)
{
    return key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) &&
           key.key() <= 0xffff && // a character, not a key such as Control itself
           QString(QChar(char16_t(key.key()))).toUpper() == session.keysValue;
}

/// A plain widget counts as a mere area for assistive technology: tells that it is the program's window.
QAccessibleInterface* windowForReaders(const QString& className, QObject* object)
{
    return className == QLatin1String("Form1")
               ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window)
               : nullptr;
}

} // namespace

Form1::Form1()
    : board(named(new BoardWidget(this), "board"))
    , toolbarBlock(named(new QWidget(this), "toolbarBlock"))
    , menuBar(new MenuBar(this))
    , btnCards(modeButton("btnCards", "card", QStringLiteral("modeCards"), QStringLiteral("Card Mode")))
    , btnTable(modeButton("btnTable", "table", QStringLiteral("modeTable"), QStringLiteral("Table Mode")))
    , PicRef(named(pictureLabel(QStringLiteral("refresh"), {28, 28}), "PicRef"))
    , refreshCheck(named(new QCheckBox(QStringLiteral("Refresh Database")), "refreshCheck"))
    , cmdQuestion(bandButton("cmdQuestion", QStringLiteral("clue"), QStringLiteral("Show Clues")))
    , cmdCopyGraph(named(new QPushButton(QStringLiteral("Copy Graph")), "cmdCopyGraph"))
    , tablePanel(new TablePanel(this))
    , tmrDelCard(onceTimer("tmrDelCard", 2, this))
    , TmrShow(onceTimer("TmrShow", 3000, this))
{
    QAccessible::installFactory(windowForReaders);
    setMinimumSize(leastSize);
    tablePanel->hide();
    fillBand();
    connectControls();
    board->setFocus(); // no heading wears the focus ring before a key was pressed
}

void Form1::fillBand()
{
    auto* row = new QHBoxLayout(toolbarBlock);
    row->setContentsMargins({});
    row->addWidget(menuBar);
    for (QWidget* control :
         std::initializer_list<QWidget*>{btnCards, btnTable, PicRef, refreshCheck, cmdQuestion, cmdCopyGraph})
        row->addWidget(control);
    row->addStretch();
}

void Form1::connectControls()
{
    for (QPushButton* button : {btnCards, btnTable})
        connect(button, &QPushButton::clicked, this, [this, button] {
            guarded([this, button] { changeMode(*button); });
            showControls(); // a button whose view couldn't be read springs back
        });
    onClick(refreshCheck, [this] {
        ::screen.setRefresh(refreshCheck->isChecked() ? QStringLiteral("On") : QStringLiteral("Off"));
    });
    connect(refreshCheck, &QCheckBox::clicked, this, &Form1::showControls); // whatever came of it
    onClick(cmdQuestion, [] { ::screen.showClues(); });
    connect(tmrDelCard, &QTimer::timeout, this, [] { guarded(rereadDeleteOption); });
    qApp->installEventFilter(this); // the window sees every key before the control that has the focus
}

/// A pupil's click on a mode button reads the folder again.
void Form1::changeMode(const QPushButton& button)
{
    loadAllCards();
    session.graphOnScreen = 0;
    session.btnCards.pressed = &button == btnCards;
    session.btnTable.pressed = &button == btnTable;
    session.cmdCopyGraph.visible = false;
    setMode(button.property("Tag").toString());
}

void Form1::load()
{
    assemble();
    setControlsAtStart();
    setTitle(titleWithoutDatabase());
    desktop.setBusyPointer(false);
    loadMainSettings();
    if (session.txtShow == QLatin1String("True"))
        TmrShow->start();
    tmrDelCard->start();
    showControls();
}

void Form1::layoutWindow()
{
    try {
        const WindowLayout place = windowLayout(size(), desktop.screenSize().width());
        toolbarBlock->setGeometry(place.toolbarBlock);
        tablePanel->setGeometry(place.tablePanel);
        tablePanel->layOut(place.Grid, place.gridScroll);
    } catch (const RuntimeError&) {
        desktop.showMessage(MessageIcon::exclamation, QStringLiteral("Tallymoor"),
                            QStringLiteral("You cannot resize Tallymoor to this size!"));
    }
}

void Form1::showControls()
{
    menuBar->showState();
    follow(*btnCards, session.btnCards);
    follow(*btnTable, session.btnTable);
    follow(*PicRef, session.PicRef);
    follow(*refreshCheck, session.refreshCheck);
    follow(*cmdQuestion, session.cmdQuestion);
    follow(*cmdCopyGraph, session.cmdCopyGraph);
    follow(*tablePanel, session.tablePanel);
}

void Form1::resizeEvent(QResizeEvent*)
{
    board->resize(size());
    session.boardWidth = width();
    session.boardHeight = height();
    guarded([this] { layoutWindow(); });
}

/// A click beside the controls of the band is one on the bare board.
void Form1::mouseReleaseEvent(QMouseEvent*) { guarded(closeMenu); }

void Form1::closeEvent(QCloseEvent* event)
{
    guarded(shutDown);
    event->accept();
}

bool Form1::eventFilter(QObject* watched, QEvent* event)
{
    auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || !control || control->window() != this ||
        !opensTeacherOptions(*static_cast<QKeyEvent*>(event)))
        return false;
    guarded([] {
        ::screen.setRefresh(QStringLiteral("Off"));
        ::screen.openTeacherOptions();
    });
    return true;
}
