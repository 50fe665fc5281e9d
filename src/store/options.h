// The options of the installation, each once: where it stands in the settings file, what it is without a
// value there, what it means. Every read goes to the file, which programs on other workstations may change;
// only a value that could not be written is taken from memory.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A key of the settings file.
struct Option {
    const char* section;
    const char* key;
    const char* absent; // the value when the file, the section or the key isn't there
};

/// An option and the value that it is to have.
struct Setting {
    Option option;
    QString value;
};

namespace option {

// clang-format off

// What opens, and where.
inline constexpr Option startupTimer    {"Startup",     "State",       "False"};         // "True" starts TmrShow
inline constexpr Option lastDatabase    {"Last DB",     "Path",        ""};
inline constexpr Option workingFolder   {"Working Dir", "Path",        ""};              // see resolvedFolder()
inline constexpr Option savingFolder    {"Save Dir",    "Path",        ""};
inline constexpr Option clipartFolder   {"Clipart",     "Browserpath", "Not specified"};
inline constexpr Option stayInFolder    {"UpLevel",     "Status",      "False"};         // "False": may go up and browse

// What may be changed.
inline constexpr Option databaseStatus  {"Database",    "Status",      "RW"};            // "RO": opens read-only
inline constexpr Option readOnly        {"RO",          "Status",      "RW"};            // "RW": may be marked read-only
inline constexpr Option lockDatabase    {"LockDB",      "Status",      "0"};             // "1" locks the card editor
inline constexpr Option lockDatabaseNow {"tmrDBLock",   "Status",      "0"};             // read, but never written

// How it looks: a decimal with red in the low byte, or "&H" and a number.
inline constexpr Option cardColour      {"Cards",       "Colour",      "0"};             // of the captions on the cards
inline constexpr Option borderColour    {"Border",      "Colour",      "0"};             // of the frame of the marked card
inline constexpr Option backgroundColour{"Background",  "Colour",      "&H8000000F"};    // of the board

// What is offered: "1" is yes.
inline constexpr Option hideRefresh     {"Refresh",     "Visible",     ""};
inline constexpr Option clues           {"Clue",        "Status",      "0"};             // the button "Show Clues"
inline constexpr Option sound           {"Sound",       "Status",      "0"};             // the card editor's sound page
inline constexpr Option remindOfAdding  {"Remind",      "Status",      "0"};             // of "Add Card" in a new database
inline constexpr Option scatterCards    {"DeleteCard",  "Random",      "1"};             // after a deletion
inline constexpr Option caseSensitive   {"CaseSens",    "Status",      "False"};         // "True" or "False"
inline constexpr Option optionsKey      {"Keys",        "Value",       "K"};             // see optionsLetter()

// How it is used.
inline constexpr Option boardKeys       {"Access",      "Keys",        "0"};             // "1": keys reach the cards
inline constexpr Option motion          {"Access",      "Motion",      "auto"};          // "0": nothing moves by itself
inline constexpr Option displayScale    {"Display",     "Scale",       "auto"};          // or a factor of the program's size

// Reports: "1" disables the button.
inline constexpr Option jotterView      {"NotePad",     "Opt1",        "0"};
inline constexpr Option jotterSave      {"NotePad",     "Opt2",        "0"};             // and locks the text
inline constexpr Option jotterCopy      {"NotePad",     "Opt3",        "0"};
inline constexpr Option reportPrint     {"Report",      "Opt",         "0"};
inline constexpr Option reportPrintTick {"Report",      "Opt4",        "0"};             // the tick's state, never written

// Printing.
inline constexpr Option printer         {"Printer",     "Name",        "-1"};            // index in the list of printers
inline constexpr Option printerDevice   {"Printer",     "Device Name", ""};

// clang-format on

} // namespace option

QString read(const Option& option);

/// The values of all of them, in their order.
QStringList readSettings(const QList<Option>& options);

/// The same for a folder. A relative path is resolved against the program's folder, so that a copied program
/// finds what was copied with it; an empty value and "MyDocs" are returned as they are.
QString readFolder(const Option& option);

/// The same for a value that has been read already.
QString fullFolder(const QString& path);

/// Leaves all other settings. What can't be written counts until the program ends; that is not reported.
void write(const Option& option, const QString& value);

/// Writes them all in one replacement of the file: a reader never finds some old and some new. False when
/// they could not be written.
bool writeSettings(const QList<Setting>& settings);

/// The value of a working folder that means the current user's documents.
inline constexpr QLatin1StringView documentsWord("MyDocs");

/// The folder that a value of option::workingFolder means.
QString resolvedFolder(const QString& workingFolder);

/// The letter that opens the teacher options with Ctrl and Shift: the first letter of its setting as a
/// capital, "K" when there is none. No value in the file locks a teacher out.
QString optionsLetter();

/// The same for a value of option::optionsKey that has been read already.
QString optionsLetterOf(const QString& value);

/// A value of option::sound as a number: 1 offers the sound page. 0 for a number outside 16 bits.
qint16 soundStatusOf(const QString& value);
