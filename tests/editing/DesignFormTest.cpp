#include "editing/DesignForm.h"

#include "editing/designCommand.h"
#include "editing/frmRemind.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "store/descriptionFile.h"
#include "store/settings.h"
#include "support/files.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

namespace {

void setting(const char* section, const char* value)
{
    writeSetting(settingsFile(), QLatin1String(section), QStringLiteral("Status"), QLatin1String(value));
}

QString setting(const char* section)
{
    return readSetting(settingsFile(), QLatin1String(section), QStringLiteral("Status"),
                       QStringLiteral("absent"));
}

/// Clicks a button and lets what that has put off happen.
void press(QPushButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::processEvents();
}

QPushButton* button(const DesignForm& dialog, const char* name)
{
    return dialog.findChild<QPushButton*>(QLatin1String(name));
}

/// Presses the letter of a button's caption; the button shows itself pressed for a moment before it acts.
bool pressLetter(QDialog& dialog, Qt::Key letter, const std::function<bool()>& done)
{
    QTest::keyClick(&dialog, letter, Qt::AltModifier);
    return QTest::qWaitFor(done);
}

} // namespace

class Design : public Fresh {
protected:
    Design()
    {
        session.dbPath = testFolder().chopped(1);
        session.menuItemState[1][1] = QStringLiteral("Show");
    }

    /// Runs the command with a pupil who does this in the dialog.
    static void design(const std::function<void(DesignForm&)>& step)
    {
        recorded.dialogSteps.push_front([step](QDialog& dialog) { step(dynamic_cast<DesignForm&>(dialog)); });
        designCommand();
    }

    static QByteArray description() { return bytesOf(inTestFolder(QStringLiteral("db-info.tdb"))); }
};

TEST_F(Design, TwoQuickClicksOpenOneDialog)
{
    modalLoop = [](QDialog& dialog) {
        dialog.setModal(true);
        dialog.show();
        if (auto* design = qobject_cast<DesignForm*>(&dialog)) {
            design->EditFieldBut[1]->click();
            design->EditFieldBut[1]->click();
        } else {
            recorded.started.append(dialog.windowTitle());
        }
        QCoreApplication::processEvents();
        dialog.hide();
    };
    designCommand();
    EXPECT_EQ(recorded.started, QStringList(QStringLiteral("Field Details")));
}

TEST_F(Design, AnotherSizeRedrawsTheCardsOnceTheDialogIsLeft)
{
    session.cardSize = 1;
    design([](DesignForm& dialog) {
        EXPECT_TRUE(dialog.cardSizeRadio[1]->isChecked());
        EXPECT_TRUE(pressLetter(dialog, Qt::Key_T, [] { return session.cardSize == 2; }));
        EXPECT_EQ(session.cardHeight, 60);
        press(button(dialog, "cancel_but"));
    });
    EXPECT_EQ(session.cardHeight, 24);
    EXPECT_TRUE(description().contains("\r\n 2 \r\n"));
    session.shrinkdummy.height = 99;
    design([](DesignForm&) {});
    EXPECT_EQ(session.shrinkdummy.height, 99) << "not redrawn for the same size";
}

