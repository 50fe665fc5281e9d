#include "tools/FrmSpeed.h"

#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "core/session.h"
#include "platform/errors.h"
#include "tools/pacing.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QSlider>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

QLabel* endOfSlider(const char* name, const QString& text)
{
    auto* label = named(new QLabel(text), name);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

FrmSpeed::FrmSpeed()
    : Slider1(named(new QSlider(Qt::Horizontal), "Slider1"))
    , BtnPause(named(iconButton(u"pause"_s, u"Pause"_s, u"Click here to pause the process"_s), "BtnPause"))
    , BtnResume(named(iconButton(u"resume"_s, u"Carry on"_s, u"Click here to carry on with the process"_s),
                      "BtnResume"))
{
    setObjectName(u"FrmSpeed"_s);
    setWindowTitle(u"Speed"_s);
    setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_ShowWithoutActivating);

    Slider1->setRange(1, 9);
    Slider1->setPageStep(1);
    Slider1->setTickPosition(QSlider::TicksBelow);
    Slider1->setAccessibleName(u"Speed"_s);
    Slider1->setMinimumWidth(220);

    auto* grid = new QGridLayout(this);
    grid->addWidget(pictureLabel(u"slow"_s, {40, 40}), 0, 0, Qt::AlignCenter);
    grid->addWidget(Slider1, 0, 1);
    grid->addWidget(pictureLabel(u"fast"_s, {40, 40}), 0, 2, Qt::AlignCenter);
    grid->addWidget(endOfSlider("Label1", u"Slow"_s), 1, 0);
    grid->addWidget(BtnPause, 1, 1, Qt::AlignCenter);
    grid->addWidget(BtnResume, 1, 1, Qt::AlignCenter);
    grid->addWidget(endOfSlider("Label2", u"Fast"_s), 1, 2);

    connect(Slider1, &QSlider::valueChanged, this,
            [](int position) { guarded([&] { speedChosen(position); }); });
    onClick(BtnPause, [this] {
        pauseRun();
        showPauseOrResume();
        BtnResume->setFocus();
    });
    onClick(BtnResume, [this] {
        resumeRun();
        showPauseOrResume();
        BtnPause->setFocus();
    });
    showPreparedPace();
}

void FrmSpeed::showPreparedPace()
{
    Slider1->setValue(session.run.speedPosition);
    showPauseOrResume();
}

void FrmSpeed::showPauseOrResume()
{
    BtnPause->setVisible(!session.run.paused);
    BtnResume->setVisible(session.run.paused);
}

void FrmSpeed::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous()) // not when the window is merely minimised
        stopRun();
}

void FrmSpeed::closeEvent(QCloseEvent* event)
{
    event->accept();
    unload<FrmSpeed>();
}

void showSpeedWindow(const QWidget* mainWindow)
{
    auto& speed = form<FrmSpeed>();
    speed.showPreparedPace();
    speed.adjustSize();
    if (mainWindow) {
        const double right = mainWindow->width() - speed.width() - 240 / session.twipsPerPixelX;
        // Keeps it above the main window, but not above dialogs opened later.
        speed.winId();
        speed.windowHandle()->setTransientParent(mainWindow->windowHandle());
        speed.move(mainWindow->mapToGlobal(QPoint(int(right), 120 / session.twipsPerPixelY)));
    }
    speed.show();
}
