// Everything that writes into a database's folder or beside the program, in a form that faults can be tried
// on.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>

struct Writer {
    const char* name;
    const char* file;           // that it replaces, in the test's folder
    const char* fullMessage;    // what a full disk makes it say
    bool (*write)(int version); // any number gives another content; tells what the routine returned
};

extern const std::array<Writer, 4> writers;

/// Opens a database with one card in the folder; the settings lie there too.
void useFolder(const QString& folder);

/// What the file holds when that version was written over version 0.
QByteArray contentOf(const Writer& writer, int version);

/// What lies in the folder under the names of unfinished writes.
QStringList leftoversIn(const QString& folder);