TEST_F(Design, TheReadOnlyTickBecomesTheStatusByOkOnly)
{
    design([](DesignForm& dialog) {
        EXPECT_TRUE(pressLetter(dialog, Qt::Key_R, [] { return session.designReadOnly; }));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(session.databaseStatus, QStringLiteral("RW"));
    EXPECT_EQ(setting("Database"), QStringLiteral("absent"));

    design([](DesignForm& dialog) {
        EXPECT_FALSE(dialog.ChkRD->isChecked()) << "the tick was cancelled";
        dialog.ChkRD->click();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(session.dialogResult, QStringLiteral("OK"));
    EXPECT_EQ(setting("Database"), QStringLiteral("RO"));
    EXPECT_TRUE(description().endsWith("RO\r\nVER=\"1.1.0\"\r\n"));
    EXPECT_EQ(session.menuItemState[1][1], QStringLiteral("Show")) << "until it is opened again";

    setting("RO", "RO");
    design([](DesignForm& dialog) {
        EXPECT_FALSE(dialog.ChkRD->isEnabled());
        EXPECT_FALSE(dialog.LblRO->isEnabled());
        QTest::mouseClick(dialog.ChkRD, Qt::LeftButton);
        EXPECT_TRUE(dialog.ChkRD->isChecked());
    });
}

TEST_F(Design, TheReminderComesWhenItIsWantedAndCanBeEnded)
{
    const auto confirm = [](DesignForm& dialog) { press(button(dialog, "ok_but")); };
    design(confirm);
    setting("Remind", "1");
    for (const bool again : {true, false}) {
        recorded.beeps = 0;
        recorded.dialogSteps.push_front([again](QDialog& dialog) {
            auto& reminder = dynamic_cast<frmRemind&>(dialog);
            reminder.ChkRemind->setChecked(!again);
            QTest::keyClick(&reminder, Qt::Key_Return);
        });
        design(confirm);
        EXPECT_EQ(recorded.beeps, 1);
        EXPECT_EQ(setting("Remind"), again ? QStringLiteral("1") : QStringLiteral("0"));
    }
    design(confirm);
}

TEST_F(Design, ACancelledNewDoesNotEmptyTheDatabaseThatIsStillOpen)
{
    session.fieldName[1] = QStringLiteral("Pet");
    session.cardSize = 1;
    writeDbInfo();
    const QByteArray before = description();
    resetFieldTable();
    session.fieldTableForgotten = true;
    design([](DesignForm& dialog) { EXPECT_EQ(dialog.fieldName[1]->text(), QStringLiteral("Pet")); });
    EXPECT_EQ(description(), before);
    session.fieldName[1] = QStringLiteral("changed");
    design([](DesignForm&) {});
    EXPECT_EQ(session.fieldName[1], QStringLiteral("changed")) << "read once";
}

TEST_F(Design, AFolderThatVanishedIsToldAndTheSessionStays)
{
    session.dbPath = inTestFolder(QStringLiteral("gone"));
    design([](DesignForm& dialog) { press(dialog.spinUp); });
    EXPECT_EQ(recorded.messages, QStringList(QStringLiteral("Error|Path not found")));
    EXPECT_EQ(session.numFields, 4);
}

TEST_F(Design, AVideoThatIsNotThereIsPassedOver)
{
    desktop.startProgram = [](const QString& path, const QStringList&) {
        recorded.started.append(path);
        throw RuntimeError(fileNotFound);
    };
    design([](DesignForm& dialog) { press(button(dialog, "BtnVid")); });
    EXPECT_EQ(recorded.started, QStringList(inTestFolder(QStringLiteral("Videos/Newdb.exe"))));
    EXPECT_TRUE(recorded.messages.isEmpty());
}

TEST_F(Design, IsWholeOnASmallScreenAndReachedByKeysWithEveryField)
{
    session.numFields = 12;
    for (int f = 1; f <= 12; ++f) {
        session.fieldUseList[f] = true;
        session.fieldName[f] = QStringLiteral("A name that is far longer than its place, for %1").arg(f);
    }
    design([](DesignForm& dialog) {
        EXPECT_LE(dialog.minimumSizeHint().width(), 950);
        EXPECT_LE(dialog.minimumSizeHint().height(), 560);
        const QSize least = dialog.minimumSizeHint();
        press(dialog.spinDown);
        EXPECT_EQ(dialog.minimumSizeHint(), least) << "it must not grow under a child's hand";
        press(dialog.spinUp);
        EXPECT_TRUE(dialog.fieldName[1]->textInView().contains(QChar(0x2026)));
        QSet<QWidget*> reached;
        for (QWidget* at = dialog.focusWidget(); !reached.contains(at); at = dialog.focusWidget()) {
            reached.insert(at);
            QTest::keyClick(at, Qt::Key_Tab);
        }
        EXPECT_EQ(reached.size(), 12 + 2 + 1 + 1 + 2 + 1)
            << "fields, spin buttons, the chosen size, read-only, OK, Cancel, video";
    });
}
