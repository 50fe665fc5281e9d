#include "core/Form1.h"

#include "board/boardWidget.h"
#include "board/tablePanel.h"
#include "board/tableView.h"
#include "core/menu.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/title.h"
#include "platform/forms.h"
#include "store/settings.h"
#include "support/cards.h"
#include "support/freshStart.h"

#include <QCoreApplication>
#include <QFile>
#include <QHeaderView>
#include <QTableWidget>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindow : public Fresh {
protected:
    MainWindow()
    {
        window.resize(1000, 700);
        window.show();
        screen.setRefresh = [this](const QString& word) { refresh.append(word); };
        screen.openTeacherOptions = [this] { ++optionsOpened; };
    }

    Form1& window = form<Form1>();
    QStringList refresh;
    int optionsOpened = 0;
};

TEST_F(MainWindow, WithoutADatabaseOnlyTheFileMenuWorks)
{
    EXPECT_EQ(window.windowTitle(), titleWithoutDatabase());
    for (const QWidget* control : std::initializer_list<QWidget*>{window.btnCards, window.btnTable,
                                                                  window.PicRef, window.refreshCheck})
        EXPECT_TRUE(control->isVisible() && !control->isEnabled()) << control->objectName().toStdString();
    EXPECT_TRUE(session.MenuTop[0].enabled);
    EXPECT_FALSE(session.MenuTop[1].enabled || session.MenuTop[2].enabled || session.MenuTop[3].enabled);
    EXPECT_FALSE(window.cmdQuestion->isVisible() || window.cmdCopyGraph->isVisible() ||
                 window.tablePanel->isVisible());
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
    session.refreshCheck.enabled = true;
    window.showControls();
    for (QWidget* focused : std::initializer_list<QWidget*>{&window, window.refreshCheck}) {
        for (const auto& [letter, key, modifiers, opens] : cases) {
            optionsOpened = 0;
            refresh.clear();
            session.keysValue = QLatin1String(letter);
            QTest::keyClick(focused, key, modifiers);
            EXPECT_EQ(optionsOpened, opens ? 1 : 0) << letter << ' ' << key;
            EXPECT_EQ(refresh, opens ? QStringList(QStringLiteral("Off")) : QStringList());
        }
    }
}

TEST_F(MainWindow, TheRefreshBoxAsksAndShowsWhatCameOfIt)
{
    session.refreshCheck.enabled = true;
    window.showControls();
    QTest::mouseClick(window.refreshCheck, Qt::LeftButton, {}, {20, 15});
    EXPECT_FALSE(window.refreshCheck->isChecked()) << "nobody turned the refresh on";

    screen.setRefresh = [this](const QString& word) {
        refresh.append(word);
        session.refreshCheck.pressed = word == QLatin1String("On");
    };
    QTest::mouseClick(window.refreshCheck, Qt::LeftButton, {}, {20, 15});
    EXPECT_TRUE(window.refreshCheck->isChecked());
    QTest::keyClick(window.refreshCheck, Qt::Key_Space);
    EXPECT_FALSE(window.refreshCheck->isChecked());
    EXPECT_THAT(refresh, ElementsAre(QStringLiteral("On"), QStringLiteral("On"), QStringLiteral("Off")));
}

TEST_F(MainWindow, AnErrorInARoutineDoesNotPassTheWindowSystem)
{
    session.refreshCheck.enabled = true;
    window.showControls();
    screen.setRefresh = [](const QString&) { throw RuntimeError(pathNotFound); };
    QTest::mouseClick(window.refreshCheck, Qt::LeftButton, {}, {20, 15});
    EXPECT_THAT(recorded.messages, ElementsAre(QStringLiteral("Error|Path not found")));
    EXPECT_FALSE(window.refreshCheck->isChecked());
}

TEST_F(MainWindow, TheBoardIsTheWholeInside)
{
    window.resize(900, 600);
    EXPECT_EQ(session.boardWidth, 900);
    EXPECT_EQ(session.boardHeight, 600);
    EXPECT_EQ(window.board->size(), window.size());
    EXPECT_EQ(window.tablePanel->geometry(), QRect(0, 40, 900, 560));
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(MainWindow, AClickOnTheBandClosesTheMenu)
{
    fillMenuTables();
    QTest::mouseClick(window.menuBar->MenuTop[0], Qt::LeftButton);
    EXPECT_TRUE(session.MenuHolder.visible);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {950, 20});
    EXPECT_FALSE(session.MenuHolder.visible);
}

TEST_F(MainWindow, TheTableHasRoomForItsHeaderAndKeepsItsPlaceWhenResized)
{
    cards(QStringList(40, QStringLiteral("card")));
    for (const int height : {700, 730}) {
        window.resize(1000, height);
        screen.showTable();
        auto& grid = *window.tablePanel->findChild<QTableWidget*>();
        const int header = grid.horizontalHeader()->height();
        EXPECT_GT(header, 0);
        EXPECT_EQ(grid.rowCount(), (session.Grid.height - 12 - header) / 60) << height;
    }
    scrollTableTo(15);
    window.resize(900, 600);
    EXPECT_EQ(session.gridScroll.value, 15);
    EXPECT_EQ(session.Grid.text[1][0], QStringLiteral("16"));
}

TEST_F(MainWindow, ASizeWithoutRoomIsRefusedInWords)
{
    window.setMinimumSize(1, 1);
    window.resize(300, 30);
    EXPECT_THAT(recorded.messages,
                ElementsAre(QStringLiteral("Tallymoor|You cannot resize Tallymoor to this size!")));
}

TEST_F(MainWindow, TheTimersReadTheirOptionsOnce)
{
    EXPECT_FALSE(window.TmrShow->isActive());
    unload<Form1>();
    writeSetting(settingsFile(), QStringLiteral("DeleteCard"), QStringLiteral("Random"), QStringLiteral("0"));
    writeSetting(settingsFile(), QStringLiteral("Startup"), QStringLiteral("State"), QStringLiteral("True"));
    EXPECT_TRUE(form<Form1>().TmrShow->isActive());
    EXPECT_EQ(form<Form1>().TmrShow->interval(), 3000);
    EXPECT_TRUE(QTest::qWaitFor([] { return !form<Form1>().tmrDelCard->isActive(); }));
    EXPECT_EQ(session.txtDelRandomCard, QStringLiteral("0"));
}

TEST_F(MainWindow, ClosingItTakesTheAnswersAwayAndEveryForm)
{
    session.dbPath = testFolder() + QStringLiteral("zoo");
    QDir().mkpath(session.dbPath);
    QFile answers(session.dbPath + QStringLiteral("/Answers.txt"));
    ASSERT_TRUE(answers.open(QIODevice::WriteOnly));
    answers.close();
    window.close();
    EXPECT_FALSE(answers.exists());
    EXPECT_FALSE(isLoaded<Form1>());
    EXPECT_TRUE(session.animationStopped);
    screen.showTitle(); // a routine that still runs finds no window
    EXPECT_FALSE(isLoaded<Form1>());
}
