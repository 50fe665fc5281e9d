// A full database for the benchmarks, and the program without its dialogs.
#pragma once

#include <QString>

inline constexpr int fullDatabase = 99; // cards

/// The folder of a database with that many cards and full pictures, made at the first call.
QString fullFolder();

/// Paths of its files: the record, the picture.
QString recordOf(int card);
QString pictureOf(int card);

/// A new session in the main window, with the real desktop but settings of its own. A message box aborts the
/// benchmark, since it could not be answered.
void startFresh();

/// The resident memory of this process in MB.
double residentMegabytes();
