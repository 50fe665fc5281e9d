// The one seam to everything outside the program: sounds, questions, waiting, chance, files' places.
// Set once at start-up by installDesktop(); tests set a recording one.
#pragma once

#include <QDate>
#include <QImage>
#include <QSize>
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

struct Desktop {
    std::function<void()> beep;
    /// Shows a message box and waits until it is closed.
    std::function<void(MessageIcon icon, const QString& title, const QString& text)> showMessage;
    /// Asks with Yes and No; true for Yes.
    std::function<bool(const QString& title, const QString& text)> ask;
    /// The folder that was chosen, empty when none was.
    std::function<QString(const QString& caption, const QString& startFolder)> chooseFolder;
    /// The file that was chosen, empty when none was. `filter` as "Sounds (*.wav)".
    std::function<QString(const QString& caption, const QString& startFolder, const QString& filter)>
        chooseFile;

    /// Lets the window system handle what has happened meanwhile; one paint of all that was marked for it.
    std::function<void()> yield;
    /// The same, but sleeps until something happens: for a run that the pupil has paused.
    std::function<void()> waitForEvents;
    /// A fresh random number, 0 up to but not including 1.
    std::function<double()> random;
    std::function<QDate()> today;

    /// Hands a document to the program that the desktop has for it. Raises 53 when it is not there.
    std::function<void(const QString& path)> openDocument;
    /// Starts a program in a normal window without waiting. Raises 53 when it can't be started.
    std::function<void(const QString& path, const QStringList& arguments)> startProgram;
    /// Plays a wave file without waiting for its end; a file that can't be played is passed over.
    std::function<void(const QString& path)> playSound;

    std::function<void()> clearClipboard;
    std::function<void(const QString& text)> copyText;
    std::function<void(const QImage& picture)> copyPicture;

    std::function<QStringList()> printerNames;
    std::function<QString()> defaultPrinterName;

    /// Shows the hourglass as the mouse pointer everywhere, or the usual pointers again.
    std::function<void(bool busy)> setBusyPointer;
    /// The screen's size in pixels, and its twips to the pixel (15 at 96 dpi).
    std::function<QSize()> screenSize;
    std::function<double()> twipsPerPixelX;
    std::function<double()> twipsPerPixelY;
    /// The device's own pixels to one pixel of ours, 2 on a screen of double density.
    std::function<double()> pixelRatio;

    /// The folder of the executable, where the settings file lies; no separator at its end.
    std::function<QString()> programFolder;
    std::function<QString()> documentsFolder;
    std::function<QList<Volume>()> volumes;
};

extern Desktop desktop;
