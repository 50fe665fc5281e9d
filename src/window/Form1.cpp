#include "window/Form1.h"

#include "analysis/graph.h"
#include "board/boardWidget.h"
#include "board/mode.h"
#include "board/tablePanel.h"
#include "controls/balloon.h"
#include "controls/chartView.h"
#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "core/title.h"
#include "database/loading.h"
#include "database/opening.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "window/mainSettings.h"
#include "window/onceTimers.h"
#include "window/shutDown.h"
#include "window/startValues.h"
#include "window/windowLayout.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize leastSize(700, 400);

QPushButton* modeButton(const char* name, const char* tag, const QString& pictureName,
                        const QString& spokenName)
{
    auto* button = named(iconButton(pictureName, spokenName, spokenName), name);
    button->setCheckable(true);
    button->setProperty("Tag", QLatin1String(tag));
    return button;
}

void addOnceTimer(const OnceTimer& once, QObject* parent)
{
    auto* timer = named(new QTimer(parent), once.name);
    timer->setSingleShot(true);
    timer->setInterval(once.interval);
    QObject::connect(timer, &QTimer::timeout, parent, [call = once.call] { guarded(call); });
}

void follow(QWidget& control, const ControlState& state)
{
    control.setVisible(state.visible);
    control.setEnabled(state.enabled);
    if (auto* button = qobject_cast<QAbstractButton*>(&control); button && button->isCheckable())
        button->setChecked(state.pressed);
}

/// The Latin letter printed on a key beside the one of another alphabet; empty for any other key. Scan codes
/// are those of X and Wayland.
QString latinLetterAt(quint32 scanCode)
{
    constexpr std::pair<quint32, QLatin1StringView> rows[] = {
        {24, "QWERTYUIOP"_L1}, {38, "ASDFGHJKL"_L1}, {52, "ZXCVBNM"_L1}};
    for (const auto& [first, letters] : rows) {
        if (scanCode >= first && scanCode < first + letters.size())
            return letters.sliced(qsizetype(scanCode - first), 1);
    }
    return {};
}

/// The letters that the pressed key bears.
QString lettersOf(const QKeyEvent& key)
{
    constexpr int lastLatin = 0x24f;
    QString letters = key.text();
    if (key.key() <= 0xffff) // a character, not a key such as Control itself
        letters += QChar(char16_t(key.key()));
    if (std::any_of(letters.begin(), letters.end(),
                    [](QChar c) { return c.isLetter() && c.unicode() > lastLatin; }))
        letters += latinLetterAt(key.nativeScanCode());
    return letters.toUpper();
}

/// Ctrl, Shift and the teacher's letter, without any other modifier. A key that is held down counts once.
bool opensTeacherOptions(const QKeyEvent& key)
{
    return key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && !key.isAutoRepeat() &&
           !session.options.keysValue.isEmpty() && lettersOf(key).contains(session.options.keysValue) &&
           !QApplication::activeModalWidget();
}

/// By default assistive technology takes a plain QWidget for an area; this makes the main window a window.
QAccessibleInterface* windowForReaders(const QString& className, QObject* object)
{
    return className == "Form1"_L1 ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window)
                                   : nullptr;
}

} // namespace

Form1::Form1()
    : board(named(new BoardWidget(this), "board"))
    , toolbarBlock(named(new QWidget(this), "toolbarBlock"))
    , menuBar(new MenuBar(this))
    , btnCards(modeButton("btnCards", "card", u"modeCards"_s, u"Card Mode"_s))
    , btnTable(modeButton("btnTable", "table", u"modeTable"_s, u"Table Mode"_s))
    , PicRef(named(pictureLabel(u"refresh"_s, {28, 28}), "PicRef"))
    , refreshCheck(named(new QCheckBox(u"Refresh Database"_s), "refreshCheck"))
    , cmdQuestion(named(iconButton(u"clue"_s, u"Show Clues"_s, u"Show Clues"_s), "cmdQuestion"))
    , cmdCopyGraph(named(new QPushButton(u"Copy Graph"_s), "cmdCopyGraph"))
    , tablePanel(new TablePanel(this))
    , MSChart(named(new ChartView(this), "MSChart"))
{
    QAccessible::installFactory(windowForReaders);
    setMinimumSize(leastSize);
    tablePanel->hide();
    MSChart->hide();
    fillBand();
    connectControls();
    board->setFocus(); // no heading has the focus ring before a key is pressed
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
    whenToggled(btnCards, session.window.btnCards, [this] { changeMode(*btnCards); });
    whenToggled(btnTable, session.window.btnTable, [this] { changeMode(*btnTable); });
    whenToggled(refreshCheck, session.window.refreshCheck,
                [this] { mainView.setRefresh(refreshCheck->isChecked() ? u"On"_s : u"Off"_s); });
    onClickLater(cmdQuestion, [] { mainView.showClues(); });
    onClickLater(cmdCopyGraph, [] { // by then the graph, or the program, may have gone
        if (isLoaded<Form1>() && session.window.MSChart.visible)
            copyGraph();
    });
    MSChart->pressed = closeMenu; // as on the bare board
    for (const OnceTimer& once : onceTimers())
        addOnceTimer(once, this);
    qApp->installEventFilter(this); // sees every key before the focused control
}

