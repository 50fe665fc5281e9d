// What the fuzz targets share: a quiet desktop, a folder in memory, and a check that is no assertion.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// Ends the program with the text when the condition doesn't hold, so that the fuzzer keeps the input.
void mustHold(bool condition, const char* text);

/// The bytes the fuzzer made.
QByteArray inputBytes(const uint8_t* data, size_t size);

/// A new session in a folder of this process's own, whose file `name` holds the bytes. Messages go nowhere.
void openWith(const QString& name, const QByteArray& bytes);
QString fuzzFolder();

/// A text that the files' format, where nothing is escaped, can hold between quotes.
bool canBeQuoted(const QString& text);
