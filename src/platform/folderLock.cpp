#include "platform/folderLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int patienceMs = 3000;
constexpr int pauseMs = 5;

} // namespace

FolderLock::FolderLock(const QString& folder)
    : descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    const QDeadlineTimer patience(patienceMs);
    while (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || patience.hasExpired())
            return;
        QThread::msleep(pauseMs);
    }
}

FolderLock::~FolderLock()
{
    if (descriptor >= 0)
        ::close(descriptor);
}
