// Shared by the fuzz targets: a desktop without output, a folder in memory, and a check without GoogleTest.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// Aborts with the text when the condition is false, so that the fuzzer keeps the input.
void mustHold(bool condition, const char* text);

/// Whether the input is one that a reader must take: set by the replay for the seeds in a folder "valid".
extern bool seedIsValid;

/// The fuzzer's bytes.
QByteArray inputBytes(const uint8_t* data, size_t size);

/// A new session in a folder of this process only, whose file `name` contains the bytes. Messages are
/// dropped.
void openWith(const QString& name, const QByteArray& bytes);
QString fuzzFolder();

/// Whether the file format, which has no escapes, can hold this text between quotes.
bool canBeQuoted(const QString& text);
