// Profile files: lines "[section]", then lines "key=value". Sections and keys are found whatever their case.
#pragma once

#include <QString>

/// The value of the first such key in the first such section, without the blanks around it and one pair of
/// double or single quotes; otherwise `absent` without the blanks at its end. At most 199 characters of
/// either. A line that begins with ";" is a comment. A file that can't be read has no keys.
QString readProfile(const QString& section, const QString& key, const QString& absent, const QString& path);

/// Changes or adds the one line; all others stay as they are, in their order. Line breaks in the value become
/// blanks. No two programs change the file at the same time, on a share neither. False, with the file as it
/// was, when it can't be written.
bool writeProfile(const QString& section, const QString& key, const QString& value, const QString& path);
