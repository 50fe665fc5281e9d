#include "board/boardVoice.h"

#include "board/boardWidget.h"
#include "board/places.h"
#include "core/mainView.h"
#include "support/files.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::Pair;

namespace {

class BoardForAssistiveTechnology : public Fresh {
protected:
    BoardForAssistiveTechnology()
    {
        board.resize(1000, 700);
        mainView.redrawBoard = [this] { board.repaintBoard(); };
        mainView.redrawCard = [this](int card) { board.repaintCard(card); };
        for (int card = 1; card <= 3; ++card) {
            session.box[card] = {card * 100.4, 200.6, 80, 60, {}, u"Card %1"_s.arg(card), true, {}};
            session.cardId[card] = u"CARDAAA%1"_s.arg(card);
        }
        session.numCards = 3;
        board.show();
        QCoreApplication::processEvents();
        mainView.redrawBoard();
        board.voice.tell = [this](int item, QAccessible::Event news) { told.push_back({item, news}); };
    }

    QAccessibleInterface& list() { return *QAccessible::queryAccessibleInterface(&board); }
    QStringList names()
    {
        QStringList all;
        for (int i = 0; i < list().childCount(); ++i)
            all.append(list().child(i)->text(QAccessible::Name));
        return all;
    }
    void act(int child, const char* action)
    {
        list().child(child)->actionInterface()->doAction(QLatin1String(action));
        QCoreApplication::processEvents();
    }
    BoardWidget board;
    std::vector<std::pair<int, QAccessible::Event>> told;
};

} // namespace

TEST_F(BoardForAssistiveTechnology, IsAListOfItsCardsWithNamesAndPlaces)
{
    session.box[2].visible = false;
    EXPECT_EQ(list().role(), QAccessible::List);
    EXPECT_EQ(list().text(QAccessible::Name), u"Board"_s);
    EXPECT_EQ(names(), QStringList({"Card 1", "Card 3"}));
    QAccessibleInterface* third = list().child(1);
    EXPECT_EQ(third->role(), QAccessible::ListItem);
    EXPECT_EQ(third->rect(), QRect(board.mapToGlobal(QPoint(301, 201)), QSize(80, 60)));
    EXPECT_EQ(list().childAt(third->rect().center().x(), third->rect().center().y()), third);
    EXPECT_EQ(list().indexOfChild(third), 1);
    EXPECT_EQ(third->parent(), &list());
    EXPECT_EQ(list().child(2), nullptr);
}

TEST_F(BoardForAssistiveTechnology, TellsWhatComesGoesAndIsRenamed)
{
    names();
    session.box[2].visible = false;
    mainView.redrawCard(2);
    session.box[3].tooltip = u"Nanny"_s;
    session.box[2].visible = true;
    mainView.redrawBoard();
    EXPECT_THAT(told, ElementsAre(Pair(2, QAccessible::ObjectDestroyed), Pair(2, QAccessible::ObjectCreated),
                                  Pair(3, QAccessible::NameChanged)));
    EXPECT_EQ(names(), QStringList({"Card 1", "Card 2", "Nanny"}));

    told.clear();
    session.box[1].left += 20; // a step of a flight sends no notification
    mainView.redrawCard(1);
    EXPECT_TRUE(told.empty());
}

TEST_F(BoardForAssistiveTechnology, AnnouncesTheSelectedCard)
{
    QApplication::setActiveWindow(&board);
    board.setFocus();
    session.selectedCard = 2;
    markCard(2);
    EXPECT_THAT(told, ElementsAre(Pair(2, QAccessible::Selection), Pair(2, QAccessible::Focus)));
    EXPECT_TRUE(list().child(1)->state().selected);
    EXPECT_FALSE(list().child(0)->state().selected);
    EXPECT_TRUE(list().child(1)->state().focused);
    EXPECT_EQ(list().focusChild(), list().child(1));

    session.board.SelectBox.visible = false; // as after a click on the empty board
    mainView.redrawBoard();
    EXPECT_FALSE(list().child(1)->state().selected);
    session.table.panel.visible = true; // covers the board
    mainView.redrawBoard();
    EXPECT_EQ(list().childCount(), 0);
}

TEST_F(BoardForAssistiveTechnology, DoesWithoutAMouseWhatAMouseDoes)
{
    QStringList done;
    mainView.setRefresh = [&](const QString& word) { done.append(word); };
    mainView.openCard = [&](int card) { done.append(QString::number(card)); };
    mainView.cardDropped = [&](int card) { done.append(u"dropped %1"_s.arg(card)); };
    EXPECT_EQ(list().child(0)->actionInterface()->actionNames(), QStringList({"select", "edit", "play"}));
    act(0, "select");
    EXPECT_EQ(session.selectedCard, 1);
    EXPECT_EQ(session.board.SelectBox.left, session.box[1].left - 2);
    EXPECT_EQ(session.cardStack.fromBelow().back(), 1);
    act(2, "edit");
    EXPECT_EQ(done, QStringList({"Off", "3"}));
    QDialog editor;
    editor.setModal(true);
    editor.show();
    act(2, "edit");
    EXPECT_EQ(done.size(), 2) << "there is an editor already";
    editor.close();

    session.dbPath = testFolder().chopped(1);
    putFile(inTestFolder(u"CARDAAA2.snd"_s), "sound");
    act(1, "play");
    EXPECT_EQ(recorded.played.size(), 1);

    session.board.BigBin = {{600, 300, 128, 150, true}, false};
    session.board.searchTitle = {u"Wings"_s, 10, 600, 80, 20, true};
    mainView.redrawBoard();
    EXPECT_EQ(names(), QStringList({"Card 1", "Card 2", "Card 3", "Bin", "Wings"}));
    act(1, "delete");
    EXPECT_EQ(QPointF(session.box[2].left, session.box[2].top), QPointF(624, 345)) << "laid on the bin";
    act(3, "close");
    EXPECT_FALSE(session.board.BigBin.visible);
    EXPECT_EQ(done, QStringList({"Off", "3", "dropped 2"}));
}
