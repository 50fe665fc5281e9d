// The teacher's options, from the click to the settings file and to what the program does with them.
#include "options/TeacherOps.h"

#include "analysis/reportForm.h"
#include "controls/dropDown.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "database/FileForm.h"
#include "editing/DesignForm.h"
#include "editing/design.h"
#include "editing/editCard.h"
#include "options/aboutPage.h"
#include "store/settings.h"
#include "support/files.h"
#include "window/Form1.h"
#include "window/assembly.h"
#include "window/startValues.h"

#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

void press(const char* control)
{
    form<TeacherOps>().findChild<QAbstractButton*>(QLatin1StringView(control))->click();
    QCoreApplication::processEvents();
}

/// The effects of the switches, looked for in the forms themselves.
bool refreshHidden() { return !session.window.refreshCheck.visible && form<Form1>().PicRef->isHidden(); }
bool upDisabled()
{
    return !form<FileForm>().upFoldBut->isEnabled() && !form<FileForm>().StdDiBoxBut->isEnabled();
}
bool soundOffered() { return !form<editCard>().FTab1->isHidden(); }
bool readOnlyDisabled() { return !form<DesignForm>().ChkRD->isEnabled(); }
bool staysWhere() { return session.options.txtDelRandomCard == u"0"_s; }
bool withCase() { return session.options.caseSensitive; }
bool redCaptions() { return session.options.ColText == u"255"_s; }
bool greenFrame() { return session.board.borderColour == u"65280"_s; }
bool cluesShown() { return !form<Form1>().cmdQuestion->isHidden(); }
bool lockRemembered() { return session.options.txtDBLock == u"1"_s; }

const reportForm& report()
{
    session.dbPath = testFolder().chopped(1);
    return form<reportForm>();
}

bool notesHidden() { return !report().BtnPrt->isEnabled(); }
bool notesLocked() { return !report().BtnSave->isEnabled() && report().RTF1->isReadOnly(); }
bool notesNotCopied() { return !report().BtnCopy1->isEnabled(); }
bool reportNotPrinted() { return !report().PrintCommand->isEnabled(); }

bool cardLocked()
{
    form<editCard>().layoutFieldBoxes();
    return QTest::qWaitFor([] { return !form<editCard>().answers->ok->isEnabled(); }, 500);
}

} // namespace

class TeachersOptions : public Fresh {
protected:
    TeachersOptions() { begin(); }

    /// The program's start, as far as it concerns options.
    static void begin()
    {
        unloadAllForms();
        session = {};
        connectHooks();
        form<Form1>();
        setStartValues();
        settle();
    }

    static void settle() // the one-shot timers
    {
        const auto waits = [](QTimer* timer) { return timer->isActive() && timer->interval() < 100; };
        const auto timers = form<Form1>().findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        ASSERT_TRUE(QTest::qWaitFor([&] { return std::none_of(timers.begin(), timers.end(), waits); }));
    }

    static void options(const std::function<void(TeacherOps&)>& act)
    {
        recorded.dialogSteps.push_back([act](QDialog& dialog) { act(dynamic_cast<TeacherOps&>(dialog)); });
        openTeacherOptions();
        settle();
    }

    static QByteArray file() { return bytesOf(settingsFile()); }
};

TEST_F(TeachersOptions, ActWhereAndWhenTheyShould)
{
    struct Case {
        const char* control;
        bool (*effect)();
        bool atOnce;
        bool afterRestart;
    };
    const Case cases[] = {
        {"ChkUp", upDisabled, true, true},
        {"ChkT1", notesHidden, true, true},
        {"ChkT2", notesLocked, true, true},
        {"ChkT3", notesNotCopied, true, true},
        {"ChkPRpt", reportNotPrinted, true, true},
        {"ChkRefresh", refreshHidden, true, true},
        {"ChkSnd", soundOffered, true, true},
        {"ChkDBRO", readOnlyDisabled, true, true},
        {"ChkRemind", reminderWanted, true, true},
        {"chkDelCrd", staysWhere, true, true},
        {"ChkSens", withCase, true, true},
        {"cols0", redCaptions, true, true},
        {"colsBord3", greenFrame, true, true},
        {"chkDBLock", cardLocked, true, true},
        {"chkDBLock", lockRemembered, false, true},
        {"ChkClue", cluesShown, false, false}, // lost: there is a working folder
    };
    for (const auto& [control, effect, atOnce, afterRestart] : cases) {
        QFile::remove(inTestFolder(u"tallymoor.ini"_s));
        begin();
        EXPECT_FALSE(effect()) << control;
        options([control](TeacherOps&) {
            press(control);
            press("ok_but");
        });
        unload<FileForm>();
        unload<editCard>();
        unload<DesignForm>();
        unload<reportForm>();
        EXPECT_EQ(effect(), atOnce) << control;
        begin();
        EXPECT_EQ(effect(), afterRestart) << control << " after a restart";
    }
}

