#include "options/teacherOptions.h"

#include "core/mainView.h"
#include "core/session.h"
#include "platform/colour.h"
#include "platform/desktop.h"
#include "platform/values.h"

using namespace Qt::StringLiterals;

namespace {

using Box = QString TeacherValues::*;

/// An option, the value that stands for a missing key here, and its box.
struct Reading {
    Option option;
    const char* absent; // null: as everywhere else
    Box box;
};

const QList<Reading>& readings()
{
    static const QList<Reading> table = {
        {option::hideRefresh, nullptr, &TeacherValues::RefreshBox},
        {option::caseSensitive, nullptr, &TeacherValues::SensBox},
        {option::cardColour, "Not specified", &TeacherValues::ColText},
        {option::borderColour, "Not specified", &TeacherValues::ColText2},
        {option::startupTimer, nullptr, &TeacherValues::txtShow},
        {option::backgroundColour, nullptr, &TeacherValues::BCol},
        {option::optionsKey, nullptr, &TeacherValues::KeyCombo},
        {option::sound, nullptr, &TeacherValues::soundStatus},
        {option::readOnly, nullptr, &TeacherValues::roOptionStatus},
        {option::stayInFolder, nullptr, &TeacherValues::upLevelStatus},
        {option::jotterView, nullptr, &TeacherValues::NP1},
        {option::jotterSave, nullptr, &TeacherValues::NP2},
        {option::jotterCopy, nullptr, &TeacherValues::NP3},
        {option::reportPrintTick, nullptr, &TeacherValues::NP4}, // written to another key
        {option::savingFolder, nullptr, &TeacherValues::txtSaveDir},
        {option::scatterCards, nullptr, &TeacherValues::txtDelCardRandom},
        {option::workingFolder, "MyDocs", &TeacherValues::WKDPathTxt},
        {option::remindOfAdding, nullptr, &TeacherValues::TxtRemindMe},
        {option::printer, nullptr, &TeacherValues::printerIndex},
        {option::printerDevice, nullptr, &TeacherValues::printerDevice},
        {option::clues, nullptr, &TeacherValues::txtClue},
        {option::lockDatabase, nullptr, &TeacherValues::txtDBLock},
    };
    return table;
}

/// The options that are always written, between the working folder and the printer.
const QList<std::pair<Option, Box>>& writings()
{
    static const QList<std::pair<Option, Box>> table = {
        {option::hideRefresh, &TeacherValues::RefreshBox},
        {option::cardColour, &TeacherValues::ColText},
        {option::borderColour, &TeacherValues::ColText2},
        {option::caseSensitive, &TeacherValues::SensBox},
        {option::startupTimer, &TeacherValues::txtShow},
        {option::backgroundColour, &TeacherValues::BCol},
        {option::optionsKey, &TeacherValues::KeyCombo},
        {option::sound, &TeacherValues::soundStatus},
        {option::readOnly, &TeacherValues::roOptionStatus},
        {option::stayInFolder, &TeacherValues::upLevelStatus},
        {option::jotterView, &TeacherValues::NP1},
        {option::jotterSave, &TeacherValues::NP2},
        {option::clues, &TeacherValues::txtClue}, // only without a working folder
        {option::jotterCopy, &TeacherValues::NP3},
        {option::reportPrint, &TeacherValues::NP4},
        {option::remindOfAdding, &TeacherValues::TxtRemindMe},
        {option::savingFolder, &TeacherValues::txtSaveDir},
        {option::scatterCards, &TeacherValues::txtDelCardRandom},
        {option::lockDatabase, &TeacherValues::txtDBLock},
        {option::printer, &TeacherValues::printerIndex},
        {option::printerDevice, &TeacherValues::printerDevice},
    };
    return table;
}

void applyValues(const TeacherValues& values)
{
    session.options.ColText = values.ColText;
    session.board.borderColour = values.ColText2;
    setCaseSensitivity(values.SensBox);
    session.options.BCol = session.board.colour = values.BCol;
    mainView.allowInReport("RTF1", values.NP2 != "1"_L1);
    mainView.redrawBoard();
}

} // namespace

