#include "window/dispatch.h"

#include "analysis/analysisCommands.h"
#include "analysis/printCommand.h"
#include "board/labels.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "database/openDatabase.h"
#include "editing/cardEntry.h"
#include "editing/designCommand.h"
#include "editing/newCommand.h"
#include "guidance/helpCommand.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "store/questionFiles.h"
#include "tools/bin.h"
#include "tools/toolCommands.h"
#include "window/shutDown.h"

#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void nothing() {}

void openAnother()
{
    deleteAnswers();
    endingOnError(openDatabase);
}

void tellThatTheDataMapIsMissing()
{
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::information, u"Information"_s,
                              u"This feature is currently not available. It will be in the final release."_s);
}

const MenuLine lines[] = {
    {u"New"_s, u"menuNew"_s, 0, newCommand},
    {u"Open..."_s, u"menuOpen"_s, 0, openAnother},
    {u"Save"_s, {}, asItWas, nothing},
    {u"Save As..."_s, {}, asItWas, nothing},
    {u"Print..."_s, u"menuPrint"_s, asItWas, printCommand},
    {u"Exit"_s, u"menuExit"_s, 0, shutDown},
    {u"Add Card..."_s, u"menuAddCard"_s, 0, addCard},
    {u"Delete Card"_s, u"menuDeleteCard"_s, 0, showBin},
    {u"Design Cards..."_s, u"menuDesignCards"_s, 0, designCommand},
    {u"Arrange Cards..."_s, u"menuArrangeCards"_s, 0, arrangeCommand},
    {u"Find..."_s, u"menuFind"_s, 0, findCommand},
    {u"Sort..."_s, u"menuSort"_s, 0, sortCommand},
    {u"Group..."_s, u"menuGroup"_s, 0, groupCommand},
    {u"Make Graph..."_s, u"menuMakeGraph"_s, 1, makeGraph},
    {u"Report..."_s, u"menuReport"_s, 0, makeReport},
    {u"Statistics..."_s, u"menuStatistics"_s, 0, showStatistics},
    {u"Data Map..."_s, {}, 0, tellThatTheDataMapIsMissing},
    {u"Undo"_s, {}, asItWas, nothing},
    {u"Cut"_s, {}, asItWas, nothing},
    {u"Copy"_s, {}, asItWas, nothing},
    {u"Paste"_s, {}, asItWas, nothing},
    {u"Select All"_s, {}, asItWas, nothing},
    {u"Help"_s, u"menuHelp"_s, 0, helpCommand},
};

} // namespace

const MenuLine* menuLine(const QString& word)
{
    const auto* line =
        std::find_if(std::begin(lines), std::end(lines), [&](const MenuLine& l) { return l.word == word; });
    return line == std::end(lines) ? nullptr : line;
}

QString pictureOf(const QString& word)
{
    const MenuLine* line = menuLine(word);
    return line ? line->icon : QString();
}

bool lineIsEnabled(int line) { return session.menu.menuCaption[line].enabled; }

void dispatchLine(int line)
{
    // Assistive technology presses a line twice, or one under a dialog.
    if (!session.menu.MenuHolder.visible || QGuiApplication::modalWindow())
        return;
    mainView.setRefresh(u"Off"_s);
    session.menu.pullDownBut.visible = false;
    session.menu.AnswerHolder.visible = false;
    mainView.showControls();
    const QString word = session.menu.menuItemCaption[session.menu.openMenuIndex][line];
    if (word != "Print..."_L1)
        clearBoardLabels();
    if (!lineIsEnabled(line))
        return;
    closeMenu();
    runCommand(word);
}

void runCommand(const QString& word)
{
    const MenuLine* line = menuLine(word);
    if (!line)
        return;
    if (line->graphOnScreen != asItWas)
        session.graph.graphOnScreen = qint16(line->graphOnScreen);
    line->command();
}
