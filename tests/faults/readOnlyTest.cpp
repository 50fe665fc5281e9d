// Files and folders without write permission: either the old file is kept or the new one is complete, and an
// error is shown.
#include "faults/children.h"
#include "faults/writers.h"
#include "platform/pictureFile.h"
#include "store/options.h"
#include "store/settings.h"
#include "support/files.h"
#include "support/smallDisk.h"

#include <QDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

void setMode(const QString& path, mode_t mode)
{
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
}

/// The message of a routine that reports its failures; writing settings doesn't.
QStringList told(const Writer& writer, const char* message)
{
    return *writer.fullMessage && *message ? QStringList(QString::fromLatin1(message)) : QStringList();
}

} // namespace

class ReadOnly : public Fresh {
protected:
    ReadOnly()
    {
        setMode(testFolder(), 0755);
        QDir(testFolder()).mkdir(u"folder"_s);
        useFolder(folder);
    }
    ~ReadOnly() override { setMode(folder, 0755); }

    QString pathOf(const Writer& writer) const { return folder + u'/' + QLatin1String(writer.file); }

    const QString folder = inTestFolder(u"folder"_s);
};

TEST_F(ReadOnly, SettingsOfAnInstalledProgramAreOverlaidByTheUsersOwn)
{
    putFile(folder + u"/tallymoor.ini"_s, "[Keys]\r\nValue=K\r\n[Clue]\r\nStatus=1\r\n");
    setMode(folder, 0555);
    setMode(folder + u"/tallymoor.ini"_s, 0644);
    const QString home = inTestFolder(u"home"_s);
    QDir().mkdir(home);
    setMode(home, 0777);
    desktop.files.ownFolder = [home] { return home; };
    messagesWithoutRights([&] {
        EXPECT_EQ(settingsPlace(), SettingsPlace::usersOwn);
        writeSettings({{option::optionsKey, u"T"_s}, {option::clues, u"1"_s}});
        write(option::lastDatabase, u"/school/pets"_s);
        EXPECT_EQ(read(option::optionsKey), u"T"_s);
        EXPECT_EQ(read(option::lastDatabase), u"/school/pets"_s);
        EXPECT_EQ(bytesOf(home + u"/tallymoor.ini"_s),
                  "[Keys]\r\nValue=T\r\n[Last DB]\r\nPath=/school/pets\r\n");
        desktop.files.ownFolder = [this] { return folder; };
        EXPECT_EQ(settingsPlace(), SettingsPlace::nowhere);
        write(option::optionsKey, u"X"_s);
        EXPECT_EQ(read(option::optionsKey), u"X"_s) << "until the program ends";
    });
    putFile(folder + u"/tallymoor.ini"_s, "[Clue]\r\nStatus=0\r\n"); // the administrator
    messagesWithoutRights([] { EXPECT_EQ(read(option::clues), u"0"_s); });
    setMode(folder + u"/tallymoor.ini"_s, 0666);
    messagesWithoutRights([] {
        EXPECT_EQ(settingsPlace(), SettingsPlace::programFolder);
        EXPECT_EQ(read(option::optionsKey), u"K"_s);
    });
}

TEST_F(ReadOnly, RightsDecideBetweenTheOldFileAndTheNew)
{
    const struct {
        const char* name;
        mode_t folder;
        mode_t file;
        const char* message;
    } cases[] = {
        {"folder and file", 0555, 0444, "Error|Path/File access error"},
        {"file", 0777, 0444, "Error|Path/File access error"},
        {"folder", 0555, 0666, ""},
        {"nothing", 0777, 0666, ""},
        {"renaming over others' files", 01777, 0666, ""},
        {"looking into the folder", 0444, 0666, "Error|Path/File access error"},
    };
    for (const Writer& writer : writers) {
        const QByteArray before = contentOf(writer, 0);
        const QByteArray after = contentOf(writer, 1);
        for (const auto& [name, folderMode, fileMode, message] : cases) {
            setMode(folder, 0755);
            writer.write(0);
            setMode(pathOf(writer), fileMode);
            setMode(folder, folderMode);
            const QStringList said = messagesWithoutRights([&] { EXPECT_TRUE(writer.write(1)); });
            setMode(folder, 0755);
            EXPECT_EQ(bytesOf(pathOf(writer)), *message ? before : after)
                << writer.name << " without " << name;
            EXPECT_EQ(said, told(writer, message)) << writer.name << " without " << name;
            EXPECT_TRUE(leftoversIn(folder).isEmpty());
            setMode(pathOf(writer), 0644);
        }
    }
}

TEST_F(ReadOnly, AFolderThatVanishedIsTold)
{
    useFolder(inTestFolder(u"gone"_s));
    for (const Writer& writer : writers) {
        recorded.messages.clear();
        EXPECT_TRUE(writer.write(1));
        EXPECT_EQ(recorded.messages, told(writer, "Error|Path not found")) << writer.name;
    }
    EXPECT_FALSE(QFile::exists(inTestFolder(u"gone"_s)));
}

TEST_F(ReadOnly, AWriteProtectedDiskIsTold)
{
    const SmallDisk disk(256 << 10);
    if (!disk.isThere())
        GTEST_SKIP() << "only root can mount a small disk";
    useFolder(disk.path());
    for (const Writer& writer : writers)
        writer.write(0);
    disk.writeProtect();
    for (const Writer& writer : writers) {
        recorded.messages.clear();
        EXPECT_TRUE(writer.write(1));
        EXPECT_EQ(recorded.messages, told(writer, "Error|Permission denied")) << writer.name;
        EXPECT_EQ(bytesOf(disk.path() + u'/' + QLatin1String(writer.file)), contentOf(writer, 0));
    }
}

TEST_F(ReadOnly, AFileOverwrittenWhereItStandsIsWholeOnAFullDisk)
{
    int kept = 0;
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    for (const Writer& writer : writers) {
        const SmallDisk disk(128 << 10);
        if (!disk.isThere())
            GTEST_SKIP() << "only root can mount a small disk";
        useFolder(disk.path());
        const QString path = disk.path() + u'/' + QLatin1String(writer.file);
        writer.write(0);
        const QByteArray before = path.endsWith(u".bmp"_s) ? bitmapBytes(pixel) : bytesOf(path);
        putFile(path, before);
        setMode(path, 0666);
        setMode(disk.path(), 0555);
        disk.leaveFree(0);
        const QStringList said = messagesWithoutRights([&] { EXPECT_TRUE(writer.write(3)); });
        // A short file still fits into the space that it occupies.
        const bool refused = bytesOf(path) == before;
        EXPECT_TRUE(refused || bytesOf(path).size() < 4096) << writer.name;
        EXPECT_EQ(said, refused ? told(writer, "Error|Disk full") : QStringList()) << writer.name;
        kept += refused;
    }
    EXPECT_GE(kept, 3) << "records, pictures and descriptions don't fit";
}
