// The sound page of the card editor, with a player and a recorder that do nothing.
#include "editing/soundCover.h"

#include "database/loading.h"
#include "editing/editCard.h"
#include "platform/wave.h"
#include "store/cardFiles.h"
#include "support/database.h"

#include <QRadioButton>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

class SoundPage : public Fresh {
protected:
    SoundPage()
    {
        session.dbPath = writeDatabase(u"db"_s, 2);
        loadAllCards();
        putFile(cardSoundPath(1), wave(1));
    }

    static QByteArray wave(int length) { return waveBytes({22050, 1, 16, QByteArray(length * 2, '\1')}); }

    /// What .kept holds, and then the card's sound.
    static QByteArrayList sounds()
    {
        QByteArrayList found;
        const QDir moments(session.dbPath + u"/.kept"_s);
        for (const QString& moment : moments.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            found.append(bytesOf(moments.filePath(moment) + u"/AAAAAAAA.snd"_s));
        return found << bytesOf(cardSoundPath(1));
    }

    static void click(QAbstractButton* button)
    {
        button->click();
        QCoreApplication::processEvents(); // some act from the event loop
    }

    /// Opens card 1 at its sound page and leaves it by `answer`.
    static void pupil(QPushButton* const AnswerButtons::*answer, const std::function<void(SoundCover&)>& act)
    {
        recorded.dialogSteps.push_back([=](QDialog& dialog) {
            auto& editor = dynamic_cast<editCard&>(dialog);
            editor.FTab1->setCurrentIndex(1);
            act(*editor.Cover);
            click(editor.answers->*answer);
        });
        openCardEditor(1);
    }

    /// Of the enabled buttons: Import, Remove, Play; Record, Hold, End; play Back, hold, end.
    static std::string enabled(const SoundCover& page)
    {
        const std::pair<char, QPushButton*> buttons[] = {
            {'I', page.BtnImport}, {'R', page.BtnDelSnd},   {'P', page.soundBut},
            {'r', page.BtnRec},    {'h', page.BtnPauseRec}, {'e', page.BtnStopRec},
            {'b', page.BtnPlay},   {'H', page.BtnPause},    {'E', page.BtnStop}};
        std::string letters;
        for (const auto& [letter, button] : buttons)
            letters += button->isEnabled() ? std::string(1, letter) : "";
        return letters;
    }
};

} // namespace

TEST_F(SoundPage, EachActionEnablesItsButtonsAndTheChosenOptionNone)
{
    putFile(inTestFolder(u"new.wav"_s), wave(2));
    putFile(inTestFolder(u"torn.wav"_s), "RIFF");
    recorded.answers = {false, true};
    recorded.chosen = {inTestFolder(u"torn.wav"_s), inTestFolder(u"new.wav"_s), QString()};
    pupil(&AnswerButtons::cancel, [](SoundCover& page) {
        EXPECT_EQ(enabled(page), "IRP");
        const std::pair<QAbstractButton*, const char*> steps[] = {
            {page.Option1, "IRP"},   {page.BtnDelSnd, "IRP"},  {page.BtnDelSnd, "I"},
            {page.BtnImport, "I"},   {page.BtnImport, "IRP"},  {page.BtnImport, "IRP"},
            {page.Option2, "r"},     {page.Option1, "I"},      {page.Option2, "r"},
            {page.BtnRec, "rhebHE"}, {page.Option2, "rhebHE"}, {page.BtnStopRec, "rhebHE"},
            {page.Option1, "I"}};
        for (const auto& [button, afterwards] : steps) {
            click(button);
            EXPECT_EQ(enabled(page), afterwards) << "after " << button->objectName().toStdString();
        }
    });
    EXPECT_THAT(sounds(), ElementsAre(wave(1), wave(2))) << "Cancel takes nothing back";
    EXPECT_EQ(recorded.beeps, 3);
}

TEST_F(SoundPage, OKTakesTheRecordingOrTheLastOneAndKeepsWhatItReplaces)
{
    recorded.recording = wave(3);
    for (const bool recordedNow : {true, false}) {
        session.editor.recording.clear(); // as after a new start
        pupil(&AnswerButtons::ok, [=](SoundCover& page) {
            click(page.Option2);
            if (recordedNow)
                click(page.BtnRec);
            putFile(cardSoundPath(1), wave(4)); // from another workstation
        });
    }
    EXPECT_THAT(sounds(), ElementsAre(wave(4), wave(4), wave(3)));
    EXPECT_EQ(recorded.messages.size(), 2) << "both times it is told";
}
