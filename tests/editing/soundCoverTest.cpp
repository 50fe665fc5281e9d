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
};

} // namespace

TEST_F(SoundPage, EachActionEnablesItsButtonsAndNoSoundIsLost)
{
    putFile(inTestFolder(u"new.wav"_s), wave(2));
    putFile(inTestFolder(u"torn.wav"_s), "RIFF");
    recorded.answers = {false, true};
    recorded.chosen = {inTestFolder(u"torn.wav"_s), inTestFolder(u"new.wav"_s), QString()};
    recorded.recording = wave(3);
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        auto& editor = dynamic_cast<editCard&>(dialog);
        const SoundCover& page = *editor.Cover;
        editor.FTab1->setCurrentIndex(1);
        const QString file = u"BtnImport BtnDelSnd soundBut"_s;
        const QString bare = u"BtnImport"_s;
        const QString own = u"BtnRec BtnPauseRec BtnStopRec BtnPlay BtnPause BtnStop"_s;
        const std::pair<QAbstractButton*, QString> steps[] = {
            {page.Option1, file},        {page.BtnDelSnd, file}, {page.BtnDelSnd, bare},
            {page.BtnImport, bare},      {page.BtnImport, file}, {page.BtnImport, file},
            {page.Option2, u"BtnRec"_s}, {page.Option1, bare},   {page.Option2, u"BtnRec"_s},
            {page.BtnRec, own},          {page.Option2, own},    {page.BtnStopRec, own}};
        for (const auto& [button, enabled] : steps) {
            button->click();
            QCoreApplication::processEvents(); // some act from the event loop
            QStringList found;
            for (const QPushButton* each : page.findChildren<QPushButton*>())
                found.append(each->isEnabled() ? each->objectName() : QString());
            found.removeAll({});
            EXPECT_EQ(found.join(u' '), enabled) << "after " << button->objectName().toStdString();
        }
        EXPECT_THAT(sounds(), ElementsAre(wave(1), wave(2)));
        putFile(cardSoundPath(1), wave(4)); // from another workstation
        editor.answers->ok->click();
    });
    openCardEditor(1);
    EXPECT_THAT(sounds(), ElementsAre(wave(1), wave(4), wave(3)));
    EXPECT_EQ(recorded.messages.size(), 4) << "two questions, and that something was removed and kept";
    EXPECT_EQ(recorded.beeps, 3);
}
