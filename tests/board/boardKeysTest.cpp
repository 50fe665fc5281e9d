#include "board/boardKeys.h"

#include "core/mainView.h"
#include "support/cards.h"
#include "support/freshStart.h"

class BoardKeys : public Fresh {
protected:
    /// Three in a row, a fourth below the second, and a fifth right under that one.
    BoardKeys()
    {
        cards({"a", "b", "c", "d", "e"});
        const QPointF places[] = {{20, 60}, {120, 70}, {320, 50}, {130, 300}, {130, 300}};
        for (int card = 1; card <= 5; ++card) {
            session.box[card].left = places[card - 1].x();
            session.box[card].top = places[card - 1].y();
        }
        session.selectedCard = 1;
        mainView.openCard = [this](int card) { opened.push_back(card); };
        mainView.cardDropped = [this](int card) { dropped.push_back(card); };
    }
    std::vector<int> opened;
    std::vector<int> dropped;
};

TEST_F(BoardKeys, WalkOpenAndAskAtTheBin)
{
    struct {
        int key;
        int selected;
    } const walk[] = {{Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Right, 3},
                      {Qt::Key_Right, 3}, {Qt::Key_Left, 2},  {Qt::Key_Down, 4},
                      {Qt::Key_Down, 5},  {Qt::Key_Up, 4},    {Qt::Key_Up, 2}};
    for (const auto& [key, selected] : walk) { // the first only marks the card
        EXPECT_TRUE(pressBoardKey(key, false));
        EXPECT_EQ(session.selectedCard, selected);
    }
    EXPECT_TRUE(pressBoardKey(Qt::Key_Return, false));
    EXPECT_TRUE(pressBoardKey(Qt::Key_Delete, false)); // no bin
    session.board.BigBin.visible = true;
    EXPECT_TRUE(pressBoardKey(Qt::Key_Delete, false));
    EXPECT_FALSE(pressBoardKey(Qt::Key_A, false));
    EXPECT_EQ(opened, std::vector<int>{2});
    EXPECT_EQ(dropped, std::vector<int>{2});
}

TEST_F(BoardKeys, MoveTheCardAndNotBeyondTheBoard)
{
    pressBoardKey(Qt::Key_Left, false);
    for (const double left : {10.0, 0.0, 0.0}) {
        EXPECT_TRUE(pressBoardKey(Qt::Key_Left, true));
        EXPECT_EQ(session.box[1].left, left);
    }
    EXPECT_FALSE(session.cardValue[1][0].isEmpty());
    EXPECT_EQ(session.board.SelectBox.left, -2);
}
