#include "board/boardWidget.h"

#include "core/mainView.h"
#include "support/files.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPointingDevice>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

/// Records the regions of a widget's paint events.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            paints.push_back(static_cast<QPaintEvent*>(event)->region());
        return false;
    }
    std::vector<QRegion> paints;
};

class Board : public Fresh {
protected:
    Board()
    {
        board.resize(1000, 700);
        mainView.redrawBoard = [this] { board.repaintBoard(); };
        mainView.redrawCard = [this](int card) { board.repaintCard(card); };
        mainView.openCard = [this](int card) { opened.push_back(card); };
        mainView.cardDropped = [this](int card) { dropped.push_back(card); };
        mainView.setRefresh = [this](const QString& word) { refresh.append(word); };
        mainView.showHint = [this](const QString& text) { hints.append(text); };
        mainView.hideHints = [this] { ++hidden; };
        lay(1, {100, 100}, Qt::red);
        lay(2, {300, 200}, Qt::green);
        lay(3, {140, 130}, Qt::blue); // over a corner of card 1
        board.show();
        QCoreApplication::processEvents();
    }

    void lay(int card, QPointF at, Qt::GlobalColor colour)
    {
        session.box[card] = {at.x(), at.y(), 80, 60, plain({80, 60}, colour), u"Card <%1>"_s.arg(card),
                             true,   {}};
        session.cardId[card] = u"CARDAAA%1"_s.arg(card);
        session.numCards = std::max(session.numCards, card);
    }

    void move(QPointF to, Qt::MouseButtons held = Qt::NoButton)
    {
        QMouseEvent event(QEvent::MouseMove, to, board.mapToGlobal(to), Qt::NoButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&board, &event);
    }
    void press(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        sendButton(QEvent::MouseButtonPress, at, button, button);
    }
    void release(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        sendButton(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void drag(QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton)
    {
        move(from);
        press(from, button);
        move((from + to) / 2, button);
        move(to, button);
        release(to, button);
    }
    QColor colourAt(int x, int y) { return board.grab().toImage().pixelColor(x, y); }
    QString tipAt(QPoint at)
    {
        QHelpEvent event(QEvent::ToolTip, at, board.mapToGlobal(at));
        QCoreApplication::sendEvent(&board, &event);
        return QToolTip::text();
    }

    BoardWidget board;
    std::vector<int> opened, dropped;
    QStringList refresh, hints;
    int hidden = 0;

private:
    void sendButton(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, at, board.mapToGlobal(at), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&board, &event);
    }
};

} // namespace

TEST_F(Board, IsPaintedFromTheBackgroundUpToTheFrame)
{
    session.board.colour = u"65535"_s; // yellow
    session.backgroundImage = plain({80, 60}, Qt::cyan);
    session.board.borderColour = u"255"_s;
    session.board.SelectBox = {298, 198, 84, 64, true};
    const struct {
        int x, y;
        QColor colour;
    } cases[] = {{500, 500, Qt::yellow}, {10, 10, Qt::cyan},  {110, 110, Qt::red},  {150, 140, Qt::blue},
                 {320, 220, Qt::green},  {299, 199, Qt::red}, {300, 200, Qt::green}};
    for (const auto& c : cases)
        EXPECT_EQ(colourAt(c.x, c.y), c.colour) << c.x << ' ' << c.y;
    session.cardStack.bringToFront(1);
    session.box[2].visible = false;
    EXPECT_EQ(colourAt(150, 140), QColor(Qt::red));
    EXPECT_EQ(colourAt(320, 220), QColor(Qt::yellow));
}

TEST_F(Board, ShowsCaptionsAndCirclesUnderTheCards)
{
    session.board.colour = u"16777215"_s;
    const QImage before = board.grab().toImage();
    session.board.VennLeftCircle = {500, 300, 200, 200, true};
    session.board.searchTitle = {u"Wings"_s, 600, 600, 80, 20, true};
    session.board.VennBox = {290, 190, 100, 100, true}; // behind card 2
    const QImage after = board.grab().toImage();
    EXPECT_NE(after.pixel(501, 400), before.pixel(501, 400)) << "the circle's line";
    EXPECT_EQ(after.pixel(502, 302), before.pixel(502, 302)) << "outside the circle";
    EXPECT_NE(after.copy(600, 600, 80, 20), before.copy(600, 600, 80, 20));
    EXPECT_NE(after.pixel(291, 250), before.pixel(291, 250));
    EXPECT_EQ(after.copy(300, 200, 80, 60), before.copy(300, 200, 80, 60));
}

