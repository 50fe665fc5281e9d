#include "editing/soundCover.h"

#include "controls/balloon.h"
#include "controls/dialogParts.h"
#include "core/session.h"
#include "editing/cardSound.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "store/cardFiles.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QProgressBar>
#include <QRadioButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize soundIcon(28, 28);
constexpr int panelHeight = 64; // for a status of two lines
constexpr int watchTime = 50;   // milliseconds

/// The status text of each activity, in the order of SoundActivity.
constexpr QLatin1StringView statusOf[] = {{}, "Playing"_L1, "Paused"_L1, "Recording"_L1, "Paused"_L1};

QPushButton* soundButton(const char* name, const QString& caption, const QString& icon, const QString& hint)
{
    auto* button = named(new QPushButton(QIcon(picturePath(icon)), caption), name);
    button->setIconSize(soundIcon);
    button->setEnabled(false);
    giveHint(*button, hint);
    return button;
}

/// Lays the buttons out in rows of that many, at the top of the frame.
QGridLayout* fill(QFrame* frame, int columns, std::initializer_list<QPushButton*> buttons)
{
    auto* grid = new QGridLayout(frame);
    int i = 0;
    for (QPushButton* button : buttons) {
        grid->addWidget(button, i / columns, i % columns);
        ++i;
    }
    grid->setRowStretch(i / columns + 1, 1); // leaves one for the rest
    return grid;
}

QLayout* way(QRadioButton* option, QFrame* frame)
{
    auto* rows = new QVBoxLayout;
    rows->addWidget(option);
    rows->addWidget(frame, 1);
    return rows;
}

bool records(SoundActivity activity)
{
    return activity == SoundActivity::recording || activity == SoundActivity::recordingPaused;
}

QString minutesAndSeconds(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0'));
}

} // namespace

SoundCover::SoundCover()
    : FMSnd(named(new QGroupBox(u"Sound"_s), "FMSnd"))
    , Option1(named(new QRadioButton(u"Add Pre-Recorded Sound"_s), "Option1"))
    , Option2(named(new QRadioButton(u"Record Your Own Sound"_s), "Option2"))
    , F1(named(new QFrame, "F1"))
    , BtnImport(soundButton("BtnImport", u"Add Sound..."_s, u"addSound"_s, u"Add Sound"_s))
    , BtnDelSnd(soundButton("BtnDelSnd", u"Remove Sound"_s, u"removeSound"_s, u"Remove Sound"_s))
    , soundBut(soundButton("soundBut", u"Play Sound"_s, u"sound"_s, u"Play Sound"_s))
    , F2(named(new QFrame, "F2"))
    , BtnRec(soundButton("BtnRec", u"Record"_s, u"record"_s, u"Record Sound"_s))
    , BtnPauseRec(soundButton("BtnPauseRec", u"Pause Recording"_s, u"pause"_s, u"Pause Recording"_s))
    , BtnStopRec(soundButton("BtnStopRec", u"Stop Recording"_s, u"endSound"_s, u"Stop Recording"_s))
    , BtnPlay(soundButton("BtnPlay", u"Play"_s, u"resume"_s, u"Play Back Sound"_s))
    , BtnPause(soundButton("BtnPause", u"Pause "_s, u"pause"_s, u"Pause"_s))
    , BtnStop(soundButton("BtnStop", u"Stop"_s, u"endSound"_s, u"Stop"_s))
    , light(named(pictureLabel(u"lightOff"_s, soundIcon), "light"))
    , status(named(words({}), "status"))
    , level(named(new QProgressBar, "level"))
    , time(named(words(minutesAndSeconds(0)), "time"))
    , watch(new QTimer(this))
{
    setObjectName(u"Cover"_s);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(FMSnd);
    auto* ways = new QHBoxLayout(FMSnd);
    ways->setContentsMargins({});
    ways->addLayout(way(Option1, F1));
    ways->addLayout(way(Option2, F2), 1);
    fill(F1, 1, {BtnImport, BtnDelSnd, soundBut});
    auto* grid = fill(F2, 3, {BtnRec, BtnPauseRec, BtnStopRec, BtnPlay, BtnPause, BtnStop});
    grid->addLayout(panel(), 2, 0, 1, 3);
    grid->setRowMinimumHeight(2, panelHeight);
    F2->setEnabled(false);
    Option1->setChecked(true);
    letTabFindTheChosen({Option1, Option2});
    watch->setInterval(watchTime);
    connectButtons();
}

QLayout* SoundCover::panel()
{
    level->setRange(0, 100);
    level->setTextVisible(false);
    level->setAccessibleName(u"Loudness"_s);
    auto* row = new QHBoxLayout;
    row->addWidget(light);
    row->addWidget(status, 1);
    row->addWidget(level, 1);
    row->addWidget(time);
    return row;
}

