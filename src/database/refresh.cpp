#include "database/refresh.h"

#include "board/tableView.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/loading.h"
#include "platform/errors.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int interval = 2000; // milliseconds

/// False when the folder could not be read; a box has said so.
bool readFolder()
{
    const bool read = withErrorBox(loadAllCards);
    if (session.table.panel.visible)
        refillTable(); // the numbers of the cards may have changed
    return read;
}

void turn(bool on)
{
    if (on)
        refreshTimer().start();
    else
        refreshTimer().stop();
    session.window.refreshCheck.pressed = on;
    mainView.showControls();
}

/// Qt doesn't emit a timer's signal again while its slot runs.
void tick()
{
    if (QGuiApplication::modalWindow())
        return;
    const bool read = [] {
        session.inRefresh = true;
        const auto over = qScopeGuard([] { session.inRefresh = false; });
        return readFolder();
    }();
    if (!read)
        turn(false);
}

} // namespace

void setRefresh(const QString& word) { turn(word.toUpper() == "ON"_L1 && readFolder()); }

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
