#include "window/Form1.h"
#include "window/assembly.h"

#include "board/boardWidget.h"
#include "board/mode.h"
#include "board/tablePanel.h"
#include "board/tableView.h"
#include "controls/chartView.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "core/title.h"
#include "store/settings.h"
#include "support/cards.h"
#include "support/database.h"
#include "support/freshStart.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QFile>
#include <QHeaderView>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindow : public Fresh {
protected:
    MainWindow()
    {
        window.resize(1000, 700);
        window.show();
        mainView.setRefresh = [this](const QString& word) { refresh.append(word); };
        mainView.openTeacherOptions = [this] { ++optionsOpened; };
    }

    Form1& window = (connectHooks(), form<Form1>());
    QStringList refresh;
    int optionsOpened = 0;
};

/// As a screen reader does it.
static void toggleByReader(QWidget& control)
{
    QAccessible::queryAccessibleInterface(&control)->actionInterface()->doAction(
        QAccessibleActionInterface::toggleAction());
}

TEST_F(MainWindow, WithoutADatabaseOnlyTheFileMenuWorks)
{
    EXPECT_EQ(window.windowTitle(), titleWithoutDatabase());
    for (const QWidget* control : std::initializer_list<QWidget*>{window.btnCards, window.btnTable,
                                                                  window.PicRef, window.refreshCheck})
        EXPECT_TRUE(control->isVisible() && !control->isEnabled()) << control->objectName().toStdString();
    EXPECT_TRUE(session.menu.MenuTop[0].enabled);
    EXPECT_FALSE(session.menu.MenuTop[1].enabled || session.menu.MenuTop[2].enabled ||
                 session.menu.MenuTop[3].enabled);
    EXPECT_FALSE(window.cmdQuestion->isVisible() || window.cmdCopyGraph->isVisible() ||
                 window.tablePanel->isVisible());
}

TEST_F(MainWindow, AClickOnTheTableOrAModeButtonClosesTheMenu)
{
    setMode(u"table"_s);
    session.window.btnCards.enabled = true;
    for (QWidget* place :
         {window.findChild<QTableWidget*>()->viewport(), static_cast<QWidget*>(window.btnCards)}) {
        openMenu(0);
        QTest::mousePress(place, Qt::LeftButton);
        EXPECT_FALSE(window.menuBar->MenuHolder->isVisible()) << place->objectName().toStdString();
    }
}

TEST_F(MainWindow, OnlyTheTeachersChordOpensTheOptionsAndItStopsTheRefresh)
{
    const Qt::KeyboardModifiers chord = Qt::ControlModifier | Qt::ShiftModifier;
    const std::vector<std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers, bool>> cases = {
        {"K", Qt::Key_K, chord, true},
        {"K", Qt::Key_Q, chord, false},
        {"Q", Qt::Key_Q, chord, true},
        {"q", Qt::Key_Q, chord, false},
        {"K", Qt::Key_K, Qt::ControlModifier, false},
        {"K", Qt::Key_K, Qt::ShiftModifier, false},
        {"K", Qt::Key_K, chord | Qt::AltModifier, false},
        {"", Qt::Key_K, chord, false},
    };
    session.window.refreshCheck.enabled = true;
    window.showControls();
    for (QWidget* focused : std::initializer_list<QWidget*>{&window, window.refreshCheck}) {
        for (const auto& [letter, key, modifiers, opens] : cases) {
            optionsOpened = 0;
            refresh.clear();
            session.options.keysValue = QLatin1String(letter);
            QTest::keyClick(focused, key, modifiers);
            EXPECT_EQ(optionsOpened, opens ? 1 : 0) << letter << ' ' << key;
            EXPECT_EQ(refresh, opens ? QStringList(u"Off"_s) : QStringList());
        }
    }
}

TEST_F(MainWindow, TheRefreshBoxAsksAndShowsWhatCameOfIt)
{
    session.window.refreshCheck.enabled = true;
    window.showControls();
    const auto click = [this] { QTest::mouseClick(window.refreshCheck, Qt::LeftButton, {}, {20, 15}); };
    click();
    EXPECT_FALSE(window.refreshCheck->isChecked()) << "nobody turned the refresh on";
    mainView.setRefresh = [this](const QString& word) {
        refresh.append(word);
        session.window.refreshCheck.pressed = word == "On"_L1;
    };
    click();
    EXPECT_TRUE(window.refreshCheck->isChecked());
    QTest::keyClick(window.refreshCheck, Qt::Key_Space);
    EXPECT_FALSE(window.refreshCheck->isChecked());
    EXPECT_THAT(refresh, ElementsAre(u"On"_s, u"On"_s, u"Off"_s));

    toggleByReader(*window.refreshCheck);
    EXPECT_TRUE(window.refreshCheck->isChecked());
    EXPECT_EQ(refresh.last(), u"On"_s);

    window.refreshCheck->setChecked(false);
    mainView.setRefresh = [](const QString&) { throw RuntimeError(pathNotFound); }; // must not enter Qt
    click();
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Path not found"_s));
    EXPECT_FALSE(window.refreshCheck->isChecked());
}

