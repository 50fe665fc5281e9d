// Small tools for tests of files.
#pragma once

#include "platform/errors.h"
#include "support/freshStart.h"

#include <QFile>

/// The number of the error that the routine raises, 0 when it raises none.
inline int errorOf(const std::function<void()>& routine)
{
    try {
        routine();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

/// The path of a file in the test's folder.
inline QString inTestFolder(const QString& name) { return testFolder() + name; }

/// Writes the bytes unchanged, without the program's code.
inline void putFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
