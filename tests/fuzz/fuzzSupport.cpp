#include "fuzz/fuzzSupport.h"

#include "core/session.h"
#include "platform/desktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

bool seedIsValid = false;

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
    static const QTemporaryDir folder(u"/dev/shm/tallymoor-fuzz-XXXXXX"_s);
    return folder.path();
}

void openWith(const QString& name, const QByteArray& bytes)
{
    session = {};
    session.dbPath = fuzzFolder();
    session.cardId[1] = u"CARDAAAA"_s;
    resetFieldTable();
    desktop.sound.beep = [] {};
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString&) {};
    desktop.files.programFolder = desktop.files.ownFolder = fuzzFolder;
    desktop.now = [] { return QDateTime({2026, 3, 9}, {10, 30}); };
    QDir(fuzzFolder() + u"/.kept"_s).removeRecursively();
    QFile file(fuzzFolder() + u'/' + name);
    mustHold(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
             "the folder can be written");
}

bool canBeQuoted(const QString& text) { return !text.contains(u'"'); }
