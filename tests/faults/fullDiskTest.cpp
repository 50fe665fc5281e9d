// A disk that is full at every length of a file: either the old file is kept or the new one is complete, and
// an error is shown.
#include "faults/effort.h"
#include "faults/writers.h"
#include "support/files.h"
#include "support/smallDisk.h"

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// While it exists, no file of this process can grow beyond that many bytes, as if the disk were full.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &former);
        const rlimit limited{bytes, former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &former); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit former{};
};

QStringList messagesOnFullDisk(const Writer& writer)
{
    return *writer.fullMessage ? QStringList(QString::fromLatin1(writer.fullMessage)) : QStringList();
}

} // namespace

using FullDisk = Fresh;

TEST_F(FullDisk, AtEveryLengthOfTheFileKeepsTheOldOne)
{
    useFolder(testFolder().chopped(1));
    for (const Writer& writer : writers) {
        const QString path = inTestFolder(QString::fromLatin1(writer.file));
        const QByteArray before = contentOf(writer, 0);
        const QByteArray after = contentOf(writer, 1);
        const int apart = after.size() > 20'000 ? effort.lengthsApart : 1;
        writer.write(0);
        ASSERT_EQ(bytesOf(path), before) << writer.name;
        for (qsizetype length = 0; length < after.size(); length += apart) {
            recorded.messages.clear();
            bool result = false;
            {
                const FileSizeLimit limit{rlim_t(length)};
                result = writer.write(1);
            }
            ASSERT_TRUE(result) << writer.name;
            ASSERT_EQ(bytesOf(path), before) << writer.name << " at " << length;
            ASSERT_EQ(recorded.messages, messagesOnFullDisk(writer)) << writer.name << " at " << length;
        }
        EXPECT_TRUE(leftoversIn(testFolder()).isEmpty()) << writer.name;
        recorded.messages.clear();
        writer.write(1);
        EXPECT_EQ(bytesOf(path), after) << writer.name;
        EXPECT_TRUE(recorded.messages.isEmpty());
    }
}

TEST_F(FullDisk, WithAnyRoomLeftHoldsTheOldFileOrTheNew)
{
    constexpr int page = 4096;
    for (const Writer& writer : writers) {
        const SmallDisk disk(contentOf(writer, 1).size() > 20'000 ? 128 << 10 : 64 << 10);
        if (!disk.isThere())
            GTEST_SKIP() << "only root can mount a small disk";
        useFolder(disk.path());
        const QString path = disk.path() + u'/' + QString::fromLatin1(writer.file);
        const QByteArray before = contentOf(writer, 0);
        const QByteArray after = contentOf(writer, 1);
        int refused = 0;
        int written = 0;
        for (qint64 room = 0; room <= after.size() + page; room += page) {
            QFile::remove(disk.path() + u"/filler"_s);
            writer.write(0);
            disk.leaveFree(room);
            recorded.messages.clear();
            EXPECT_TRUE(writer.write(1));
            const bool kept = bytesOf(path) == before;
            EXPECT_TRUE(kept || bytesOf(path) == after) << writer.name << " with " << room;
            EXPECT_EQ(recorded.messages, kept ? messagesOnFullDisk(writer) : QStringList()) << writer.name;
            EXPECT_TRUE(leftoversIn(disk.path()).isEmpty());
            ++(kept ? refused : written);
        }
        EXPECT_GE(refused, 1) << writer.name;
        EXPECT_GE(written, 1) << writer.name;
    }
}
