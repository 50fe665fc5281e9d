// The player of the tutorials: tutorial_player LESSON_FOLDER [/shc]. The switch leaves out the title page.
// Ends with 1 when the lesson could not be played.
#include "controls/application.h"
#include "platform/desktop.h"
#include "platform/realDesktop.h"
#include "player/playerWindow.h"
#include "store/options.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// Unpacked, the player lies in Videos/player of the program's folder, whose settings are its own.
QString programFolder()
{
    const QString folder = QCoreApplication::applicationDirPath();
    return folder.endsWith("/Videos/player"_L1) ? QDir::cleanPath(folder + u"/../.."_s) : folder;
}

/// Runs between the application that only measures the screen and the one that stays.
QString installDesktopAndReadScale()
{
    installDesktop();
    desktop.files.programFolder = programFolder;
    return read(option::displayScale);
}

} // namespace

int main(int argc, char** argv)
{
    const auto application = makeApplication(argc, argv, installDesktopAndReadScale);
    dressApplication();
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool atOnce = arguments.removeAll(u"/shc"_s) > 0;
    PlayerWindow window(arguments.value(0), atOnce);
    window.resize(desktop.screen.size() * 0.8); // when it is no longer maximised
    window.showMaximized();
    const int result = desktop.runProgram();
    return window.hasFailed() ? 1 : result;
}
