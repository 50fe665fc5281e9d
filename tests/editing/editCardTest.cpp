// The card editor: cards are opened and added by their routines and filled in with keys and mouse.
#include "editing/editCard.h"

#include "controls/fittedLabel.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "database/loading.h"
#include "editing/cardEntry.h"
#include "platform/pictureFile.h"
#include "store/cardFiles.h"
#include "store/descriptionFile.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "support/files.h"
#include "support/smallDisk.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QTabBar>

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int patience = 10000; // milliseconds

class EditingCards : public Fresh {
protected:
    EditingCards()
    {
        session.dbPath = testFolder() + u"db"_s;
        QDir().mkpath(session.dbPath);
        session.numFields = 3;
        session.fieldName[1] = u"Name"_s;
        session.fieldName[2] = u"Legs"_s;
        session.fieldType[2] = u"123"_s;
        session.fieldName[3] = u"Colour"_s;
        session.fieldUseList[3] = true;
        session.fieldListItem[3][1] = u"red"_s;
        session.fieldListItem[3][3] = u"blue"_s;
        session.cardSize = 1;
        writeDbInfo();
        putCard("AAAAAAAA", {"Ant", "6", "red"}, Qt::red);
        putCard("CCCCCCCC", {"Cat", "4", "blue"}, Qt::blue);
        loadAllCards();
        mainView.openCard = openCardEditor;
    }

    static void putCard(const QByteArray& id, const QList<QByteArray>& values, const QColor& colour)
    {
        const QString base = session.dbPath + u'/' + QString::fromLatin1(id);
        putFile(base + u".tcd"_s, "\"01000100\"\r\n\"" + values.join("\"\r\n\"") + "\"\r\n");
        putFile(base + u".bmp"_s, bitmapBytes(plain({159, 120}, colour)));
    }

    static QByteArray record(const char* id)
    {
        return bytesOf(session.dbPath + u'/' + QLatin1String(id) + u".tcd"_s);
    }

    /// Prepares the pupil's actions in the editor; they have to close it.
    static void pupil(const std::function<void(editCard&)>& act)
    {
        inDialog<editCard>([act](editCard& editor) {
            act(editor);
            EXPECT_FALSE(editor.isVisible());
        });
    }

    static void type(editCard& editor, int f, const QString& text)
    {
        editor.DataBox[f]->setFocus();
        editor.DataBox[f]->selectAll();
        QTest::keyClicks(editor.DataBox[f], text);
    }

    static void setting(const char* section, const QString& status)
    {
        writeSetting(settingsFile(), QLatin1String(section), u"Status"_s, status);
    }
};

} // namespace

TEST_F(EditingCards, TwelveFieldsStandInTwoColumnsOfSix)
{
    session.numFields = 12;
    setting("Sound", u"1"_s);
    pupil([](editCard& editor) {
        EXPECT_TRUE(editor.FTab1->isVisible());
        for (const QPushButton* button : editor.findChildren<QPushButton*>())
            EXPECT_TRUE(!button->isVisible() || button->height() >= button->sizeHint().height())
                << button->objectName().toStdString() << " is squeezed";
        for (int f = 1; f <= 6; ++f) {
            EXPECT_EQ(editor.DataBox[f]->x(), editor.DataBox[1]->x());
            EXPECT_EQ(editor.DataBox[f]->y(), editor.DataBox[f + 6]->y());
            EXPECT_GT(editor.fieldName[f + 6]->x(), editor.pullDownBut[f]->geometry().right());
        }
        press(editor, "cancel_but");
    });
    openCardEditor(1);
}

