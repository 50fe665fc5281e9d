#include "core/mainSettings.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"
#include "store/settings.h"

#include <QDir>

namespace {

QString option(const char* section, const char* key, const char* absent)
{
    return readSetting(settingsFile(), QLatin1String(section), QLatin1String(key), QLatin1String(absent));
}

bool is(const QString& value, const char* word) { return value == QLatin1String(word); }

void choosePrinter()
{
    PrinterList& list = session.Printercombo;
    list.names = desktop.printerNames();
    list.listIndex = int(list.names.indexOf(desktop.defaultPrinterName()));
    const int index = toInteger(leadingNumber(option("Printer", "Name", "-1")));
    if (index < -1 || index >= list.names.size())
        throw RuntimeError(invalidProperty);
    list.listIndex = index;
}

void takeDatabaseStatus()
{
    session.Dbs = option("Database", "Status", "RW");
    if (is(session.Dbs, "RO") || is(session.Dbs, "RW"))
        session.databaseStatus = session.Dbs;
}

void takeCaseSensitivity()
{
    session.SensBox = option("CaseSens", "Status", "False");
    if (is(session.SensBox, "True"))
        session.caseSensitive = true;
    else if (is(session.SensBox, "False"))
        session.caseSensitive = false;
}

} // namespace

void loadMainSettings()
{
    try {
        choosePrinter();
    } catch (const RuntimeError& error) {
        desktop.showMessage(MessageIcon::stop, QStringLiteral("Error"), error.description());
    }
    session.txtShow = option("Startup", "State", "False");
    session.RefreshBox = option("Refresh", "Visible", "");
    session.refreshCheck.visible = session.PicRef.visible = !is(session.RefreshBox, "1");
    session.ColText = option("Cards", "Colour", "0");
    session.ColText2 = session.borderColour = option("Border", "Colour", "0");
    takeDatabaseStatus();
    session.BCol = session.boardColour = option("Background", "Colour", "&H8000000F");
    session.keysValue = option("Keys", "Value", "K");
    takeCaseSensitivity();
    session.WSPath = QDir::rootPath(); // where the system itself lies
    session.txtClue = option("Clue", "Status", "0");
    if (is(session.txtClue, "1"))
        session.cmdQuestion.visible = true;
    session.txtDBLock = option("LockDB", "Status", "0");
}

void rereadDeleteOption() { session.txtDelRandomCard = option("DeleteCard", "Random", "1"); }
