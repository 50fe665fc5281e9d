#include "editing/soundCover.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/picture.h"
#include "store/cardFiles.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize soundIcon(28, 28);

QPushButton* soundButton(const char* name, const QString& caption, const QString& icon)
{
    auto* button = named(new QPushButton(QIcon(picturePath(icon)), caption), name);
    button->setIconSize(soundIcon);
    button->setEnabled(false);
    return button;
}

/// Lays the buttons out in rows of that many.
void fill(QFrame* frame, int columns, std::initializer_list<QPushButton*> buttons)
{
    auto* grid = new QGridLayout(frame);
    int i = 0;
    for (QPushButton* button : buttons) {
        grid->addWidget(button, i / columns, i % columns);
        ++i;
    }
    grid->setRowStretch(i / columns, 1);
}

QLayout* way(QRadioButton* option, QFrame* frame)
{
    auto* rows = new QVBoxLayout;
    rows->addWidget(option);
    rows->addWidget(frame, 1);
    return rows;
}

} // namespace

SoundCover::SoundCover()
    : FMSnd(named(new QGroupBox(u"Sound"_s), "FMSnd"))
    , Option1(named(new QRadioButton(u"Add Pre-Recorded Sound"_s), "Option1"))
    , Option2(named(new QRadioButton(u"Record Your Own Sound"_s), "Option2"))
    , F1(named(new QFrame, "F1"))
    , BtnImport(soundButton("BtnImport", u"Add Sound..."_s, u"addSound"_s))
    , BtnDelSnd(soundButton("BtnDelSnd", u"Remove Sound"_s, u"removeSound"_s))
    , soundBut(soundButton("soundBut", u"Play Sound"_s, u"sound"_s))
    , F2(named(new QFrame, "F2"))
    , BtnRec(soundButton("BtnRec", u"Record"_s, u"record"_s))
    , BtnPauseRec(soundButton("BtnPauseRec", u"Pause Recording"_s, u"pause"_s))
    , BtnStopRec(soundButton("BtnStopRec", u"Stop Recording"_s, u"endSound"_s))
    , BtnPlay(soundButton("BtnPlay", u"Play"_s, u"resume"_s))
    , BtnPause(soundButton("BtnPause", u"Pause "_s, u"pause"_s))
    , BtnStop(soundButton("BtnStop", u"Stop"_s, u"endSound"_s))
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
    fill(F2, 3, {BtnRec, BtnPauseRec, BtnStopRec, BtnPlay, BtnPause, BtnStop});
    Option1->setChecked(true);
    onClick(soundBut, [] { playCardSound(session.selectedCard); });
}

void SoundCover::showOpening(bool cardHasSound)
{
    BtnImport->setEnabled(true);
    BtnDelSnd->setEnabled(cardHasSound);
    soundBut->setEnabled(cardHasSound);
}
