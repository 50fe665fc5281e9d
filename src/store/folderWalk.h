// The walk of the file dialog through drives and folders, without a window.
//
// A folder may lie behind a slow share, so everything that touches a disk is done beside the session's
// thread, and only for the eight items that are shown. What was learnt arrives as a signal.
#pragma once

#include "platform/desktop.h"
#include "platform/errands.h"
#include "platform/table.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/// What lies in a folder for the dialog to show: names only, in the order in which they are shown.
struct FolderListing {
    int error = 0; // number of the error that came in place of names
    QStringList folders;
    QStringList files;
};

/// Lists the folder: folders, and files whose name matches the pattern ("*.bmp", case doesn't count). Hidden
/// ones are left out. Ends early, with whatever it has, when `forgotten` turns true.
FolderListing listFolder(const QString& folder, const QString& pattern, const Errands::Forgotten& forgotten);

/// True for a folder that is a database.
bool holdsDatabase(const QString& folder);

/// What one slot of the dialog holds.
struct WalkItem {
    QString tag;         // "Drive", "Dir", "tdb", "File"; empty: the slot is empty
    QString name;        // as the pupil reads it
    QString path;        // empty for an empty slot
    int driveKind = 0;   // as in Volume
    QImage picture;      // a file's, shrunk; null until it has been read, and when it can't be
    bool certain = true; // false while a "Dir" may turn out to be a "tdb", or a picture is being read
};

class FolderWalk : public QObject {
    Q_OBJECT

public:
    static constexpr int slotCount = 8;

    /// Begins a walk at `folder`, first item 0. With `marksDatabases` a folder that holds a database is a
    /// "tdb". `pictureSize`, in device pixels, is the size that pictures are shrunk to.
    void start(const QString& folder, const QString& pattern, bool marksDatabases, const QSize& pictureSize);
    /// Ends the walk: nothing more is reported.
    void stop();

    /// Goes into a folder or a drive. The place changes when it has been read; when it can't be, the walk
    /// stays where it is and refused() tells.
    void enter(const WalkItem& item);
    /// To the folder above, from a root to the drives. Among the drives it does nothing.
    void up();
    /// Takes a folder as the place without looking into it.
    void setFolder(const QString& folder);
    /// Has the slots hold the items from this index on. Among the drives it does nothing.
    void setFirst(int index);

    const WalkItem& item(int slot) const { return shown[slot]; }
    int first() const { return firstShown; }
    /// The largest index for setFirst(): it leaves two items in sight.
    int lastFirst() const;
    QString folder() const { return place; }
    bool amongDrives() const { return drivesShown; }
    /// True from a request to another place until it was read or refused.
    bool waiting() const { return underWay; }
    /// "My Computer", the name of a root between "(" and ")", or the last part of the folder's path.
    QString placeName() const;

Q_SIGNALS:
    /// The walk came to a place.
    void moved();
    /// More is known of what the slot holds.
    void itemChanged(int slot);
    /// A place could not be read, for this error.
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
