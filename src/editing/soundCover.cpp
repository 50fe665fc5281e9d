#include "editing/soundCover.h"

#include "core/session.h"
#include "platform/dialogParts.h"
#include "store/cardFiles.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

namespace {

QPushButton* soundButton(const char* name, const QString& caption)
{
    auto* button = named(new QPushButton(caption), name);
    button->setEnabled(false);
    return button;
}

/// Lays the buttons out, three to a row.
void fill(QFrame* frame, std::initializer_list<QPushButton*> buttons)
{
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(40, 0, 0, 8);
    int i = 0;
    for (QPushButton* button : buttons) {
        grid->addWidget(button, i / 3, i % 3);
        ++i;
    }
}

} // namespace

SoundCover::SoundCover()
    : FMSnd(named(new QGroupBox(QStringLiteral("Sound")), "FMSnd"))
    , Option1(named(new QRadioButton(QStringLiteral("Add Pre-Recorded Sound")), "Option1"))
    , Option2(named(new QRadioButton(QStringLiteral("Record Your Own Sound")), "Option2"))
    , F1(named(new QFrame, "F1"))
    , BtnImport(soundButton("BtnImport", QStringLiteral("Add Sound...")))
    , BtnDelSnd(soundButton("BtnDelSnd", QStringLiteral("Remove Sound")))
    , soundBut(soundButton("soundBut", QStringLiteral("Play Sound")))
    , F2(named(new QFrame, "F2"))
    , BtnRec(soundButton("BtnRec", QStringLiteral("Record")))
    , BtnPauseRec(soundButton("BtnPauseRec", QStringLiteral("Pause Recording")))
    , BtnStopRec(soundButton("BtnStopRec", QStringLiteral("Stop Recording")))
    , BtnPlay(soundButton("BtnPlay", QStringLiteral("Play")))
    , BtnPause(soundButton("BtnPause", QStringLiteral("Pause ")))
    , BtnStop(soundButton("BtnStop", QStringLiteral("Stop")))
{
    setObjectName(QStringLiteral("Cover"));
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(FMSnd);
    auto* rows = new QVBoxLayout(FMSnd);
    rows->addWidget(Option1);
    rows->addWidget(F1);
    rows->addWidget(Option2);
    rows->addWidget(F2);
    rows->addStretch();
    fill(F1, {BtnImport, BtnDelSnd, soundBut});
    fill(F2, {BtnRec, BtnPauseRec, BtnStopRec, BtnPlay, BtnPause, BtnStop});
    Option1->setChecked(true);
    onClick(soundBut, [] { playCardSound(session.selectedCard); });
}

void SoundCover::showOpening(bool cardHasSound)
{
    BtnImport->setEnabled(true);
    BtnDelSnd->setEnabled(cardHasSound);
    soundBut->setEnabled(cardHasSound);
}
