// Profile files: lines "[section]", then lines "key=value". Sections and keys are case-insensitive.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The value of the first such key in the first such section, without surrounding blanks and one pair of
/// double or single quotes. Without one, `absent` without the blanks at its end. Either is cut to 199
/// characters. A line that begins with ";" is a comment. A file that can't be read counts as empty.
QString readProfile(const QString& section, const QString& key, const QString& absent, const QString& path);

/// A key of a section and the value that it is to have.
struct ProfileLine {
    QString section;
    QString key;
    QString value;
};

/// The values of several keys from one reading of the file, in their order. The lines' values are those of
/// missing keys.
QStringList readProfile(const QList<ProfileLine>& wanted, const QString& path);

/// Changes or adds these lines at one stroke; all others stay as they are, in their order. Line breaks in a
/// value become blanks. A lock keeps two programs, also on different machines, from changing the file at the
/// same time. False, with the file as it was, when it can't be written.
bool writeProfile(const QList<ProfileLine>& changes, const QString& path);
