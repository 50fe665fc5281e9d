#include "guidance/frmVids.h"

#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "platform/archive.h"
#include "platform/desktop.h"
#include "platform/errors.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int untilFirstTick = 100; // ms
constexpr int gap = 20;

/// Unpacks the tutorials and returns the description of the error, empty for none.
QString unpackTutorials(const QString& folder, const Errands::Forgotten& forgotten)
{
    try {
        unpackArchive(folder + u"/Videos.rar"_s, folder, forgotten);
        return {};
    } catch (...) {
        return currentErrorDescription();
    }
}

void tellHowItWent(const QString& failure)
{
    desktop.screen.setBusyPointer(false);
    if (failure.isEmpty()) {
        desktop.sound.beep();
        desktop.boxes.showMessage(MessageIcon::information, u"Information"_s,
                                  u"Videos have now been installed. Please try playing the videos again."_s);
    } else {
        showErrorBox(failure);
    }
    unload<frmVids>();
}

} // namespace

frmVids::frmVids()
    : Label1(named(words(u"Please wait while the videos are being installed..."_s, "subHeading"), "Label1"))
    , Timer1(named(new QTimer(this), "Timer1"))
{
    setObjectName(u"frmVids"_s);
    setWindowTitle(u"Installing Videos..."_s);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAccessibleDescription(Label1->text());
    Label1->setWordWrap(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(gap, gap, gap, gap);
    row->setSpacing(gap);
    row->addWidget(pictureLabel(u"sand"_s, {64, 64}));
    row->addWidget(Label1);
    Timer1->setInterval(untilFirstTick);
    connect(Timer1, &QTimer::timeout, this, [this] { guarded([this] { install(); }); });
}

void frmVids::load()
{
    desktop.screen.setBusyPointer(true);
    Timer1->start();
}

/// Closed in whatever way, it doesn't begin any more, and what has begun is given up. Minimising it is no
/// end.
void frmVids::hideEvent(QHideEvent* event)
{
    if (event->spontaneous())
        return;
    Timer1->stop();
    errands.forget();
}

void frmVids::reject()
{
    desktop.screen.setBusyPointer(false);
    unload<frmVids>();
}

void frmVids::install()
{
    Timer1->stop(); // first of all: while a box is open it would tick again
    const QString folder = desktop.files.programFolder() + u"/Videos"_s;
    errands.send([folder](const Errands::Forgotten& forgotten) { return unpackTutorials(folder, forgotten); },
                 tellHowItWent);
}

void installTutorials()
{
    showModal(form<frmVids>());
    // The last box and the window go in the same moment; some window managers then leave the keyboard
    // nowhere.
    if (QWindow* behind = QGuiApplication::modalWindow())
        behind->requestActivate();
}
