// What may happen to a card's files while a child fills it in: nothing that anybody made is lost.
#include "core/session.h"
#include "database/loading.h"
#include "editing/cardEntry.h"
#include "faults/children.h"
#include "faults/writers.h"
#include "platform/pictureFile.h"
#include "store/descriptionFile.h"
#include "support/files.h"

#include <QDirIterator>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using Action = void (*)();

QString path(const char* name) { return session.dbPath + u'/' + QLatin1String(name); }
void put(const char* name, const QByteArray& bytes) { putFile(path(name), bytes); }
void setMode(const char* name, mode_t mode) { chmod(path(name).toUtf8().constData(), mode); }

const QByteArray ours = "\"00100020\"\r\n\"one\"\r\n\"two\"\r\n\"three\"\r\n\"four\"\r\n\"five\"\r\n";
const QByteArray theirs = "\"00100020\"\r\n\"ONE\"\r\n\"two\"\r\n\"three\"\r\n\"four\"\r\n\"five\"\r\n";
const QByteArray typed = "\"00100020\"\r\n\"typed\"\r\n\"two\"\r\n\"three\"\r\n\"four\"\r\n\"five\"\r\n";
const QByteArray zeros(60, '\0');

void nothing() {}
void putTheirs() { put("CARDAAAA.tcd", theirs); }
void putZeros() { put("CARDAAAA.tcd", zeros); }
void lock() { setMode("CARDAAAA.tcd", 0); }
void unlock() { setMode("CARDAAAA.tcd", 0600); }
void protect() { setMode("CARDAAAA.tcd", 0400); }
void lockFields() { setMode("db-info.tdb", 0); }
void moveFolder() { QFile::rename(session.dbPath, session.dbPath + u" elsewhere"_s); }

const QString conflict =
    u"Edit Card|Somebody else has changed this card too. Your card is saved, and theirs is kept."_s;
const QString stays = u"the editor stays open"_s;
const QString noAccess = u"Error|Path/File access error"_s;

const struct {
    const char* name;
    Action beforeLoading;
    Action beforeOpening;
    Action beforeOK;
    const char* typed; // into the first field, if anything
    QStringList said;  // by OK
    QByteArray record; // afterwards
    QList<QByteArray> kept;
} cases[] = {
    {"untouched", nothing, nothing, nothing, "", {}, ours, {}},
    {"changed before it is opened", nothing, putTheirs, nothing, "", {}, theirs, {}},
    {"changed while it is open", nothing, nothing, putTheirs, "typed", {conflict}, typed, {theirs}},
    {"locked while it was loaded", lock, unlock, nothing, "typed", {}, typed, {}},
    {"locked until it was opened", lock, nothing, unlock, "typed", {noAccess, stays}, ours, {}},
    {"locked when it is saved", nothing, nothing, lock, "typed", {noAccess, stays}, ours, {}},
    {"protected", nothing, nothing, protect, "typed", {noAccess, stays}, ours, {}},
    {"in a folder that vanished",
     nothing,
     nothing,
     moveFolder,
     "typed",
     {u"Error|Path not found"_s, stays},
     ours,
     {}},
    {"with a locked description", lockFields, nothing, nothing, "typed", {}, typed, {}},
    {"zeroed by a power cut", nothing, putZeros, nothing, "", {}, zeros, {}},
    {"zeroed and filled in", nothing, putZeros, nothing, "typed", {}, {}, {zeros}},
};

void makeDatabase()
{
    QDir().mkpath(session.dbPath);
    session.numFields = 5;
    session.cardSize = 1;
    writeDbInfo();
    put("CARDAAAA.tcd", ours);
    QImage picture(159, 120, QImage::Format_RGB32);
    picture.fill(Qt::red);
    put("CARDAAAA.bmp", bitmapBytes(picture));
    session = {}; // three fields, as before any description was read
}

QList<QByteArray> keptIn(const QString& folder)
{
    QList<QByteArray> kept;
    for (QDirIterator files(folder + u"/.kept"_s, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         files.hasNext();)
        kept.append(bytesOf(files.next()));
    return kept;
}

class LostWork : public Fresh {
protected:
    LostWork() { chmod(testFolder().toUtf8().constData(), 0777); }

    /// Opens the card as a user whom rights bind, and lets them fill it in. What OK said.
    static QStringList edit(const QString& folder, Action beforeLoading, Action beforeOpening,
                            const std::function<void()>& fillIn)
    {
        return messagesWithoutRights([&] {
            session.dbPath = folder;
            makeDatabase();
            session.dbPath = folder;
            beforeLoading();
            loadAllCards();
            beforeOpening();
            fillEditor(1);
            recorded.messages.clear();
            fillIn();
            const bool closed = keepCard();
            recorded.messages.removeAll(
                u"Error|There was a problem reading your database, some of the data may be missing"_s);
            if (!closed)
                recorded.messages.append(stays);
            EXPECT_EQ(session.dialogResult, closed ? u"OK"_s : QString());
        });
    }
};

} // namespace

TEST_F(LostWork, NoRecordIsLostToAnOK)
{
    for (const auto& c : cases) {
        const QString folder = inTestFolder(QLatin1String(c.name));
        const QStringList said = edit(folder, c.beforeLoading, c.beforeOpening, [&c] {
            if (*c.typed)
                session.editor.DataBox[1] = QLatin1String(c.typed);
            c.beforeOK();
        });
        EXPECT_EQ(said, c.said) << c.name;
        const bool moved = !QDir(folder).exists();
        const QByteArray record = bytesOf((moved ? folder + u" elsewhere"_s : folder) + u"/CARDAAAA.tcd"_s);
        EXPECT_TRUE(c.record.isEmpty() || record == c.record) << c.name << ": " << record.toStdString();
        EXPECT_EQ(keptIn(folder), c.kept) << c.name;
    }
}

TEST_F(LostWork, NoPictureIsLostToAnOK)
{
    QImage large(1600, 1200, QImage::Format_RGB32);
    large.fill(Qt::blue);
    const QByteArray whole = bitmapBytes(large);
    QImage drawing(159, 120, QImage::Format_RGB32);
    drawing.fill(Qt::green);
    const QByteArray cut = whole.left(3000);
    const struct {
        const char* name;
        QByteArray before;
        QByteArray during; // somebody else's
        bool drawn;
        int kept;
    } pictures[] = {
        {"a large one", whole, {}, false, 0},
        {"a cut one", cut, {}, false, 0},
        {"a cut one drawn over", cut, {}, true, 1},
        {"somebody else's", whole, cut, false, 0},
        {"somebody else's drawn over", whole, cut, true, 1},
    };
    for (const auto& c : pictures) {
        const QString folder = inTestFolder(QLatin1String(c.name));
        static QByteArray before;
        before = c.before;
        edit(
            folder, nothing, [] { put("CARDAAAA.bmp", before); },
            [&] {
                if (c.drawn)
                    session.editor.Picture1.image = drawing;
                if (!c.during.isEmpty())
                    put("CARDAAAA.bmp", c.during);
            });
        const QByteArray found = c.during.isEmpty() ? c.before : c.during;
        EXPECT_EQ(bytesOf(folder + u"/CARDAAAA.bmp"_s) == found, !c.drawn) << c.name;
        EXPECT_EQ(keptIn(folder), QList<QByteArray>(c.kept, found)) << c.name;
    }
}
