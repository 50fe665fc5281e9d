#include "database/chooseDatabase.h"

#include "controls/forms.h"
#include "database/FileForm.h"
#include "store/paths.h"

using namespace Qt::StringLiterals;

namespace {

/// The pattern matches nothing: only folders are to be seen.
const FileChoice database{u"Open Database"_s, u"ImPossIBle*"_s, true};
const FileChoice map{u"Import Map"_s, u"*.bmp"_s};

/// The path of what was chosen, or "Cancel". `chooserWord` is the answer that stands for a folder chosen in
/// the desktop's own chooser; empty where that is no choice.
QString pathFrom(const FileChoice& choice, const std::function<QString(const FileForm&)>& startFolder,
                 const QString& chooserWord)
{
    QString path = u"Cancel"_s;
    withErrorBox([&] {
        auto& dialog = form<FileForm>();
        dialog.choose(choice, startFolder(dialog));
        const QString answer = ask(dialog);
        if (answer == "OK"_L1)
            path = cleanPath(joinPath(dialog.folder(), dialog.chosenFile));
        else if (!answer.isEmpty() && answer == chooserWord)
            path = dialog.folder();
    });
    unload<FileForm>(); // the next one reads the settings again
    return path;
}

} // namespace

QString chooseDatabase(const QString& startFolder)
{
    return pathFrom(
        database,
        [&](const FileForm& dialog) { return dialog.TLPath.isEmpty() ? startFolder : dialog.TLPath; },
        u"DBOK"_s);
}

QString importMap(const QString& startFolder)
{
    return pathFrom(map, [&](const FileForm&) { return startFolder; }, {});
}
