#include "core/dispatch.h"

#include "board/labels.h"
#include "core/menu.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/shutDown.h"
#include "editing/cardEditor.h"
#include "editing/designCommand.h"
#include "editing/newCommand.h"
#include "platform/desktop.h"
#include "store/cardFiles.h"
#include "store/openDatabase.h"
#include "tools/bin.h"
#include "tools/toolCommands.h"

#include <algorithm>

namespace {

const Refusal noReport{
    [] { return session.numCards == 0; }, QStringLiteral("Making Reports"),
    QStringLiteral("Sorry! You need to add a card or enter values before you can make Reports.")};
const Refusal noStatistics{
    [] { return session.numCards == 0; }, QStringLiteral("Making Statistics"),
    QStringLiteral("Sorry! You need to add a card or enter values before you can make Statistics.")};
const Refusal noGraph{
    [] { return session.numCards > 40; }, QStringLiteral("Making Graphs"),
    QStringLiteral("Sorry! You can make graphs up to 40 cards. Delete some cards and try again.")};

void nothing() {}

void openAnother()
{
    deleteAnswers();
    endingOnError(openDatabase);
}

void tellThatTheDataMapIsMissing()
{
    desktop.beep();
    desktop.showMessage(
        MessageIcon::information, QStringLiteral("Information"),
        QStringLiteral("This feature is currently not available. It will be in the final release."));
}

const MenuLine lines[] = {
    {QStringLiteral("New"), QStringLiteral("menuNew"), 0, closeDatabase},
    {QStringLiteral("Open..."), QStringLiteral("menuOpen"), 0, openAnother},
    {QStringLiteral("Save"), {}, asItWas, nothing},
    {QStringLiteral("Save As..."), {}, asItWas, nothing},
    {QStringLiteral("Print..."), QStringLiteral("menuPrint"), asItWas, nullptr},
    {QStringLiteral("Exit"), QStringLiteral("menuExit"), 0, shutDown},
    {QStringLiteral("Add Card..."), QStringLiteral("menuAddCard"), 0, addCard},
    {QStringLiteral("Delete Card"), QStringLiteral("menuDeleteCard"), 0, showBin},
    {QStringLiteral("Design Cards..."), QStringLiteral("menuDesignCards"), 0, designCommand},
    {QStringLiteral("Arrange Cards..."), QStringLiteral("menuArrangeCards"), 0, arrangeCommand},
    {QStringLiteral("Find..."), QStringLiteral("menuFind"), 0, findCommand},
    {QStringLiteral("Sort..."), QStringLiteral("menuSort"), 0, sortCommand},
    {QStringLiteral("Group..."), QStringLiteral("menuGroup"), 0, groupCommand},
    {QStringLiteral("Make Graph..."), QStringLiteral("menuMakeGraph"), 1, nullptr, &noGraph},
    {QStringLiteral("Report..."), QStringLiteral("menuReport"), 0, nullptr, &noReport},
    {QStringLiteral("Statistics..."), QStringLiteral("menuStatistics"), 0, nullptr, &noStatistics},
    {QStringLiteral("Data Map..."), {}, 0, tellThatTheDataMapIsMissing},
    {QStringLiteral("Undo"), {}, asItWas, nothing},
    {QStringLiteral("Cut"), {}, asItWas, nothing},
    {QStringLiteral("Copy"), {}, asItWas, nothing},
    {QStringLiteral("Paste"), {}, asItWas, nothing},
    {QStringLiteral("Select All"), {}, asItWas, nothing},
    {QStringLiteral("Help"), QStringLiteral("menuHelp"), 0, nullptr},
};

void refuse(const Refusal& refusal)
{
    desktop.beep();
    desktop.showMessage(MessageIcon::exclamation, refusal.title, refusal.text);
}

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

void dispatchLine(int line)
{
    screen.setRefresh(QStringLiteral("Off"));
    session.pullDownBut.visible = false;
    session.AnswerHolder.visible = false;
    screen.showControls();
    const QString word = session.menuItemCaption[session.openMenuIndex][line];
    if (word != QLatin1String("Print..."))
        clearBoardLabels();
    if (!session.menuCaption[line].enabled)
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
        session.graphOnScreen = qint16(line->graphOnScreen);
    if (line->refusal && line->refusal->applies())
        refuse(*line->refusal);
    else if (line->command)
        line->command();
}
