#include "window/FrmStlogo.h"

#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "core/title.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(560, 360);
constexpr QRect releaseStrip(20, 330, 520, 20); // the empty part of the picture
constexpr int splashTime = 2500;                // ms

} // namespace

FrmStlogo::FrmStlogo()
    : lblVer(named(new QLabel(u"Version"_s, this), "lblVer"))
    , Timer1(named(new QTimer(this), "Timer1"))
{
    setWindowFlags(Qt::SplashScreen);
    setAttribute(Qt::WA_TranslucentBackground); // for the picture's round corners
    setWindowTitle(u"Tallymoor"_s);
    setFixedSize(pictureSize);
    auto* scene = pictureLabel(u"splash"_s, pictureSize);
    scene->setParent(this);
    scene->lower();
    lblVer->setGeometry(releaseStrip);
    lblVer->setAlignment(Qt::AlignCenter);
    Timer1->setSingleShot(true);
    Timer1->setInterval(splashTime);
    connect(Timer1, &QTimer::timeout, this, [this] { guarded([this] { tick(); }); });
}

void FrmStlogo::load()
{
    lblVer->setText(releaseName());
    desktop.screen.setBusyPointer(true);
    Timer1->start();
}

void FrmStlogo::tick()
{
    desktop.screen.setBusyPointer(false);
    desktop.clipboard.clear();
    unload<FrmStlogo>();
}