TEST_F(MainWindow, AssistiveTechnologyChangesTheModeAsAClickDoes)
{
    session.dbPath = writeDatabase(u"class"_s, 2);
    session.window.btnCards = {true, true, true};
    session.window.btnTable = {true, true, false};
    window.showControls();
    toggleByReader(*window.btnTable);
    EXPECT_TRUE(session.table.panel.visible);
    EXPECT_EQ(session.numCards, 2) << "the folder was read";
    EXPECT_FALSE(window.btnCards->isChecked());
    toggleByReader(*window.btnCards);
    EXPECT_FALSE(session.table.panel.visible);
    EXPECT_TRUE(window.btnCards->isChecked());
}

TEST_F(MainWindow, TheBoardIsTheWholeInsideAndTheBandClosesTheMenu)
{
    window.resize(900, 600);
    EXPECT_EQ(QSizeF(session.board.width, session.board.height), QSizeF(900, 600));
    EXPECT_EQ(window.board->size(), window.size());
    EXPECT_EQ(window.tablePanel->geometry(), QRect(0, 40, 900, 560));
    EXPECT_THAT(recorded.messages, IsEmpty());
    openMenu(0);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {850, 20});
    EXPECT_FALSE(session.menu.MenuHolder.visible);
}

TEST_F(MainWindow, TheTableHasRoomForItsHeaderAndKeepsItsPlaceWhenResized)
{
    cards(QStringList(40, u"card"_s));
    for (const int height : {700, 730}) {
        window.resize(1000, height);
        mainView.showTable();
        auto& grid = *window.tablePanel->findChild<QTableWidget*>();
        const int header = grid.horizontalHeader()->height();
        EXPECT_GT(header, 0);
        EXPECT_EQ(grid.rowCount(), (session.table.Grid.height - 12 - header) / 60) << height;
    }
    scrollTableTo(15);
    window.resize(900, 600);
    EXPECT_EQ(session.table.gridScroll.value, 15);
    EXPECT_EQ(session.table.Grid.text[1][0], u"16"_s);
}

TEST_F(MainWindow, ASizeWithoutRoomIsRefusedInWords)
{
    window.setMinimumSize(1, 1);
    window.resize(300, 30);
    EXPECT_THAT(recorded.messages, ElementsAre(u"Tallymoor|You cannot resize Tallymoor to this size!"_s));
}

TEST_F(MainWindow, TheTimersReadTheirOptionsOnce)
{
    const auto timer = [](const char* name) { return form<Form1>().findChild<QTimer*>(QLatin1String(name)); };
    EXPECT_FALSE(timer("TmrShow")->isActive());
    unload<Form1>();
    writeSetting(settingsFile(), u"DeleteCard"_s, u"Random"_s, u"0"_s);
    writeSetting(settingsFile(), u"Startup"_s, u"State"_s, u"True"_s);
    EXPECT_TRUE(timer("TmrShow")->isActive());
    EXPECT_EQ(timer("TmrShow")->interval(), 3000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer("tmrDelCard")->isActive(); }));
    EXPECT_EQ(session.options.txtDelRandomCard, u"0"_s);
}

TEST_F(MainWindow, ClosingItTakesTheAnswersAwayAndEveryForm)
{
    session.dbPath = writeDatabase(u"zoo"_s, 0);
    QFile answers(session.dbPath + u"/Answers.txt"_s);
    ASSERT_TRUE(answers.open(QIODevice::WriteOnly));
    answers.close();
    window.close();
    EXPECT_FALSE(answers.exists());
    EXPECT_FALSE(isLoaded<Form1>());
    EXPECT_TRUE(session.run.stopped);
    mainView.showTitle(); // a routine that still runs after the window has gone
    EXPECT_FALSE(isLoaded<Form1>());
}

TEST_F(MainWindow, TheChartCoversTheBoardAndGoesWithTheMode)
{
    cards({u"cat"_s});
    session.graph.chart.setCounts(1, 1);
    session.graph.chart.setRowLabel(1, u"cat"_s);
    session.graph.chart.setData(1, 1, u"5"_s);
    session.window.MSChart.visible = session.window.cmdCopyGraph.visible = true;
    mainView.showControls();
    mainView.redrawBoard();
    EXPECT_TRUE(window.MSChart->isVisible() && window.cmdCopyGraph->isVisible());
    EXPECT_EQ(window.focusWidget(), window.MSChart);
    EXPECT_EQ(window.childAt(500, 400), window.MSChart);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(window.board)->childCount(), 0)
        << "nothing beneath is read out";
    EXPECT_EQ(mainView.chartPicture().size(), window.MSChart->size() * 2);

    openMenu(2);
    QTest::mouseClick(window.MSChart, Qt::LeftButton);
    EXPECT_FALSE(session.menu.MenuHolder.visible);
    window.resize(800, 500);
    EXPECT_EQ(window.MSChart->geometry(), QRect(0, 40, 800, 460));

    session.board.groupTitle[12] = {u"cats"_s, 10, 600, 80, 20, true};
    session.board.VennBox.visible = true;
    session.options.BCol = u"255"_s;
    setMode(u"card"_s);
    EXPECT_FALSE(window.MSChart->isVisible() || window.cmdCopyGraph->isVisible());
    EXPECT_FALSE(session.board.groupTitle[12].visible || session.board.VennBox.visible);
    EXPECT_EQ(session.board.colour, u"255"_s);
    EXPECT_EQ(window.focusWidget(), window.board);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(window.board)->childCount(), 1);
}