void SoundCover::connectButtons()
{
    using enum SoundActivity;
    onToggle(Option2, [this](bool) { chooseWay(); });
    onClickLater(BtnImport, [this] { chooseFile(); });
    onClickLater(BtnDelSnd, [this] { askAndRemove(); });
    onClick(soundBut, [this] {
        playCardSound(session.selectedCard);
        showProgress();
    });
    onClick(BtnRec, [this] { startRecording(); });
    onClick(BtnStopRec, [this] { stopRecording(); });
    onClick(BtnPlay, [this] {
        stopRecording();
        withErrorBox(playRecording);
        showProgress();
    });
    onClick(BtnStop, [this] {
        if (!records(desktop.sound.progress().activity))
            desktop.sound.stop();
        showProgress();
    });
    for (QPushButton* pause : {BtnPauseRec, BtnPause})
        pause->setCheckable(true);
    // Not at a click: assistive technology toggles a button without one.
    onToggle(BtnPauseRec, [this](bool pressed) {
        if (pressed != (desktop.sound.progress().activity == recordingPaused))
            togglePause(recording, recordingPaused);
    });
    onToggle(BtnPause, [this](bool pressed) {
        if (pressed != (desktop.sound.progress().activity == playingPaused))
            togglePause(playing, playingPaused);
    });
    connect(watch, &QTimer::timeout, this, [this] { guarded([this] { showProgress(); }); });
}

void SoundCover::showOpening(bool cardHasSound)
{
    BtnImport->setEnabled(true);
    BtnDelSnd->setEnabled(cardHasSound);
    soundBut->setEnabled(cardHasSound);
}

void SoundCover::showEvent(QShowEvent*)
{
    if (!seen)
        guarded(rememberCardSound);
    seen = true;
}

/// Buttons that act on an existing sound are disabled, even where the card has a sound.
void SoundCover::chooseWay()
{
    const bool own = Option2->isChecked();
    stopRecording();
    desktop.sound.stop();
    showProgress();
    for (QWidget* part : std::initializer_list<QWidget*>{F1, BtnImport})
        part->setEnabled(!own);
    for (QWidget* part : std::initializer_list<QWidget*>{F2, BtnRec})
        part->setEnabled(own);
    for (QPushButton* button : {BtnDelSnd, soundBut, BtnPauseRec, BtnStopRec, BtnPlay, BtnPause, BtnStop})
        button->setEnabled(false);
    letTabFindTheChosen({Option1, Option2});
}

void SoundCover::chooseFile()
{
    const QString file =
        desktop.files.chooseFile(u"Add Sound"_s, desktop.files.documentsFolder(), u"Sound Files (*.wav)"_s);
    if (file.isEmpty())
        return;
    const bool added = addSound(file);
    lastStatus = added ? QString() : u"This sound can't be used."_s;
    showProgress();
    if (!added)
        return;
    soundBut->setEnabled(true);
    BtnDelSnd->setEnabled(true);
}

void SoundCover::askAndRemove()
{
    desktop.sound.beep();
    if (!desktop.boxes.ask(u"Confirm"_s, u"Are you sure you want to remove sound?"_s))
        return;
    removeSound();
    soundBut->setEnabled(false);
    BtnDelSnd->setEnabled(false);
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::information, u"Information"_s, u"Sound file removed."_s);
}

void SoundCover::startRecording()
{
    begun = beginRecording();
    lastStatus = begun ? QString() : u"No microphone was found."_s;
    time->setText(minutesAndSeconds(0));
    for (QPushButton* button : {BtnPauseRec, BtnStopRec, BtnPlay, BtnPause, BtnStop})
        button->setEnabled(true);
    showProgress();
}

QString SoundCover::recordingResult() const
{
    return session.editor.recording.isEmpty() ? u"Nothing was recorded."_s : u"Your sound is ready."_s;
}

void SoundCover::stopRecording()
{
    if (!begun)
        return;
    endRecording();
    begun = false;
    lastStatus = recordingResult();
    showProgress();
}

void SoundCover::togglePause(SoundActivity running, SoundActivity paused)
{
    const SoundActivity now = desktop.sound.progress().activity;
    if (now == running || now == paused)
        desktop.sound.pause(now == running);
    showProgress();
}

/// Shows what player and recorder do, and notices a recording that has ended by itself.
void SoundCover::showProgress()
{
    const SoundProgress now = desktop.sound.progress();
    if (records(now.activity)) {
        time->setText(minutesAndSeconds(now.recorded));
    } else if (begun) {
        stopRecording();
        lastStatus = u"The recording has stopped. "_s + lastStatus;
    }
    BtnPauseRec->setChecked(now.activity == SoundActivity::recordingPaused);
    BtnPause->setChecked(now.activity == SoundActivity::playingPaused);
    level->setValue(int(now.level * level->maximum()));
    const bool idle = now.activity == SoundActivity::none;
    status->setText(idle ? lastStatus : statusOf[int(now.activity)]);
    showLight(now.activity == SoundActivity::recording);
    idle ? watch->stop() : watch->start();
}

void SoundCover::showLight(bool on)
{
    if (on == lit)
        return;
    lit = on;
    light->setPixmap(picture(on ? u"lightOn"_s : u"lightOff"_s, soundIcon));
    Q_EMIT recordingShown(on);
}

void SoundCover::leave()
{
    if (!seen)
        return;
    stopRecording();
    leaveCardSound();
    showProgress();
}
