#include "editing/newDatabase.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/wholeFile.h"
#include "store/opening.h"
#include "store/paths.h"
#include "store/settings.h"

#include <QDir>

namespace {

constexpr int firstFields = 3;

bool meansDocuments(const QString& workingFolder)
{
    return workingFolder.isEmpty() || workingFolder == QLatin1String("MyDocs");
}

bool folderCanBear(const QString& name)
{
    const auto impossible = [](QChar letter) {
        return letter.category() == QChar::Other_Control || QStringLiteral("\\/:*?\"<>|").contains(letter);
    };
    const bool dotsAndBlanks =
        std::all_of(name.begin(), name.end(), [](QChar letter) { return letter == u'.' || letter == u' '; });
    return !dotsAndBlanks && std::none_of(name.begin(), name.end(), impossible);
}

void emptySession()
{
    resetFieldTable();
    session.numFields = firstFields;
    session.numCards = 0;
    resetCardTable();
    session.selectedCard = 1;
    session.databaseStatus = QStringLiteral("RW");
    session.menuItemState[1][1] = QStringLiteral("Show"); // "Delete Card"
    session.designReadOnly = false;
    session.fieldTableForgotten = false;
    session.backgroundPicture = QStringLiteral("none");
    session.backgroundImage = {};
}

} // namespace

QString customDirectory(const QString& workingFolder)
{
    return meansDocuments(workingFolder) ? desktop.documentsFolder() : workingFolder;
}

QString customDirectoryText(const QString& workingFolder)
{
    const QString place =
        meansDocuments(workingFolder)
            ? QStringLiteral("The Database will be created in 'My Documents' folder of this computer.")
            : QStringLiteral("The Database will be created in: '") + workingFolder + QLatin1Char('\'');
    return place + QStringLiteral("\nYou can change the path in 'Teacher Options'");
}

QString newDatabasePath(const QString& folder, const QString& name)
{
    if (!folderCanBear(name))
        throw RuntimeError(pathAccessError);
    return cleanPath(joinPath(folder, name));
}

QString folderExistsText(const QString& path)
{
    return QStringLiteral("The folder '%1' already exist. You have the following choices:\n"
                          "I. Rename the folder to another name.\n"
                          "II. Remove the folder to another location.\n"
                          "III. Use another name for your database.")
        .arg(path);
}

void beginDatabase(const QString& path)
{
    const QString documents = desktop.documentsFolder();
    if (path.startsWith(documents + QLatin1Char('/')))
        QDir().mkpath(documents); // a fresh user's desktop names it before it is there
    makeFolder(path);
    session.dbPath = path;
    writeSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"), path);
    emptySession();
    enableDatabaseControls();
    session.SelectBox.visible = false; // there is no card to frame
    screen.redrawBoard();
}
