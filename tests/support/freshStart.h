// The start of every test: a new session, no forms, empty caches, and seams that record calls instead of
// acting.
#pragma once

#include "platform/desktop.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <vector>

class QDialog;

/// Prints the text in failed comparisons.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

/// The calls recorded by the seams, and the prepared answers.
struct Recorded {
    int beeps = 0;
    int rounds = 0;              // of yield
    int ends = 0;                // of the program
    QStringList messages;        // "title|text"
    QStringList played;          // paths of sounds
    QByteArray recording;        // what the microphone delivers
    SoundProgress soundProgress; // of player and recorder
    QStringList started;         // programs and documents, with their arguments after blanks
    QStringList printed;         // "printer|title" of every job
    QByteArray pdf;              // of the last job
    bool busy = false;           // the hourglass is shown
    std::vector<int> redrawnCards;

    std::deque<bool> answers;   // to ask(); an unexpected question fails the test and is answered No
    std::deque<QString> chosen; // to chooseFolder() and chooseFile()
    std::deque<double> randoms; // then 0.5 for ever
    std::function<void(int round)> inYield;                // acts in the middle of a flight
    std::deque<std::function<void(QDialog&)>> dialogSteps; // one for each modal dialog, in order
};

extern Recorded recorded;

/// Resets everything. The program's folder is a new, empty, temporary one.
void freshStart();

/// The temporary folder of the running test, with a separator at its end.
QString testFolder();

/// A picture of one colour.
inline QImage plain(QSize size, QColor colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

class Fresh : public testing::Test {
protected:
    Fresh() { freshStart(); }
    ~Fresh() override;
};