TEST_F(Board, PaintsSeldomerThanCardsMoveAndWhereTheyWereAndAre)
{
    const PaintWatch watch(board);
    constexpr int rounds = 1000;
    for (int round = 0; round < rounds; ++round) {
        session.box[2].left += 0.4;
        mainView.redrawCard(2);
        QCoreApplication::processEvents();
    }
    EXPECT_LT(watch.paints.size(), rounds / 2);
    EXPECT_EQ(watch.paints[0], QRegion(300, 200, 80, 60));
    const QRect last(700, 200, 80, 60);
    ASSERT_TRUE(QTest::qWaitFor([&] { return watch.paints.back().contains(last); }));
    session.box[2].left = 300;
    mainView.redrawCard(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return watch.paints.back() == (QRegion(300, 200, 80, 60) | last); }));
}

TEST_F(Board, PressingACardSelectsItAndADragWithAnyButtonMovesItWithoutBound)
{
    press({310, 215});
    EXPECT_EQ(session.selectedCard, 2);
    EXPECT_EQ(session.box[2].cursor, CardCursor::handClosed);
    EXPECT_EQ(QPointF(session.board.dragOffsetX, session.board.dragOffsetY), QPointF(150, 225)) << "twips";
    EXPECT_TRUE(session.board.SelectBox.visible);
    release({310, 215});
    EXPECT_EQ(session.box[2].cursor, CardCursor::handOpen);
    EXPECT_EQ(session.cardValue[2][0], u"03000200"_s) << "without any movement too";
    EXPECT_THAT(dropped, ElementsAre(2));
    EXPECT_TRUE(recorded.played.isEmpty());

    drag({310, 215}, {980, 5}, Qt::MiddleButton);
    EXPECT_EQ(QPointF(session.box[2].left, session.box[2].top), QPointF(970, -10));
    EXPECT_EQ(QPointF(session.board.SelectBox.left, session.board.SelectBox.top), QPointF(968, -12));
    EXPECT_EQ(session.cardValue[2][0], u"0970-0010"_s);
}

TEST_F(Board, ACardIsRaisedByMerelyPassingOverIt)
{
    EXPECT_EQ(colourAt(150, 140), QColor(Qt::blue));
    move({110, 110});
    EXPECT_EQ(session.cardStack.fromBelow().back(), 1);
    EXPECT_EQ(colourAt(150, 140), QColor(Qt::red));
    EXPECT_EQ(session.selectedCard, 0);
    press({150, 140});
    EXPECT_EQ(session.selectedCard, 1);
}

TEST_F(Board, ADoubleClickTurnsTheRefreshOffAndOpensTheEditor)
{
    mainView.openCard = [this](int card) {
        EXPECT_EQ(refresh, QStringList(u"Off"_s));
        opened.push_back(card);
        throw RuntimeError(fileNotFound); // must not propagate into Qt
    };
    QTest::mouseDClick(&board, Qt::LeftButton, {}, {310, 215});
    EXPECT_THAT(opened, ElementsAre(2));
    EXPECT_EQ(recorded.messages, QStringList(u"Error|File not found"_s));
    QTest::mouseDClick(&board, Qt::LeftButton, {}, {600, 600});
    EXPECT_THAT(opened, ElementsAre(2));
}

TEST_F(Board, AClickOnTheBareBoardClosesTheMenuAndHidesTheFrame)
{
    session.menu.openMenuIndex = 2;
    session.menu.MenuHolder.visible = session.board.SelectBox.visible = true;
    session.selectedCard = 3;
    QTest::mouseClick(&board, Qt::LeftButton, {}, {600, 600});
    EXPECT_EQ(session.menu.openMenuIndex, -1);
    EXPECT_FALSE(session.menu.MenuHolder.visible || session.board.SelectBox.visible);
    EXPECT_EQ(session.selectedCard, 3);
}

