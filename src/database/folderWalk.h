// The file dialog's way through drives and folders, without a window.
//
// A folder may be on a slow share, so all disk access is done on other threads, and details are read only for
// the eight items in view. Results arrive as signals.
#pragma once

#include "platform/desktop.h"
#include "platform/errands.h"
#include "platform/table.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/// The contents of a folder: names only, in the order in which they are shown.
struct FolderListing {
    int error = 0; // number of the error when the folder couldn't be listed
    QStringList folders;
    QStringList files;
};

/// Lists the folder: folders, and files whose name matches the pattern ("*.bmp", ignoring case). Hidden
/// entries are left out. Stops early, with a partial result, when `forgotten` turns true.
FolderListing listFolder(const QString& folder, const QString& pattern, const Errands::Forgotten& forgotten);

/// Whether the folder is a database.
bool holdsDatabase(const QString& folder);

/// The content of one slot of the dialog.
struct WalkItem {
    QString tag;         // "Drive", "Dir", "tdb", "File"; empty: the slot is empty
    QString name;        // the displayed name
    QString path;        // empty for an empty slot
    int driveKind = 0;   // as in Volume
    QImage picture;      // a file's picture, shrunk; null until it has been read, or when it can't be
    bool certain = true; // false while a "Dir" may turn out to be a "tdb", or a picture is being read
};

class FolderWalk : public QObject {
    Q_OBJECT

public:
    static constexpr int slotCount = 8;

    /// Starts at `folder`, with item 0 in the first slot. With `marksDatabases` a database's folder is a
    /// "tdb". Pictures are shrunk to `pictureSize`, in device pixels.
    void start(const QString& folder, const QString& pattern, bool marksDatabases, const QSize& pictureSize);
    /// Ends the walk: nothing more is reported.
    void stop();

    /// Enters a folder or a drive. The current place changes once the folder has been read; if it can't be
    /// read, refused() is emitted and the place stays.
    void enter(const WalkItem& item);
    /// Goes to the folder above, or from a root to the drives. Does nothing at the drives.
    void up();
    /// Makes a folder the current place without reading it.
    void setFolder(const QString& folder);
    /// Fills the slots with the items from this index on. Does nothing at the drives.
    void setFirst(int index);

    const WalkItem& item(int slot) const { return shown[slot]; }
    int first() const { return firstShown; }
    /// The largest index for setFirst(): it keeps two items in view.
    int lastFirst() const;
    QString folder() const { return place; }
    bool amongDrives() const { return drivesShown; }
    /// True while a requested place is being read.
    bool waiting() const { return underWay; }
    /// "My Computer", the name of a root between "(" and ")", or the last part of the folder's path.
    QString placeName() const;

Q_SIGNALS:
    /// The current place has changed.
    void moved();
    /// The slot's content has changed.
    void itemChanged(int slot);
    /// A place could not be read because of this error.
    void refused(int error);

private:
    struct Goal {
        QString folder;
        bool drive = false;
    };

    void walkTo(const Goal& goal);
    void showDrives();
    void arrive(const QString& folder, const FolderListing& listing);
    void fillSlots();
    WalkItem itemAt(int index) const;
    void askAbout(const WalkItem& item);
    void learn(const WalkItem& news);
    const Volume* driveAtPlace() const;

    Errands errands;
    QString place;
    QString filePattern;
    bool marking = false;
    QSize shrunkSize;
    bool drivesShown = false;
    bool underWay = false;
    FolderListing here;
    QList<Volume> drives;
    int firstShown = 0;
    Table<WalkItem, slotCount - 1> shown;
};
