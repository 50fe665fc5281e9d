#include "platform/realDesktop.h"

#include "platform/errors.h"
#include "support/files.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;

class RealDesktop : public Fresh {
protected:
    RealDesktop() { installDesktop(); }

    ~RealDesktop() override { EXPECT_EQ(boxesSeen, boxesExpected); }

    /// Queues an action on the message box that the next call opens.
    void meanwhile(const std::function<void(QMessageBox&)>& act)
    {
        ++boxesExpected;
        QTimer::singleShot(0, qApp, [this, act] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            ++boxesSeen;
            act(*box);
            if (box->isVisible()) {
                ADD_FAILURE() << "left open";
                box->reject();
            }
        });
    }

private:
    int boxesExpected = 0;
    int boxesSeen = 0;
};

TEST_F(RealDesktop, MessagesShowTheirSignsAsTheyAre)
{
    meanwhile([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"Error"_s);
        EXPECT_EQ(box.text(), u"<b>5 < 6</b>"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s, u"<b>5 < 6</b>"_s);
}

TEST_F(RealDesktop, ChoosersChangeNothing)
{
    const QString pets = testFolder() + u"Pets"_s;
    ASSERT_TRUE(QDir().mkdir(pets));
    int seen = 0;
    const auto tryToDelete = [&pets, &seen] {
        auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(chooser);
        ++seen;
        EXPECT_TRUE(chooser->testOption(QFileDialog::ReadOnly));
        chooser->selectFile(pets);
        auto* list = chooser->findChild<QListView*>(u"listView"_s);
        QTest::keyClick(list, Qt::Key_Delete);
        QTest::keyClick(list, Qt::Key_F2);
        EXPECT_FALSE(list->indexWidget(list->currentIndex()));
        EXPECT_EQ(list->contextMenuPolicy(), Qt::NoContextMenu);
        EXPECT_FALSE(chooser->findChild<QToolButton*>(u"newFolderButton"_s)->isVisible());
        chooser->reject();
    };
    const std::function<void()> choosers[] = {
        [] { desktop.files.chooseFolder(u"Choose"_s, testFolder()); },
        [] { desktop.files.chooseFile(u"Choose"_s, testFolder(), u"All (*)"_s); },
        [] { desktop.files.choosePicture(u"Choose"_s, testFolder(), u"All (*)"_s); },
    };
    for (const auto& choose : choosers) {
        QTimer::singleShot(0, qApp, tryToDelete);
        choose();
    }
    EXPECT_EQ(seen, 3);
    EXPECT_TRUE(QDir(pets).exists());
}

TEST_F(RealDesktop, QuestionsTakeYesByReturnAndNoByEscape)
{
    for (const bool yes : {true, false}) {
        meanwhile([yes](QMessageBox& box) { QTest::keyClick(&box, yes ? Qt::Key_Return : Qt::Key_Escape); });
        EXPECT_EQ(desktop.boxes.ask(u"Confirm"_s, u"Really?"_s), yes);
    }
}

TEST_F(RealDesktop, WhatIsNotThereCannotBeStarted)
{
    const QString missing = testFolder() + u"missing"_s;
    EXPECT_EQ(errorOf([&] { desktop.programs.start(missing, {}); }), fileNotFound);
    EXPECT_EQ(errorOf([&] { desktop.programs.openDocument(missing); }), fileNotFound);
    EXPECT_NO_THROW(desktop.sound.play(missing));
}

TEST_F(RealDesktop, TheClipboardKeepsTheLastThingOnly)
{
    desktop.clipboard.copyText(u"Bär"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Bär"_s);
    desktop.clipboard.copyPicture(QImage(4, 3, QImage::Format_RGB32));
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(4, 3));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
    desktop.clipboard.clear();
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}