const QList<Tick>& ticks()
{
    static const QList<Tick> table = {
        {"ChkUp", "&Disable Folder Access && Browse Network Button in Open Dialogue Box", Page::folders,
         "Folder Access", &TeacherValues::upLevelStatus, "True", "False",
         [](bool on) { session.options.upLevelStatus = on ? u"True"_s : u"False"_s; }},
        {"ChkT1", "Disable &View Button", Page::reporting, "Jotter", &TeacherValues::NP1, "1", "0",
         [](bool on) { mainView.allowInReport("BtnPrt", !on); }},
        {"ChkT2", "D&isable Save Button", Page::reporting, "Jotter", &TeacherValues::NP2, "1", "0",
         [](bool on) { mainView.allowInReport("BtnSave", !on); }},
        {"ChkT3", "Disable Cop&y Button", Page::reporting, "Jotter", &TeacherValues::NP3, "1", "0",
         [](bool on) { mainView.allowInReport("BtnCopy1", !on); }},
        {"ChkPRpt", "Disable Print B&utton", Page::reporting, "View Report", &TeacherValues::NP4, "1", "0",
         [](bool on) { mainView.allowInReport("PrintCommand", !on); }},
        {"ChkClue", "Show Databa&se Clues Button", Page::reporting, "Database Clues", &TeacherValues::txtClue,
         "1", "0", nullptr},
        {"ChkRemind", "Show 'Add Card' Reminder", Page::misc, "Add Card Reminder",
         &TeacherValues::TxtRemindMe, "1", "0", nullptr},
        {"ChkSens", "&Enable Case Sensitivity", Page::misc, "Case Sensitivity", &TeacherValues::SensBox,
         "True", "False", nullptr},
        {"ChkSnd", "&Show Add Sound Option", Page::misc, "Sound Option", &TeacherValues::soundStatus, "1",
         "0", [](bool on) { session.options.soundStatus = on ? 1 : 0; }},
        {"chkDelCrd", "Scatter cards after deletion", Page::misc, "Delete Cards",
         &TeacherValues::txtDelCardRandom, "1", "0", nullptr},
        {"ChkRefresh", "&Hide Refresh Option", Page::database, "Refresh Option", &TeacherValues::RefreshBox,
         "1", "0", nullptr},
        {"ChkDBRO", "Enable Read Only Option", Page::database, "Read Only Databases *",
         &TeacherValues::roOptionStatus, "RW", "RO",
         [](bool on) { session.options.roOptionStatus = on ? u"RW"_s : u"RO"_s; }},
        {"chkDBLock", "Lock Database", Page::database, "Lock Database*", &TeacherValues::txtDBLock, "1", "0",
         nullptr},
        {"ChkStartup", "&Show Startup Dialog  (Req Re-start)", Page::hidden, "Startup Dialog",
         &TeacherValues::txtShow, "True", "False", nullptr},
        {"ChkTips", "&Show Tips At Startup", Page::hidden, "Daily Tips", &TeacherValues::TipBox, "1", "0",
         nullptr},
    };
    return table;
}

TeacherValues loadTeacherValues()
{
    QList<Option> options;
    for (const auto& [option, absent, box] : readings())
        options.append({option.section, option.key, absent ? absent : option.absent});
    const QStringList read = readSettings(options);
    TeacherValues values;
    for (qsizetype i = 0; i < read.size(); ++i)
        values.*readings()[i].box = read[i];
    values.KeyCombo = session.options.keysValue = optionsLetterOf(values.KeyCombo);
    values.TxtMyDocs = desktop.files.documentsFolder();
    values.WorkingDirTxt = values.WKDPathTxt;

    session.options.soundStatus = soundStatusOf(values.soundStatus);
    values.soundStatus = QString::number(session.options.soundStatus);
    session.options.roOptionStatus = values.roOptionStatus;
    session.options.upLevelStatus = values.upLevelStatus;
    return values;
}

QList<Setting> settingsOf(const TeacherValues& values)
{
    const bool noFolder = values.WorkingDirTxt.isEmpty();
    QList<Setting> settings = {{option::workingFolder, noFolder ? values.TxtMyDocs : values.WorkingDirTxt}};
    for (const auto& [option, box] : writings()) {
        if (noFolder || box != &TeacherValues::txtClue)
            settings.append({option, values.*box});
    }
    return settings;
}

bool keepTeacherValues(const TeacherValues& values)
{
    const bool written = writeSettings(settingsOf(values));
    applyValues(values);
    // Each reads its option again in a moment, when the file is written and the screen has gone.
    for (const char* timer : {"TMF", "tmrDelCard", "tmrDBLock"})
        mainView.startTimer(timer);
    if (values.WorkingDirTxt.isEmpty())
        mainView.startTimer("tmrClue");
    return written;
}

void setCaseSensitivity(const QString& word)
{
    if (word == "True"_L1)
        session.options.caseSensitive = true;
    else if (word == "False"_L1)
        session.options.caseSensitive = false;
}

void choosePrinter(const QString& name, const QStringList& printers)
{
    if (!printers.contains(name))
        return;
    session.paper.Printercombo = {printers, int(printers.indexOf(name))};
    session.paper.saveAsPdf = false;
}

int printerIndexIn(const QString& stored, qsizetype count)
{
    const double index = leadingNumber(stored);
    return index >= 0 && index < double(count) ? int(index) : -1;
}

const QList<Swatch>& swatches()
{
    static const QList<Swatch> table = {
        {"Red", "255"}, {"Blue", "16711680"}, {"Yellow", "65535"}, {"Green", "65280"}};
    return table;
}

QString colourName(const QString& value)
{
    const QColor colour = colourOf(value);
    for (const auto& [name, offered] : swatches()) {
        if (colour == colourOf(QLatin1StringView(offered)))
            return QLatin1StringView(name);
    }
    return colour == QColor(Qt::black) ? u"Black"_s : u"Another colour"_s;
}