/// Runs the action of a button when it leaves the state that it shows: at a click, and when assistive
/// technology toggles it, which gives no click. Afterwards the button shows its state again, also after an
/// error.
void Form1::whenToggled(QAbstractButton* button, const ControlState& state,
                        const std::function<void()>& action)
{
    connect(button, &QAbstractButton::toggled, this, [this, &state, action](bool checked) {
        if (checked == state.pressed)
            return;
        if (!QGuiApplication::modalWindow()) // assistive technology reaches the button, a mouse wouldn't
            guarded(action);
        showControls();
    });
}

/// Changes the mode and reloads the folder, after a click on a mode button.
void Form1::changeMode(const QPushButton& button)
{
    if (session.menu.MenuHolder.visible)
        closeMenu(); // assistive technology has pressed the button
    loadAllCards();
    session.graph.graphOnScreen = 0;
    session.window.btnCards.pressed = &button == btnCards;
    session.window.btnTable.pressed = &button == btnTable;
    session.window.cmdCopyGraph.visible = false;
    setMode(button.property("Tag").toString());
}

void Form1::load()
{
    setControlsAtStart();
    setTitle(titleWithoutDatabase());
    desktop.screen.setBusyPointer(false);
    loadMainSettings();
    if (session.options.txtShow == "True"_L1)
        startTimer("TmrShow");
    startTimer("tmrDelCard");
    showControls();
}

void Form1::startTimer(const char* name) { findChild<QTimer*>(QLatin1StringView(name))->start(); }

void Form1::layoutWindow()
{
    try {
        const WindowLayout place = windowLayout(size(), desktop.screen.size().width());
        toolbarBlock->setGeometry(place.toolbarBlock);
        tablePanel->setGeometry(place.tablePanel);
        MSChart->setGeometry(place.MSChart);
        tablePanel->layOut(place.Grid, place.gridScroll);
    } catch (const RuntimeError&) {
        desktop.boxes.showMessage(MessageIcon::exclamation, u"Tallymoor"_s,
                                  u"You cannot resize Tallymoor to this size!"_s);
    }
}

void Form1::showControls()
{
    menuBar->showState();
    follow(*btnCards, session.window.btnCards);
    follow(*btnTable, session.window.btnTable);
    follow(*PicRef, session.window.PicRef);
    follow(*refreshCheck, session.window.refreshCheck);
    follow(*cmdQuestion, session.window.cmdQuestion);
    follow(*cmdCopyGraph, session.window.cmdCopyGraph);
    follow(*tablePanel, session.table.panel);
    showChart();
}

/// A chart that becomes visible gets the focus, so that a screen reader announces it; the board gets it back.
void Form1::showChart()
{
    const bool comes = session.window.MSChart.visible && !MSChart->isVisible();
    const bool goes = !session.window.MSChart.visible && focusWidget() == MSChart;
    if (session.window.MSChart.visible)
        MSChart->setChart(session.graph.chart);
    follow(*MSChart, session.window.MSChart);
    if (comes)
        MSChart->setFocus();
    else if (goes)
        board->setFocus();
}

void Form1::resizeEvent(QResizeEvent*)
{
    board->resize(size());
    session.board.width = width();
    session.board.height = height();
    guarded([this] { layoutWindow(); });
}

/// A click in the band beside its controls counts as a click on the empty board.
void Form1::mouseReleaseEvent(QMouseEvent*) { guarded(closeMenu); }

void Form1::closeEvent(QCloseEvent* event)
{
    guarded(shutDown);
    event->accept();
}

/// Whether a press on that control closes an open menu. The board handles presses on itself.
bool Form1::closesMenu(const QWidget& pressed) const
{
    const auto isIn = [&pressed](const QWidget* whole) {
        return whole == &pressed || whole->isAncestorOf(&pressed);
    };
    return session.menu.MenuHolder.visible && (isIn(toolbarBlock) || isIn(tablePanel)) && !isIn(menuBar);
}

bool Form1::eventFilter(QObject* watched, QEvent* event)
{
    auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonPress && control && closesMenu(*control))
        guarded(closeMenu);
    if (event->type() != QEvent::KeyPress || !control || control->window() != this ||
        !opensTeacherOptions(*static_cast<QKeyEvent*>(event)))
        return false;
    guarded([] {
        mainView.setRefresh(u"Off"_s);
        abandonRun(); // the cards stay where they are
        mainView.openTeacherOptions();
    });
    return true;
}
