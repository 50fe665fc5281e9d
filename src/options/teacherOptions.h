// What the teacher's options screen works on: values read from the settings when it opens, changed by its
// controls, and written together when it closes with OK.
#pragma once

#include "store/options.h"

#include <QList>
#include <QString>

/// The working values, one for each option, as they are in the settings. The names are those of the screen's
/// hidden boxes.
struct TeacherValues {
    QString WKDPathTxt;    // the working folder as read
    QString WorkingDirTxt; // and as it is to be: "MyDocs", a path, or empty
    QString TxtMyDocs;     // the user's documents folder
    QString upLevelStatus;
    QString NP1;
    QString NP2;
    QString NP3;
    QString NP4;
    QString txtClue;
    QString BCol;
    QString ColText;
    QString ColText2;
    QString KeyCombo;
    QString TxtRemindMe;
    QString SensBox;
    QString soundStatus;
    QString txtDelCardRandom;
    QString RefreshBox;
    QString roOptionStatus;
    QString txtDBLock;
    QString txtSaveDir; // these two are only passed through: no control in view changes them
    QString txtShow;
    QString TipBox; // stored nowhere
    QString printerIndex;
    QString printerDevice;
};

enum class Page { folders, reporting, colours, misc, printer, database, about, hidden };

/// A check box of the screen.
struct Tick {
    const char* name;
    const char* caption;
    Page page;
    const char* frame; // the caption of the frame around it
    QString TeacherValues::*box;
    const char* ticked; // the value of the box
    const char* unticked;
    void (*atOnce)(bool ticked); // what a click changes before OK, null for nothing
};

/// All check boxes, in the order of the pages.
const QList<Tick>& ticks();

/// Reads all options, and copies four of them to session.options: keysValue, soundStatus, roOptionStatus and
/// upLevelStatus.
TeacherValues loadTeacherValues();

/// The settings that OK writes, in their order. Without a working folder this is the real documents folder
/// instead, and the option for clues is written as well.
QList<Setting> settingsOf(const TeacherValues& values);

/// OK: writes the settings and applies those that the running program follows. False when they could not be
/// written.
bool keepTeacherValues(const TeacherValues& values);

/// "True" and "False" set whether texts are compared with case; any other word changes nothing.
void setCaseSensitivity(const QString& word);

/// The printer of that name becomes the program's current one, if it is among the printers.
void choosePrinter(const QString& name, const QStringList& printers);

/// The stored index of a printer, -1 for one that isn't in a list of `count` printers.
int printerIndexIn(const QString& stored, qsizetype count);

/// The colours that are offered for captions and frames.
struct Swatch {
    const char* name;
    const char* value; // as in the settings
};
const QList<Swatch>& swatches();

/// The name of a colour of the settings: one of the swatches', "Black", or "Another colour".
QString colourName(const QString& value);
