#include "editing/soundCover.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "store/cardFiles.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

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
    : FMSnd(named(new QGroupBox(u"Sound"_s), "FMSnd"))
    , Option1(named(new QRadioButton(u"Add Pre-Recorded Sound"_s), "Option1"))
    , Option2(named(new QRadioButton(u"Record Your Own Sound"_s), "Option2"))
    , F1(named(new QFrame, "F1"))
    , BtnImport(soundButton("BtnImport", u"Add Sound..."_s))
    , BtnDelSnd(soundButton("BtnDelSnd", u"Remove Sound"_s))
    , soundBut(soundButton("soundBut", u"Play Sound"_s))
    , F2(named(new QFrame, "F2"))
    , BtnRec(soundButton("BtnRec", u"Record"_s))
    , BtnPauseRec(soundButton("BtnPauseRec", u"Pause Recording"_s))
    , BtnStopRec(soundButton("BtnStopRec", u"Stop Recording"_s))
    , BtnPlay(soundButton("BtnPlay", u"Play"_s))
    , BtnPause(soundButton("BtnPause", u"Pause "_s))
    , BtnStop(soundButton("BtnStop", u"Stop"_s))
{
    setObjectName(u"Cover"_s);
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
