#include "editing/mapImport.h"

#include "core/mainView.h"
#include "core/session.h"
#include "database/chooseDatabase.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "store/descriptionFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString startFolder()
{
    const QString ofDesktop = desktop.files.desktopFolder();
    return QFileInfo(ofDesktop).isDir() ? ofDesktop : desktop.files.documentsFolder();
}

/// Loaded before it becomes the background. A path with a quotation mark can't be written to the description.
QImage pictureAt(const QString& path)
{
    if (path.contains(u'"'))
        throw RuntimeError(pathAccessError);
    return readBackground(path);
}

} // namespace

void layMapUnderCards()
{
    const QString path = importMap(startFolder());
    if (path == "Cancel"_L1)
        return;
    desktop.screen.setBusyPointer(true);
    QImage picture;
    ignoringErrors({[&] { picture = pictureAt(path); }});
    desktop.screen.setBusyPointer(false);
    if (picture.isNull()) {
        refuse(u"Import Map"_s, u"Sorry. This file can't be opened."_s);
        return;
    }
    session.backgroundPicture = path;
    session.backgroundImage = picture;
    mainView.redrawBoard();
}
