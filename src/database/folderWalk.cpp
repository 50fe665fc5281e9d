#include "database/folderWalk.h"

#include "platform/pictureFile.h"
#include "platform/stretching.h"
#include "store/descriptionFile.h"
#include "store/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

int errorOf(const std::error_code& problem)
{
    if (problem == std::errc::no_such_file_or_directory || problem == std::errc::not_a_directory)
        return pathNotFound;
    return problem == std::errc::permission_denied ? pathAccessError : deviceUnavailable;
}

/// Calls `visit` for every entry of the folder until it returns false. Returns the error that stopped it, if
/// any.
std::error_code eachEntry(const QString& folder,
                          const std::function<bool(const fs::directory_entry&, const QString&)>& visit)
{
    std::error_code problem;
    fs::directory_iterator entry(fs::path(QFile::encodeName(folder).constData()), problem);
    while (!problem && entry != fs::directory_iterator()) {
        if (!visit(*entry, QFile::decodeName(entry->path().filename().c_str())))
            break;
        entry.increment(problem);
    }
    return problem;
}

} // namespace

FolderListing listFolder(const QString& folder, const QString& pattern, const Errands::Forgotten& forgotten)
{
    FolderListing listing;
    const std::error_code problem =
        eachEntry(folder, [&](const fs::directory_entry& entry, const QString& name) {
            std::error_code unknown; // a dangling link is neither file nor folder
            if (name.startsWith(u'.'))
                return !forgotten;
            if (entry.is_directory(unknown))
                listing.folders.append(name);
            else if (QDir::match(pattern, name) && entry.is_regular_file(unknown))
                listing.files.append(name);
            return !forgotten;
        });
    if (problem)
        return {errorOf(problem), {}, {}};
    listing.folders.sort(Qt::CaseInsensitive);
    listing.files.sort(Qt::CaseInsensitive);
    return listing;
}

bool holdsDatabase(const QString& folder)
{
    bool found = false; // one listing needs fewer calls to a share than trying each spelling
    eachEntry(folder, [&](const fs::directory_entry&, const QString& name) {
        found = name.compare(descriptionName, Qt::CaseInsensitive) == 0;
        return !found;
    });
    return found;
}

void FolderWalk::start(const QString& folder, const QString& pattern, bool marksDatabases,
                       const QSize& pictureSize)
{
    filePattern = pattern;
    marking = marksDatabases;
    shrunkSize = pictureSize;
    drives = desktop.files.volumes();
    setFolder(folder);
    walkTo({place, false});
}

void FolderWalk::stop()
{
    errands.forget();
    underWay = false;
}

void FolderWalk::setFolder(const QString& folder)
{
    stop();
    place = QDir::cleanPath(folder);
    drivesShown = false;
    here = {};
    firstShown = 0;
    shown = {};
}

void FolderWalk::enter(const WalkItem& item)
{
    if (item.tag == "Drive"_L1 || item.tag == "Dir"_L1)
        walkTo({item.path, item.tag == "Drive"_L1});
}

void FolderWalk::up()
{
    if (drivesShown)
        return;
    if (driveAtPlace() != nullptr || QDir(place).isRoot())
        showDrives();
    else
        walkTo({QDir::cleanPath(place + u"/.."_s), false});
}

void FolderWalk::walkTo(const Goal& goal)
{
    errands.forget();
    underWay = true;
    errands.send([folder = goal.folder, pattern = filePattern](
                     const Errands::Forgotten& forgotten) { return listFolder(folder, pattern, forgotten); },
                 [this, goal](const FolderListing& listing) {
                     underWay = false;
                     if (listing.error == 0) {
                         arrive(goal.folder, listing);
                     } else {
                         fillSlots(); // the running look-ups for them were dropped
                         Q_EMIT refused(goal.drive && listing.error == pathNotFound ? deviceUnavailable
                                                                                    : listing.error);
                     }
                 });
}

void FolderWalk::arrive(const QString& folder, const FolderListing& listing)
{
    place = folder;
    drivesShown = false;
    here = listing;
    firstShown = 0;
    fillSlots();
    Q_EMIT moved();
}

void FolderWalk::showDrives()
{
    stop();
    drives = desktop.files.volumes();
    drivesShown = true;
    firstShown = 0;
    fillSlots();
    Q_EMIT moved();
}

void FolderWalk::setFirst(int index)
{
    if (drivesShown)
        return;
    firstShown = index;
    errands.forgetWaiting();
    fillSlots();
}

int FolderWalk::lastFirst() const
{
    return drivesShown ? 0 : std::max(0, int(here.folders.size() + here.files.size()) - 2);
}

QString FolderWalk::placeName() const
{
    if (drivesShown)
        return u"My Computer"_s;
    if (const Volume* drive = driveAtPlace())
        return drive->name;
    return lastPathPart(place);
}

const Volume* FolderWalk::driveAtPlace() const
{
    const auto at = std::find_if(drives.begin(), drives.end(),
                                 [this](const Volume& drive) { return drive.root == place; });
    return at == drives.end() ? nullptr : &*at;
}

WalkItem FolderWalk::itemAt(int index) const
{
    if (drivesShown) {
        if (index >= drives.size())
            return {};
        const Volume& drive = drives[index];
        return {u"Drive"_s, drive.name, drive.root, drive.kind, {}, true};
    }
    if (index < here.folders.size()) {
        const QString name = here.folders[index];
        return {u"Dir"_s, name, joinPath(place, name), 0, {}, !marking};
    }
    const qsizetype fileIndex = index - here.folders.size();
    if (fileIndex < here.files.size()) {
        const QString name = here.files[fileIndex];
        return {u"File"_s, QFileInfo(name).completeBaseName(), joinPath(place, name), 0, {}, false};
    }
    return {};
}

void FolderWalk::fillSlots()
{
    const auto before = shown;
    for (int slot = 0; slot < slotCount; ++slot) {
        WalkItem& item = shown[slot];
        item = itemAt(firstShown + slot);
        if (item.certain)
            continue;
        const auto known = std::find_if(before.begin(), before.end(), [&item](const WalkItem& old) {
            return old.certain && old.path == item.path && old.tag != "Drive"_L1;
        });
        if (known != before.end())
            item = *known;
        else
            askAbout(item);
    }
}

void FolderWalk::askAbout(const WalkItem& item)
{
    errands.send(
        [item, size = shrunkSize](const Errands::Forgotten&) {
            WalkItem news = item;
            news.certain = true;
            if (item.tag == "File"_L1)
                ignoringErrors({[&] { news.picture = stretched(readPicture(item.path, size), size); }});
            else if (holdsDatabase(item.path))
                news.tag = u"tdb"_s;
            return news;
        },
        [this](const WalkItem& news) { learn(news); });
}

void FolderWalk::learn(const WalkItem& news)
{
    for (int slot = 0; slot < slotCount; ++slot) {
        if (shown[slot].path == news.path && !shown[slot].certain) {
            shown[slot] = news;
            Q_EMIT itemChanged(slot);
        }
    }
}
