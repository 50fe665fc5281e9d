#include "core/FrmStlogo.h"

#include "core/title.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "platform/picture.h"

namespace {

constexpr QSize pictureSize(560, 360);
constexpr QRect releaseStrip(20, 330, 520, 20); // what the picture leaves free
constexpr int splashTime = 2500;                // ms

} // namespace

FrmStlogo::FrmStlogo()
    : lblVer(named(new QLabel(QStringLiteral("Version"), this), "lblVer"))
    , Timer1(named(new QTimer(this), "Timer1"))
{
    setWindowFlags(Qt::SplashScreen);
    setAttribute(Qt::WA_TranslucentBackground); // behind the picture's round corners
    setWindowTitle(QStringLiteral("Tallymoor"));
    setFixedSize(pictureSize);
    auto* scene = pictureLabel(QStringLiteral("splash"), pictureSize);
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
    desktop.setBusyPointer(true);
    Timer1->start();
}

void FrmStlogo::tick()
{
    desktop.setBusyPointer(false);
    desktop.clearClipboard();
    unload<FrmStlogo>();
}