TEST_F(Board, TheBinIsDraggedExplainsItselfAndClosesByItsLid)
{
    session.board.BigBin = {{600, 300, 128, 150, true}, false};
    move({660, 430});
    EXPECT_EQ(hints, QStringList(u"Click and drag the bin anywhere on the screen , Click on the "
                                 "lid to close it"_s));
    drag({660, 430}, {260, 380});
    EXPECT_EQ(session.board.BigBin.left, 200);
    EXPECT_EQ(session.board.BigBin.top, 250);
    EXPECT_TRUE(dropped.empty());

    press({320, 240}); // card 2 lies over the bin
    EXPECT_EQ(session.selectedCard, 2);
    release({320, 240});

    hidden = 0;
    press({250, 260});
    EXPECT_TRUE(session.board.BigBin.lidPressed);
    EXPECT_TRUE(session.board.BigBin.visible);
    release({250, 260});
    EXPECT_FALSE(session.board.BigBin.visible || session.board.BigBin.lidPressed);
    EXPECT_GT(hidden, 0);
}

TEST_F(Board, ACardWithASoundShowsItAtThePointerAskingTheFolderOnceAPass)
{
    session.dbPath = testFolder().chopped(1);
    const QString sound = inTestFolder(u"CARDAAA2.snd"_s);
    putFile(sound, "RIFF");
    const auto cursorBecomes = [](CardCursor cursor) {
        return QTest::qWaitFor([cursor] { return session.box[2].cursor == cursor; });
    };
    move({310, 215});
    EXPECT_TRUE(cursorBecomes(CardCursor::cardSound));
    QFile::remove(sound);
    press({310, 215});
    EXPECT_EQ(session.box[2].cursor, CardCursor::handClosed);
    move({320, 215}, Qt::LeftButton);
    EXPECT_EQ(session.box[2].cursor, CardCursor::cardSound) << "remembered during the pass";
    release({320, 215});
    move({320, 600});
    move({320, 215});
    EXPECT_TRUE(cursorBecomes(CardCursor::handOpen));
}

TEST_F(Board, TellsTheLabelOfTheTopmostCardAsPlainText)
{
    EXPECT_EQ(tipAt({150, 140}), u"<p>Card &lt;3&gt;</p>"_s);
    for (const QPoint& bare : {QPoint(310, 215), QPoint(600, 600)}) {
        session.box[2].tooltip.clear();
        tipAt(bare);
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    }
}

TEST_F(Board, ADragEndsWhenAReloadGivesTheNumberToAnotherCard)
{
    press({310, 215});
    session.cardId[2] = u"OTHERONE"_s;
    move({600, 600}, Qt::LeftButton);
    EXPECT_EQ(session.box[2].left, 300);
}

TEST_F(Board, AFingerDragsHearsAndOpensCards)
{
    const std::unique_ptr<QPointingDevice> screenDevice(QTest::createTouchDevice());
    auto touch = [&] { return QTest::touchEvent(&board, screenDevice.get()); };
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0); // the next press must not count as a double click
    touch().press(0, QPoint(310, 215), &board);
    touch().move(0, QPoint(330, 225), &board);
    touch().move(0, QPoint(510, 415), &board);
    touch().release(0, QPoint(510, 415), &board);
    EXPECT_EQ(session.box[2].left, 500);
    EXPECT_EQ(session.box[2].top, 400);
    EXPECT_THAT(dropped, ElementsAre(2));

    putFile(inTestFolder(u"CARDAAA2.snd"_s), "sound");
    session.dbPath = testFolder();
    touch().press(0, QPoint(510, 415), &board);
    EXPECT_TRUE(QTest::qWaitFor([] { return !recorded.played.isEmpty(); })) << "the finger rests";
    touch().release(0, QPoint(510, 415), &board);
    EXPECT_EQ(recorded.played.size(), 1);

    QApplication::setDoubleClickInterval(interval);
    for (int tap = 0; tap < 2; ++tap) {
        touch().press(0, QPoint(510, 415), &board);
        touch().release(0, QPoint(510, 415), &board);
    }
    EXPECT_THAT(opened, ElementsAre(2));
}
