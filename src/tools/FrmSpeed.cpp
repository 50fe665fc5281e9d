#include "tools/FrmSpeed.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/balloon.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "tools/pacing.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QPointer>
#include <QSlider>
#include <QWindow>

namespace {

QPushButton* paceButton(const char* name, const QString& icon, const QString& accessibleName,
                        const QString& tip)
{
    auto* button = named(new QPushButton, name);
    button->setIcon(QIcon(picturePath(icon)));
    button->setAccessibleName(accessibleName);
    giveHint(*button, tip);
    button->setAutoDefault(true);
    return button;
}

QLabel* endOfSlider(const char* name, const QString& text)
{
    auto* label = named(new QLabel(text), name);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

FrmSpeed::FrmSpeed()
    : Slider1(named(new QSlider(Qt::Horizontal), "Slider1"))
    , BtnPause(paceButton("BtnPause", QStringLiteral("pause"), QStringLiteral("Pause"),
                          QStringLiteral("Click here to pause the process")))
    , BtnResume(paceButton("BtnResume", QStringLiteral("resume"), QStringLiteral("Carry on"),
                           QStringLiteral("Click here to carry on with the process")))
{
    setObjectName(QStringLiteral("FrmSpeed"));
    setWindowTitle(QStringLiteral("Speed"));
    setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_ShowWithoutActivating);

    Slider1->setRange(1, 9);
    Slider1->setPageStep(1);
    Slider1->setTickPosition(QSlider::TicksBelow);
    Slider1->setAccessibleName(QStringLiteral("Speed"));
    Slider1->setMinimumWidth(220);

    auto* grid = new QGridLayout(this);
    grid->addWidget(pictureLabel(QStringLiteral("slow"), {40, 40}), 0, 0, Qt::AlignCenter);
    grid->addWidget(Slider1, 0, 1);
    grid->addWidget(pictureLabel(QStringLiteral("fast"), {40, 40}), 0, 2, Qt::AlignCenter);
    grid->addWidget(endOfSlider("Label1", QStringLiteral("Slow")), 1, 0);
    grid->addWidget(BtnPause, 1, 1, Qt::AlignCenter);
    grid->addWidget(BtnResume, 1, 1, Qt::AlignCenter);
    grid->addWidget(endOfSlider("Label2", QStringLiteral("Fast")), 1, 2);

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
    Slider1->setValue(session.speedPosition);
    showPauseOrResume();
}

void FrmSpeed::showPauseOrResume()
{
    BtnPause->setVisible(!session.runPaused);
    BtnResume->setVisible(session.runPaused);
}

void FrmSpeed::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous()) // not when the pupil only puts the windows aside
        stopRun();
}

void FrmSpeed::closeEvent(QCloseEvent* event)
{
    event->accept();
    unload<FrmSpeed>();
}

void installSpeedWindow(QWidget& mainWindow)
{
    const QPointer<QWidget> main = &mainWindow;
    screen.showSpeedWindow = [main] {
        auto& speed = form<FrmSpeed>();
        speed.showPreparedPace();
        speed.adjustSize();
        if (main) {
            const double right = main->width() - speed.width() - 240 / session.twipsPerPixelX;
            // Above the main window, but not above the dialogs that open meanwhile.
            speed.winId();
            speed.windowHandle()->setTransientParent(main->windowHandle());
            speed.move(main->mapToGlobal(QPoint(int(right), 120 / session.twipsPerPixelY)));
        }
        speed.show();
    };
    screen.unloadSpeedWindow = [] { unload<FrmSpeed>(); };
}
