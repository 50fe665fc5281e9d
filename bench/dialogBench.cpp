// The file dialog on a folder of 5,000 entries, until its eight icons are complete.
#include "fullFolder.h"

#include "controls/forms.h"
#include "database/FileForm.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>
#include <QToolButton>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

constexpr int entries = 5000;
const QString description = u"/db-info.tdb"_s;

QString nameOf(int entry) { return u"Folder %1"_s.arg(entry, 4, 10, '0'_L1); }

/// A folder with that many folders; the first eight, which are in view, are databases.
QString crowdedFolder()
{
    static const QTemporaryDir place;
    static bool filled = false;
    for (int entry = 0; !filled && entry < entries; ++entry) {
        const QString path = place.filePath(nameOf(entry));
        QFile file(path + description);
        if (!QDir().mkdir(path) || (entry < FolderWalk::slotCount && !file.open(QIODevice::WriteOnly)))
            qFatal("The benchmark's folder can't be filled");
    }
    filled = true;
    return place.path();
}

/// Listing and sorting the same names, and a look into the first eight.
void dialogFloor(benchmark::State& state)
{
    const QString folder = crowdedFolder();
    for (auto _ : state) {
        QStringList names;
        for (const auto& entry : fs::directory_iterator(folder.toStdString())) {
            if (entry.is_directory())
                names.append(QString::fromStdString(entry.path().filename()));
        }
        names.sort(Qt::CaseInsensitive);
        for (int entry = 0; entry < FolderWalk::slotCount; ++entry)
            benchmark::DoNotOptimize(fs::exists((folder + u'/' + names[entry] + description).toStdString()));
    }
}
BENCHMARK(dialogFloor)->Unit(benchmark::kMillisecond)->UseRealTime();

bool allKnown(const FileForm& dialog)
{
    return std::all_of(dialog.iconBox.begin(), dialog.iconBox.end(), [](const QToolButton* icon) {
        return icon->accessibleName().endsWith("database"_L1);
    });
}

void fillDialog(benchmark::State& state)
{
    const QString folder = crowdedFolder();
    startFresh();
    for (auto _ : state) {
        state.PauseTiming();
        unload<FileForm>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        auto& dialog = form<FileForm>();
        dialog.show();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        dialog.choose({u"Open Database"_s, u"*.none"_s, true}, folder);
        while (!allKnown(dialog))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    }
    unload<FileForm>();
}
BENCHMARK(fillDialog)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
