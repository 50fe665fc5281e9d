// All routines that write into a database's folder or beside the program, as a table for the fault tests.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>

struct Writer {
    const char* name;
    const char* file;           // the file that it replaces, in the test's folder
    const char* fullMessage;    // its message on a full disk
    bool (*write)(int version); // the content depends on the version; returns the routine's result
};

extern const std::array<Writer, 4> writers;

/// Opens a database with one card in the folder; the settings lie there too.
void useFolder(const QString& folder);

/// The file's content after that version was written over version 0.
QByteArray contentOf(const Writer& writer, int version);

/// The temporary files of unfinished writes in the folder.
QStringList leftoversIn(const QString& folder);
