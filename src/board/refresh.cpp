#include "board/refresh.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/errors.h"
#include "store/loading.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>

namespace {

constexpr int interval = 2000; // milliseconds

/// False when the folder could not be read; the pupil has been told.
bool readFolder() { return withErrorBox(loadAllCards); }

void turn(bool on)
{
    if (on)
        refreshTimer().start();
    else
        refreshTimer().stop();
    session.refreshCheck.pressed = on;
    screen.showControls();
}

/// Qt itself sends no tick inside another one.
void tick()
{
    if (!QGuiApplication::modalWindow() && !readFolder())
        turn(false);
}

} // namespace

void setRefresh(const QString& word) { turn(word.toUpper() == QLatin1String("ON") && readFolder()); }

QTimer& refreshTimer()
{
    static QPointer<QTimer> timer;
    if (!timer) {
        timer = new QTimer(QCoreApplication::instance());
        timer->setInterval(interval);
        QObject::connect(timer, &QTimer::timeout, [] { guarded(tick); });
    }
    return *timer;
}
