// Programs killed while they write: the file is the old or the new one, and temporary files are removed
// later.
#include "faults/children.h"
#include "faults/effort.h"
#include "faults/writers.h"
#include "platform/profileFile.h"
#include "platform/wholeFile.h"
#include "support/files.h"

#include <QThread>

#include <iostream>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int versions = 8;
constexpr int latestKillMicroseconds = 3000;

struct KillCount {
    int kills = 0;
    int torn = 0;       // files that are neither an old nor a new one
    int unfinished = 0; // kills between opening the temporary file and renaming it
};

/// Repeatedly kills a process that writes in an endless loop, each time at another moment.
KillCount killWhile(const std::function<void(int version)>& write, const QString& path,
                    const QList<QByteArray>& whole, int kills)
{
    std::mt19937 chance(20'260'309);
    std::uniform_int_distribution<unsigned long> moment(0, latestKillMicroseconds);
    KillCount count;
    for (; count.kills < kills; ++count.kills) {
        Child child([&] {
            write(0);
            tellParent();
            for (int version = 1;; ++version)
                write(version % versions);
        });
        child.waitUntilTold();
        QThread::usleep(moment(chance));
        child.kill();
        count.torn += !whole.contains(bytesOf(path));
        count.unfinished += !leftoversIn(testFolder()).isEmpty();
        sweepLeftovers(testFolder());
        EXPECT_TRUE(leftoversIn(testFolder()).isEmpty());
    }
    return count;
}

QList<QByteArray> contentsOf(const Writer& writer)
{
    QList<QByteArray> contents;
    for (int version = 0; version < versions; ++version)
        contents.append(contentOf(writer, version));
    return contents;
}

void tell(const char* writer, const KillCount& count)
{
    std::cout << writer << ": " << count.kills << " kills, " << count.unfinished << " before the rename, "
              << count.torn << " torn files" << std::endl;
}

} // namespace

using Killed = Fresh;

TEST_F(Killed, WritesLeaveTheOldFileOrTheNew)
{
    useFolder(testFolder().chopped(1));
    int unfinished = 0;
    for (const Writer& writer : writers) {
        const QString path = inTestFolder(QString::fromLatin1(writer.file));
        const KillCount count = killWhile([&](int version) { writer.write(version); }, path,
                                          contentsOf(writer), effort.kills / int(writers.size()));
        tell(writer.name, count);
        EXPECT_EQ(count.torn, 0) << writer.name;
        unfinished += count.unfinished;
    }
    EXPECT_GE(unfinished, effort.unfinished);

    EXPECT_TRUE(writeProfile({{u"Keys"_s, u"Value"_s, u"K"_s}}, inTestFolder(u"tallymoor.ini"_s)))
        << "a lock outlived its process";
}

TEST_F(Killed, AWriterThatTruncatesFailsTheSameTest)
{
    useFolder(testFolder().chopped(1));
    const QList<QByteArray> whole = contentsOf(writers[1]);
    const QString path = inTestFolder(u"plain.bmp"_s);
    const auto truncating = [&](int version) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(whole[version]);
    };
    const KillCount count = killWhile(truncating, path, whole, effort.kills);
    tell("a truncating writer", count);
    EXPECT_GT(count.torn, 0);
}
