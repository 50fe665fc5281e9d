#include "database/chooseDatabase.h"

#include "controls/forms.h"
#include "database/FileForm.h"
#include "store/paths.h"

using namespace Qt::StringLiterals;

namespace {

/// The pattern matches nothing: only folders are to be seen.
const FileChoice database{u"Open Database"_s, u"ImPossIBle*"_s, true};

} // namespace

QString chooseDatabase(const QString& startFolder)
{
    QString path = u"Cancel"_s;
    withErrorBox([&] {
        auto& dialog = form<FileForm>();
        dialog.choose(database, dialog.TLPath.isEmpty() ? startFolder : dialog.TLPath);
        const QString answer = ask(dialog);
        if (answer == "OK"_L1)
            path = cleanPath(joinPath(dialog.folder(), dialog.chosenFile));
        else if (answer == "DBOK"_L1)
            path = dialog.folder();
    });
    unload<FileForm>(); // the next one reads the settings again
    return path;
}
