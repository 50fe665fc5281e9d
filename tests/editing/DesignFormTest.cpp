#include "editing/DesignForm.h"

#include "controls/fittedLabel.h"
#include "controls/forms.h"
#include "editing/designCommand.h"
#include "editing/frmRemind.h"
#include "store/descriptionFile.h"
#include "store/settings.h"
#include "support/dialogs.h"
#include "support/files.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

void setting(const char* section, const char* value)
{
    writeSetting(settingsFile(), QLatin1String(section), u"Status"_s, QLatin1String(value));
}

QString setting(const char* section)
{
    return readSetting(settingsFile(), QLatin1String(section), u"Status"_s, u"absent"_s);
}

/// Presses the mnemonic of a button; the button is shown pressed for a moment before it acts.
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
        session.menu.menuItemState[1][1] = u"Show"_s;
    }

    /// Runs the command with these actions of the pupil in the dialog.
    static void design(const std::function<void(DesignForm&)>& step)
    {
        recorded.dialogSteps.push_front([step](QDialog& dialog) { step(dynamic_cast<DesignForm&>(dialog)); });
        designCommand();
    }

    static QByteArray description() { return bytesOf(inTestFolder(u"db-info.tdb"_s)); }
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
    EXPECT_EQ(recorded.started, QStringList(u"Field Details"_s));
}

TEST_F(Design, AnotherSizeRedrawsTheCardsOnceTheDialogIsLeft)
{
    session.cardSize = 1;
    design([](DesignForm& dialog) {
        EXPECT_TRUE(dialog.cardSizeRadio[1]->isChecked());
        EXPECT_TRUE(pressLetter(dialog, Qt::Key_T, [] { return session.cardSize == 2; }));
        EXPECT_EQ(session.cardHeight, 60);
        press(dialog, "cancel_but");
    });
    EXPECT_EQ(session.cardHeight, 24);
    EXPECT_TRUE(description().contains("\r\n 2 \r\n"));
    session.editor.shrinkdummy.height = 99;
    design([](DesignForm&) {});
    EXPECT_EQ(session.editor.shrinkdummy.height, 99) << "not redrawn for the same size";
}

TEST_F(Design, TheReadOnlyTickIsASettingThatTheTeacherCanLock)
{
    design([](DesignForm& dialog) {
        EXPECT_TRUE(pressLetter(dialog, Qt::Key_R, [] { return session.design.ChkRD; }));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(setting("Database"), u"RO"_s);
    EXPECT_EQ(session.menu.menuItemState[1][1], u"Show"_s) << "until it is opened again";
    setting("RO", "RO");
    design([](DesignForm& dialog) {
        EXPECT_FALSE(dialog.LblRO->isEnabled());
        QTest::mouseClick(dialog.ChkRD, Qt::LeftButton);
        EXPECT_TRUE(dialog.ChkRD->isChecked());
    });
}

TEST_F(Design, TheReminderComesWhenItIsWantedAndCanBeEnded)
{
    const auto confirm = [](DesignForm& dialog) { press(dialog, "ok_but"); };
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
        EXPECT_EQ(setting("Remind"), again ? u"1"_s : u"0"_s);
    }
    design(confirm);
}

TEST_F(Design, ACancelledNewDoesNotEmptyTheDatabaseThatIsStillOpen)
{
    session.fieldName[1] = u"Pet"_s;
    session.cardSize = 1;
    writeDbInfo();
    const QByteArray before = description();
    resetFieldTable();
    session.design.fieldTableForgotten = true;
    design([](DesignForm& dialog) { EXPECT_EQ(dialog.fieldName[1]->text(), u"Pet"_s); });
    EXPECT_EQ(description(), before);
    session.fieldName[1] = u"changed"_s;
    design([](DesignForm&) {});
    EXPECT_EQ(session.fieldName[1], u"changed"_s) << "read once";
}

TEST_F(Design, IsReachedByKeysWithEveryFieldAndDoesNotGrowUnderAChildsHand)
{
    session.numFields = 12;
    session.fieldName[1] = u"A name that is far longer than its place, which it must not widen"_s;
    design([](DesignForm& dialog) {
        const QSize least = dialog.minimumSizeHint();
        press(dialog.spinDown);
        EXPECT_EQ(dialog.minimumSizeHint(), least);
        press(dialog.spinUp);
        EXPECT_TRUE(dialog.fieldName[1]->textInView().contains(QChar(0x2026)));
        QSet<QWidget*> reached;
        for (QWidget* at = dialog.focusWidget(); !reached.contains(at); at = dialog.focusWidget()) {
            reached.insert(at);
            QTest::keyClick(at, Qt::Key_Tab);
        }
        EXPECT_EQ(reached.size(), 12 + 2 + 1 + 1 + 1 + 2 + 1)
            << "fields, spin buttons, the chosen size, read-only, map, OK, Cancel, video";
    });
}