TEST_F(TeachersOptions, AreWrittenInOneOrderWithAFolderAndInAnotherWithout)
{
    write(option::reportPrint, u"1"_s);
    write(option::hideRefresh, u"maybe"_s); // no word of its box: passes through
    options([](TeacherOps& screen) {
        EXPECT_EQ(screen.WorkingDirTxt->text(), documentsWord);
        press("ChkClue");
        press("ok_but");
    });
    const QByteArray middle =
        "[Cards]\r\nColour=Not specified\r\n[Border]\r\nColour=Not "
        "specified\r\n[CaseSens]\r\nStatus=False\r\n"
        "[Startup]\r\nState=False\r\n[Background]\r\nColour=&H8000000F\r\n[Keys]\r\nValue=K\r\n"
        "[Sound]\r\nStatus=0\r\n[RO]\r\nStatus=RW\r\n[UpLevel]\r\nStatus=False\r\n"
        "[NotePad]\r\nOpt1=0\r\nOpt2=0\r\n";
    const QByteArray last = "[Remind]\r\nStatus=0\r\n[Save Dir]\r\nPath=\r\n[DeleteCard]\r\nRandom=1\r\n"
                            "[LockDB]\r\nStatus=0\r\n[Printer]\r\nName=-1\r\nDevice Name=\r\n";
    const QByteArray first = "[Report]\r\nOpt=0\r\n[Refresh]\r\nVisible=maybe\r\n";
    EXPECT_EQ(file(), first + "[Working Dir]\r\nPath=MyDocs\r\n" + middle + "Opt3=0\r\n" + last);

    QFile::remove(inTestFolder(u"tallymoor.ini"_s));
    options([](TeacherOps& screen) {
        press("Opt2");
        EXPECT_TRUE(screen.WorkingDirTxt->isEnabled() && screen.WorkingDirTxt->text().isEmpty());
        press("ChkClue");
        press("ok_but");
    });
    const QByteArray folder = "[Working Dir]\r\nPath=" + inTestFolder(u"Documents"_s).toUtf8() + "\r\n";
    EXPECT_EQ(file(), folder + "[Refresh]\r\nVisible=\r\n" + middle.chopped(0) +
                          "Opt3=0\r\n[Clue]\r\nStatus=1\r\n" + "[Report]\r\nOpt=0\r\n" + last);
    EXPECT_TRUE(cluesShown());
}

TEST_F(TeachersOptions, CancelWritesNothingAndKeepsWhatCountedAtOnce)
{
    options([](TeacherOps& screen) {
        for (const char* control : {"ChkSnd", "ChkDBRO", "ChkUp", "ChkSens", "cols1", "Opt2"})
            press(control);
        recorded.chosen = {QString(), QString()}; // both choosers are cancelled
        press("BtnSetPath");
        screen.Tab1->setCurrentIndex(2);
        press("btnColSel");
        EXPECT_TRUE(recorded.chosen.empty());
        EXPECT_EQ(screen.WorkingDirTxt->text(), QString());
        QTest::keyClick(&screen, Qt::Key_Escape);
    });
    EXPECT_EQ(session.dialogResult, u"Cancel"_s);
    EXPECT_EQ(file(), QByteArray());
    EXPECT_EQ(session.options.soundStatus, 1);
    EXPECT_EQ(session.options.roOptionStatus, u"RO"_s);
    EXPECT_EQ(session.options.upLevelStatus, u"True"_s);
    EXPECT_FALSE(session.options.caseSensitive);
}