TEST_F(EditingCards, FiltersWhatIsTyped)
{
    struct Case {
        int field;
        const char* typed;
        const char* kept;
    };
    const Case cases[] = {
        {2, "1-2", "12"},
        {2, "1.2.3", "1.2.3"},
        {2, "three 3", "3"},
        {1, "1-2 \"x\"", "1-2 “x”"},
    };
    pupil([&](editCard& editor) {
        for (const Case& c : cases) {
            type(editor, c.field, QLatin1String(c.typed));
            EXPECT_EQ(editor.DataBox[c.field]->text(), QString::fromUtf8(c.kept));
        }
        EXPECT_EQ(recorded.beeps, 0);
        editor.DataBox[2]->setText(u"1234"_s);
        editor.DataBox[2]->setCursorPosition(2);
        QTest::keyClicks(editor.DataBox[2], u"x9"_s);
        EXPECT_EQ(editor.DataBox[2]->text(), u"12934"_s);

        editor.DataBox[1]->setText(QString(200, u'W')); // text set by code is filtered too
        const qsizetype most = editor.DataBox[1]->text().size();
        EXPECT_EQ(recorded.beeps, 1);
        EXPECT_THAT(int(most), testing::AllOf(testing::Gt(10), testing::Lt(20)));
        editor.DataBox[1]->setCursorPosition(0);
        QTest::keyClicks(editor.DataBox[1], u"W"_s);
        EXPECT_EQ(recorded.beeps, 2);
        EXPECT_EQ(editor.DataBox[1]->text(), QString(most, u'W'));
        EXPECT_EQ(editor.DataBox[1]->cursorPosition(), most);
        press(editor, "cancel_but");
    });
    openCardEditor(1);
}

TEST_F(EditingCards, AnAnswerIsPickedFromTheListByMouseAndByKeys)
{
    session.fieldUseList[1] = true;
    session.fieldListItem[1][12] = u"last"_s;
    session.fieldListItem[3][3] = u"black & blue"_s;
    pupil([](editCard& editor) {
        AnswerHolder& list = *editor.Answers;
        const auto line = [&](int j) { return list.findChild<QPushButton*>(u"possAnswer%1"_s.arg(j)); };
        QTest::keyClicks(editor.DataBox[3], u"green"_s);
        EXPECT_EQ(editor.DataBox[3]->text(), u"red"_s); // locked

        press(editor, "pullDownBut1");
        press(editor, "pullDownBut3");
        EXPECT_TRUE(editor.rect().contains(list.geometry())) << "above the box where there is no room below";
        EXPECT_TRUE(list.isVisible());
        press(editor, "pullDownBut3");
        EXPECT_FALSE(list.isVisible());

        press(editor, "pullDownBut3");
        EXPECT_TRUE(line(3)->shortcut().isEmpty());
        QTest::mouseClick(line(3), Qt::LeftButton);
        EXPECT_EQ(editor.DataBox[3]->text(), u"black & blue"_s);
        EXPECT_FALSE(list.isVisible());

        editor.DataBox[3]->setFocus();
        QTest::keyClick(editor.DataBox[3], Qt::Key_Down);
        EXPECT_EQ(editor.focusWidget(), line(3)) << "the present value";
        QTest::keyClick(editor.focusWidget(), Qt::Key_Up);
        EXPECT_EQ(editor.focusWidget(), line(2)); // an empty row keeps its place
        QTest::keyClick(editor.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(editor.DataBox[3]->text(), QString());

        press(editor, "pullDownBut1");
        for (int j = 2; j <= 12; ++j)
            QTest::keyClick(editor.focusWidget(), Qt::Key_Down);
        EXPECT_FALSE(line(12)->visibleRegion().isEmpty()); // all twelve can be scrolled into view
        QTest::keyClick(editor.focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(list.isVisible());
        EXPECT_TRUE(editor.isVisible());
        press(editor, "pullDownBut1");
        QTest::mouseClick(&editor, Qt::LeftButton, {}, QPoint(2, 2));
        EXPECT_FALSE(list.isVisible());
        press(editor, "cancel_but");
    });
    openCardEditor(1);
}

TEST_F(EditingCards, ADroppedPictureFillsTheFrameAndAWrongOneChangesNothing)
{
    ASSERT_TRUE(plain({600, 30}, Qt::green).save(inTestFolder(u"wide.png"_s)));
    putFile(inTestFolder(u"story.txt"_s), "Once upon a time");
    pupil([&](editCard& editor) {
        dropFile(*editor.Picture1, inTestFolder(u"wide.png"_s));
        dropFile(*editor.Picture1, inTestFolder(u"story.txt"_s));
        EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Invalid picture"_s));
        press(editor, "ok_but");
    });
    openCardEditor(1);
    const QImage kept = readPicture(cardPicturePath(1));
    EXPECT_EQ(kept.size(), QSize(159, 120));
    EXPECT_EQ(kept.pixelColor(0, 0), QColor(Qt::green));
    EXPECT_EQ(kept.pixelColor(158, 119), QColor(Qt::green));
}

TEST_F(EditingCards, ALockedDatabaseCanBeLookedAtOnly)
{
    setting("LockDB", u"1"_s);
    setting("Sound", u"1"_s);
    pupil([](editCard& editor) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !editor.findChild<QPushButton*>(u"ok_but"_s)->isEnabled(); },
                                    patience));
        EXPECT_FALSE(editor.Picture1->isEnabled());
        EXPECT_FALSE(editor.FTab1->isEnabled());
        QTest::keyClick(editor.DataBox[1], Qt::Key_Return);
        EXPECT_TRUE(editor.isVisible());
        press(editor, "cancel_but");
    });
    openCardEditor(1);
}

