#include "database/newDatabase.h"

#include "core/mainView.h"
#include "core/session.h"
#include "database/opening.h"
#include "platform/desktop.h"
#include "platform/wholeFile.h"
#include "store/options.h"
#include "store/paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstFields = 3;

bool meansDocuments(const QString& workingFolder)
{
    return workingFolder.isEmpty() || workingFolder == documentsWord;
}

/// The settings file would lose them, and the last database couldn't be found again.
QString withoutBlanksAtEnd(QString name)
{
    while (!name.isEmpty() && name.back().isSpace())
        name.chop(1);
    return name;
}

bool folderCanBear(const QString& name)
{
    const auto impossible = [](QChar letter) {
        return letter.category() == QChar::Other_Control || u"\\/:*?\"<>|"_s.contains(letter);
    };
    const bool isHidden = name.startsWith(u'.'); // the file dialog would never show it
    return !name.isEmpty() && !isHidden && std::none_of(name.begin(), name.end(), impossible);
}

void emptySession()
{
    resetFieldTable();
    session.numFields = firstFields;
    session.numCards = 0;
    resetCardTable();
    session.selectedCard = 1;
    session.databaseStatus = u"RW"_s;
    session.menu.menuItemState[1][1] = u"Show"_s; // "Delete Card"
    session.design.ChkRD = false;
    session.design.fieldTableForgotten = false;
    session.backgroundPicture = u"none"_s;
    session.backgroundImage = {};
}

} // namespace

QString customDirectory(const QString& workingFolder)
{
    return resolvedFolder(workingFolder.isEmpty() ? QString(documentsWord) : workingFolder);
}

QString customDirectoryText(const QString& workingFolder)
{
    const QString place = meansDocuments(workingFolder)
                              ? u"The Database will be created in 'My Documents' folder of this computer."_s
                              : u"The Database will be created in: '"_s + workingFolder + u'\'';
    return place + u"\nYou can change the path in 'Teacher Options'"_s;
}

QString newDatabasePath(const QString& folder, const QString& typed)
{
    const QString name = withoutBlanksAtEnd(typed);
    if (!folderCanBear(name))
        throw RuntimeError(pathAccessError);
    return cleanPath(joinPath(folder, name));
}

QString folderExistsText(const QString& path)
{
    return u"The folder '%1' already exist. You have the following choices:\n"
           "I. Rename the folder to another name.\n"
           "II. Remove the folder to another location.\n"
           "III. Use another name for your database."_s.arg(path);
}

void beginDatabase(const QString& path)
{
    const QString documents = desktop.files.documentsFolder();
    if (path.startsWith(documents + u'/'))
        QDir().mkpath(documents); // a new user's documents folder may not exist yet
    makeFolder(path);
    mainView.closeClues();
    session.dbPath = path;
    write(option::lastDatabase, path);
    emptySession();
    enableDatabaseControls();
    session.board.SelectBox.visible = false; // there is no card to put it around
    mainView.redrawBoard();
}
