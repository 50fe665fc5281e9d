#include "store/chooseDatabase.h"

#include "core/session.h"
#include "platform/forms.h"
#include "store/FileForm.h"
#include "store/paths.h"

namespace {

const QString noFiles =
    QStringLiteral("ImPossIBle*"); // a pattern that matches nothing: only folders are to be seen

} // namespace

QString chooseDatabase(const QString& startFolder)
{
    QString path = QStringLiteral("Cancel");
    withErrorBox([&] {
        auto& dialog = form<FileForm>();
        dialog.choose(QStringLiteral("Open Database"), dialog.TLPath.isEmpty() ? startFolder : dialog.TLPath,
                      noFiles);
        showModal(dialog);
        if (session.dialogResult == QLatin1String("OK"))
            path = cleanPath(joinPath(dialog.folder(), dialog.chosenFile));
        else if (session.dialogResult == QLatin1String("DBOK"))
            path = dialog.folder();
    });
    unload<FileForm>(); // so that the next one reads the settings anew
    return path;
}