TEST_F(EditingCards, StripsHaveNoPicture)
{
    session.cardSize = 2;
    writeDbInfo();
    QFile::remove(cardPicturePath(1));
    pupil([](editCard& editor) {
        EXPECT_FALSE(editor.Picture1->isVisible());
        press(editor, "ok_but");
    });
    openCardEditor(1);
    EXPECT_FALSE(QFile::exists(cardPicturePath(1)));
    EXPECT_THAT(recorded.messages, IsEmpty());
}

TEST_F(EditingCards, AMissingPictureIsToldAndTheEditorOpensAllTheSame)
{
    QFile::remove(cardPicturePath(1));
    pupil([](editCard& editor) { press(editor, "cancel_but"); });
    openCardEditor(1);
    EXPECT_THAT(recorded.messages, ElementsAre(u"Error|File not found"_s));
    openCardEditor(101);
    EXPECT_EQ(recorded.messages.last(), u"Error|Subscript out of range"_s);
}

TEST_F(EditingCards, CancelTakesTheNewCardBackAndTheFrameKeepsIt)
{
    pupil([](editCard& editor) { press(editor, "cancel_but"); });
    addCard();
    EXPECT_EQ(session.numCards, 2);
    EXPECT_FALSE(session.box[3].visible);
    EXPECT_EQ(session.selectedCard, 2);
    EXPECT_TRUE(QFile::exists(session.dbPath + u"/NNNNNNNN.bmp"_s));

    pupil([](editCard& editor) { editor.close(); });
    addCard();
    EXPECT_EQ(session.numCards, 3);
    EXPECT_EQ(record("NNNNNNNN"), QByteArray());
    EXPECT_EQ(session.dialogResult, QString());
    session.numCards = session.maxCards;
    addCard();
    EXPECT_EQ(session.numCards, 99) << "no editor opens for a hundredth card";
}

TEST_F(EditingCards, OnAFullDiskTheEditorStaysWithAllThatWasTypedUntilOKWorks)
{
    const SmallDisk disk(192 << 10);
    if (!disk.isThere())
        GTEST_SKIP() << "no small disk can be mounted here";
    for (const QString& file : QDir(session.dbPath).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(session.dbPath + u'/' + file, disk.path() + u'/' + file));
    session.dbPath = disk.path();
    loadAllCards();
    disk.leaveFree(0);
    const QByteArray before = record("AAAAAAAA");
    const QByteArray pictureBefore = bytesOf(cardPicturePath(1));

    pupil([&](editCard& editor) {
        type(editor, 1, u"Beetle"_s);
        session.editor.Picture1.image.fill(Qt::yellow);
        press(editor, "ok_but");
        EXPECT_TRUE(editor.isVisible());
        EXPECT_EQ(editor.DataBox[1]->text(), u"Beetle"_s);
        EXPECT_THAT(recorded.messages, ElementsAre(u"Error|Disk full"_s));
        EXPECT_EQ(record("AAAAAAAA"), before);
        EXPECT_EQ(bytesOf(cardPicturePath(1)), pictureBefore);
        EXPECT_EQ(session.cardValue[1][1], u"Ant"_s);
        disk.leaveFree(128 << 10);
        press(editor, "ok_but");
    });
    openCardEditor(1);
    EXPECT_EQ(session.dialogResult, u"OK"_s);
    EXPECT_TRUE(record("AAAAAAAA").contains("Beetle"));
    EXPECT_EQ(readPicture(cardPicturePath(1)).pixelColor(0, 0), QColor(Qt::yellow));
}
