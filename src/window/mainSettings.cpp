#include "window/mainSettings.h"

#include "core/mainView.h"
#include "core/session.h"
#include "options/teacherOptions.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"
#include "store/options.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

void choosePrinter()
{
    PrinterList& list = session.paper.Printercombo;
    list.names = desktop.paper.printerNames();
    list.listIndex = list.names.isEmpty() ? -1 : int(list.names.indexOf(desktop.paper.defaultPrinterName()));
    const int index = toInteger(leadingNumber(read(option::printer)));
    if (index < -1 || index >= list.names.size())
        throw RuntimeError(invalidProperty);
    list.listIndex = index;
}

void takeDatabaseStatus()
{
    session.options.Dbs = read(option::databaseStatus);
    if (session.options.Dbs == "RO"_L1 || session.options.Dbs == "RW"_L1)
        session.databaseStatus = session.options.Dbs;
}

void takeCaseSensitivity()
{
    session.options.SensBox = read(option::caseSensitive);
    setCaseSensitivity(session.options.SensBox);
}

} // namespace

void loadMainSettings()
{
    try {
        choosePrinter();
    } catch (const RuntimeError& error) {
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s, error.description());
    }
    session.options.txtShow = read(option::startupTimer);
    session.options.RefreshBox = read(option::hideRefresh);
    session.window.refreshCheck.visible = session.window.PicRef.visible =
        session.options.RefreshBox != "1"_L1;
    session.options.ColText = read(option::cardColour);
    session.options.ColText2 = session.board.borderColour = read(option::borderColour);
    takeDatabaseStatus();
    session.options.BCol = session.board.colour = read(option::backgroundColour);
    session.options.keysValue = optionsLetter();
    takeCaseSensitivity();
    session.options.WSPath = QDir::rootPath(); // where the system itself lies
    session.options.txtClue = read(option::clues);
    if (session.options.txtClue == "1"_L1)
        session.window.cmdQuestion.visible = true;
    session.options.txtDBLock = read(option::lockDatabase);
    session.options.boardKeys = read(option::boardKeys);
}

void rereadDeleteOption() { session.options.txtDelRandomCard = read(option::scatterCards); }

void rereadRefreshOption()
{
    session.options.RefreshBox = read(option::hideRefresh);
    session.window.refreshCheck.visible = session.window.PicRef.visible =
        session.options.RefreshBox != "1"_L1;
    mainView.showControls();
}

void rereadClueOption()
{
    session.options.txtClue = read(option::clues);
    if (session.options.txtClue == "1"_L1 || session.options.txtClue == "0"_L1)
        session.window.cmdQuestion.visible = session.options.txtClue == "1"_L1;
    mainView.showControls();
}

void rereadLockOption() { session.options.txtDBLock = read(option::lockDatabaseNow); }
