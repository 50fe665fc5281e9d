// The one seam to everything outside the program. A new function joins a group; the struct itself does not
// grow. installDesktop() sets the real functions at start-up; tests set recording ones.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>

enum class MessageIcon { none, stop, exclamation, information };

/// A drive as the file dialog shows it. `kind`: 2 removable, 3 fixed, 4 network, 5 CD-ROM, 0 anything else.
struct Volume {
    QString name;
    QString root;
    int kind = 0;
};

/// What the program's player and recorder do. Only one of them works at a time.
enum class SoundActivity { none, playing, playingPaused, recording, recordingPaused };

struct SoundProgress {
    SoundActivity activity = SoundActivity::none;
    qint64 recorded = 0; // milliseconds
    double level = 0;    // of the sound being recorded: 0 silence, 1 the loudest
};

/// What the printing system answers about a printer. `sheet` is its usual paper, upright, in points; empty
/// when it doesn't say.
struct PrinterAnswer {
    bool acceptsJobs = false;
    QSizeF sheet;
};

struct Desktop {
    struct Boxes {
        /// Shows a message box and waits until it is closed.
        std::function<void(MessageIcon icon, const QString& title, const QString& text)> showMessage;
        /// Asks with Yes and No; true for Yes.
        std::function<bool(const QString& title, const QString& text)> ask;
        /// The chosen colour, invalid when the dialog was cancelled.
        std::function<QColor(const QString& title, const QColor& present)> chooseColour;
    };

    struct Files {
        /// The chosen folder, empty when the dialog was cancelled. `caption` may have a second line: an
        /// instruction.
        std::function<QString(const QString& caption, const QString& startFolder)> chooseFolder;
        /// The chosen file, empty when the dialog was cancelled. `filter` as in "Sounds (*.wav)".
        std::function<QString(const QString& caption, const QString& startFolder, const QString& filter)>
            chooseFile;
        /// The same for pictures, with a preview of the one that is marked.
        std::function<QString(const QString& caption, const QString& startFolder, const QString& filter)>
            choosePicture;
        /// The path of a file that is to be written, empty when the dialog was cancelled. Asks before one
        /// that is there is replaced.
        std::function<QString(const QString& caption, const QString& suggestedPath, const QString& filter)>
            chooseNewFile;

        /// The folder of the executable, where the settings file lies; no separator at its end.
        std::function<QString()> programFolder;
        std::function<QString()> documentsFolder;
        /// A folder of the user's own for the program's files, made when it isn't there.
        std::function<QString()> ownFolder;
        /// Where the icons of the user's desktop lie; empty when there is none.
        std::function<QString()> desktopFolder;
        std::function<QList<Volume>()> volumes;
    };

    struct Sound {
        std::function<void()> beep;
        /// Starts to play a wave file and returns at once; a file that can't be played is ignored.
        std::function<void(const QString& path)> play;
        /// The same for the bytes of one. Raises 57 when they are no wave file, 68 without a loudspeaker.
        std::function<void(const QByteArray& waveFile)> playBack;
        /// Starts to record with the microphone; what was recorded before is dropped. False when there is no
        /// microphone. A recording ends by itself after ten minutes, when something is played, and when sound
        /// server or microphone disappear.
        std::function<bool()> record;
        /// Holds what is recorded or played, or goes on with it.
        std::function<void(bool paused)> pause;
        /// Stops what is played or recorded. A recording can still be taken.
        std::function<void()> stop;
        /// Ends the recording and hands it out as a wave file; empty when nothing was recorded since.
        std::function<QByteArray()> takeRecording;
        std::function<SoundProgress()> progress;
    };

    struct Paper {
        std::function<QStringList()> printerNames;
        std::function<QString()> defaultPrinterName;
        /// Waits two seconds at most; a printing system that is silent has no printer that accepts jobs.
        std::function<PrinterAnswer(const QString& printer)> askPrinter;
        /// Sends the PDF file as one job of that title. False when it could not be handed over.
        std::function<bool(const QString& printer, const QString& title, const QByteArray& pdf)> print;
    };

    struct Clipboard {
        std::function<void()> clear;
        std::function<void(const QString& text)> copyText;
        std::function<void(const QImage& picture)> copyPicture;
    };

    struct Programs {
        /// Opens a document in the program that the desktop has for it. Raises 53 when that fails.
        std::function<void(const QString& path)> openDocument;
        /// The same for the address of a web page or a new mail ("mailto:...").
        std::function<void(const QString& address)> openLink;
        /// Starts a program in a normal window without waiting. Raises 53 when that fails.
        std::function<void(const QString& path, const QStringList& arguments)> start;
        /// The same for a command line, in which a name with blanks stands between double quotes.
        std::function<void(const QString& commandLine)> startCommand;
    };

    struct Screen {
        /// In pixels.
        std::function<QSize()> size;
        /// 15 at 96 dpi.
        std::function<double()> twipsPerPixelX;
        std::function<double()> twipsPerPixelY;
        /// Device pixels per logical pixel: 2 on a screen of double density.
        std::function<double()> pixelRatio;
        /// Shows the hourglass as the mouse pointer everywhere, or the usual pointers again.
        std::function<void(bool busy)> setBusyPointer;
        /// Whether the desktop asks programs not to move things. May wait for the desktop: ask in an errand.
        std::function<bool()> reducedMotion;
    };

    Boxes boxes;
    Files files;
    Sound sound;
    Paper paper;
    Clipboard clipboard;
    Programs programs;
    Screen screen;

    /// Ends a round of a run: handles pending events, and sleeps for as long as the program is ahead of 4,000
    /// rounds a second, so that cards fly equally fast on every machine.
    std::function<void()> yield;
    /// The same, but sleeps until there is an event: for a run that the pupil has paused.
    std::function<void()> waitForEvents;
    /// Handles events until endProgram(), and returns the program's exit code.
    std::function<int()> runProgram;
    std::function<void()> endProgram;
    /// A fresh random number, 0 up to but not including 1.
    std::function<double()> random;
    std::function<QDateTime()> now;
};

extern Desktop desktop;
