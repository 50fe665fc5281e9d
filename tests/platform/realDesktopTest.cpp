#include "platform/realDesktop.h"

#include "platform/errors.h"
#include "support/freshStart.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class RealDesktop : public Fresh {
protected:
    RealDesktop() { installDesktop(); }

    /// Acts on the message box that the next call opens.
    static void meanwhile(const std::function<void(QMessageBox&)>& act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            act(*box);
            if (box->isVisible()) {
                ADD_FAILURE() << "left open";
                box->reject();
            }
        });
    }
};

TEST_F(RealDesktop, MessagesShowTheirSignsAsTheyAre)
{
    meanwhile([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Error"));
        EXPECT_EQ(box.text(), QStringLiteral("<b>5 < 6</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    desktop.showMessage(MessageIcon::stop, QStringLiteral("Error"), QStringLiteral("<b>5 < 6</b>"));
}

TEST_F(RealDesktop, QuestionsTakeYesByReturnAndNoByEscape)
{
    for (const bool yes : {true, false}) {
        meanwhile([yes](QMessageBox& box) { QTest::keyClick(&box, yes ? Qt::Key_Return : Qt::Key_Escape); });
        EXPECT_EQ(desktop.ask(QStringLiteral("Confirm"), QStringLiteral("Really?")), yes);
    }
}

TEST_F(RealDesktop, WhatIsNotThereCannotBeStarted)
{
    const auto number = [](const std::function<void()>& routine) {
        try {
            routine();
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    };
    const QString missing = testFolder() + QStringLiteral("missing");
    EXPECT_EQ(number([&] { desktop.startProgram(missing, {}); }), fileNotFound);
    EXPECT_EQ(number([&] { desktop.openDocument(missing); }), fileNotFound);
    EXPECT_NO_THROW(desktop.playSound(missing));
}

TEST_F(RealDesktop, TheClipboardKeepsTheLastThingOnly)
{
    desktop.copyText(QStringLiteral("Bär"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Bär"));
    desktop.copyPicture(QImage(4, 3, QImage::Format_RGB32));
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(4, 3));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
    desktop.clearClipboard();
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}
