#include "fuzz/fuzzSupport.h"

#include "core/session.h"
#include "platform/desktop.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

void mustHold(bool condition, const char* text)
{
    if (condition)
        return;
    std::fprintf(stderr, "does not hold: %s\n", text);
    std::abort();
}

QByteArray inputBytes(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

QString fuzzFolder()
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/tallymoor-fuzz-XXXXXX"));
    return folder.path();
}

void openWith(const QString& name, const QByteArray& bytes)
{
    session = {};
    session.dbPath = fuzzFolder();
    session.cardId[1] = QStringLiteral("CARDAAAA");
    resetFieldTable();
    desktop.beep = [] {};
    desktop.showMessage = [](MessageIcon, const QString&, const QString&) {};
    QFile file(fuzzFolder() + QLatin1Char('/') + name);
    mustHold(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
             "the folder can be written");
}

bool canBeQuoted(const QString& text) { return !text.contains(QLatin1Char('"')); }
