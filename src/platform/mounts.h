// The drives that a pupil can open, read from the system's table of mounted file systems.
#pragma once

#include "platform/desktop.h"

#include <QByteArray>

#include <functional>

/// The home folder as "(HOME)" and the root as "(COMPUTER)", then the removable, network and optical media in
/// the order of `mountTable` (the text of /proc/self/mounts), at most eight in all. No medium is accessed,
/// since a server that hangs must not block the program. `isRemovable` answers for a device ("/dev/sdb1").
QList<Volume> drives(const QByteArray& mountTable,
                     const std::function<bool(const QString& device)>& isRemovable);

/// The same for this computer, now.
QList<Volume> drivesOfComputer();