TEST_F(TeachersOptions, LastUntilTheEndWhereNothingCanBeWritten)
{
    QDir().mkpath(inTestFolder(u"tallymoor.ini/full"_s)); // a folder in the file's place
    options([](TeacherOps& screen) {
        EXPECT_EQ(screen.lblKept->text(), QString());
        press("ChkRefresh");
        press("ChkSnd");
        press("ok_but");
    });
    EXPECT_EQ(recorded.messages, QStringList(u"Teacher Options|Your changes could not be saved. "
                                             "They last until Tallymoor is closed."_s));
    EXPECT_TRUE(refreshHidden() && soundOffered());
    begin();
    EXPECT_FALSE(refreshHidden() || soundOffered());
}

TEST_F(TeachersOptions, TakeChosenFoldersColoursAndLetters)
{
    options([](TeacherOps& screen) {
        recorded.chosen = {u"/class"_s, u"#0a0b0c"_s};
        press("Opt2");
        press("BtnSetPath");
        screen.Tab1->setCurrentIndex(2);
        press("btnColSel");
        screen.KeyCombo->setCurrentText(u"q"_s);
        press("ok_but");
    });
    EXPECT_EQ(session.board.colour, QString::number(10 + 11 * 256 + 12 * 65536));
    EXPECT_EQ(session.options.keysValue, u"K"_s) << "until it is read again";
    options([](TeacherOps& screen) {
        EXPECT_EQ(session.options.keysValue, u"Q"_s);
        EXPECT_EQ(screen.WorkingDirTxt->text(), u"/class"_s);
    });
}

TEST_F(TeachersOptions, KeepThePrinterUntilTheListHasComeAndForgetOneThatIsGone)
{
    static std::atomic<bool> known;
    known = true;
    desktop.paper.printerNames = [] {
        while (!known)
            std::this_thread::yield();
        return QStringList{u"Hall"_s, u"Office"_s};
    };
    const auto chosenPrinter = [] { return read(option::printer) + u'|' + read(option::printerDevice); };
    const std::vector<std::pair<const char*, QString>> cases = {
        {"0", u"0|Hall"_s}, {"1", u"1|Office"_s}, {"2", u"-1|"_s}, {"-7", u"-1|"_s}, {"1e9", u"-1|"_s}};
    for (const auto& [stored, expected] : cases) {
        write(option::printer, QLatin1StringView(stored));
        options([](TeacherOps& screen) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return screen.Printercombo->isEnabled(); }));
            press("ok_but");
        });
        EXPECT_EQ(chosenPrinter(), expected) << stored;
    }
    options([](TeacherOps& screen) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return screen.Printercombo->isEnabled(); }));
        screen.Printercombo->setCurrentIndex(1);
        press("cancel_but");
    });
    EXPECT_EQ(session.paper.Printercombo.listIndex, 1);

    writeSettings({{option::printer, u"7"_s}, {option::printerDevice, u"Attic"_s}});
    known = false;
    options([](TeacherOps&) { press("ok_but"); });
    known = true;
    EXPECT_EQ(chosenPrinter(), u"7|Attic"_s);
}

TEST_F(TeachersOptions, ShowAListThatStandsStillWhereNothingIsToMove)
{
    for (const bool still : {true, false}) {
        desktop.screen.reducedMotion = [still] { return still; };
        options([still](TeacherOps& screen) {
            const QTimer& Timer3 = *screen.about->Pic3->Timer3;
            screen.Tab1->setCurrentIndex(6);
            EXPECT_EQ(QTest::qWaitFor([&] { return Timer3.isActive(); }, still ? 200 : 5000), !still);
            recorded.answers = {true};
            press("HP2");
            press("cancel_but");
        });
    }
    EXPECT_EQ(recorded.messages.value(0), u"Confirm|Do you have internet connection on this machine?"_s);
    EXPECT_TRUE(recorded.started.value(1).startsWith(u"mailto:"_s));
}
