#include "platform/wholeFile.h"

#include "support/files.h"

#include <QDir>

#include <sys/stat.h>

using WholeFile = Fresh;

namespace {

QString place(const char* name) { return inTestFolder(QString::fromUtf8(name)); }

} // namespace

TEST_F(WholeFile, RaisesWhatAFileCannotGive)
{
    QDir(testFolder()).mkdir(QStringLiteral("folder"));
    putFile(place("plain"), "12345");
    ASSERT_EQ(mkfifo(QFile::encodeName(place("pipe")).constData(), 0600), 0);

    EXPECT_EQ(readWholeFile(place("plain")), QByteArray("12345"));
    const std::pair<const char*, int> cases[] = {
        {"missing", fileNotFound},   {"no folder/missing", pathNotFound}, {"plain/inside", pathNotFound},
        {"folder", pathAccessError}, {"pipe", pathAccessError},
    };
    for (const auto& [name, error] : cases)
        EXPECT_EQ(errorOf([&] { readWholeFile(place(name)); }), error) << name;
    EXPECT_EQ(errorOf([] { readWholeFile(place("plain"), 4); }), outOfMemory);
}

TEST_F(WholeFile, ReplacingKeepsRightsAndLinksAndLeavesNothingBeside)
{
    putFile(place("real"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(place("real")).constData(), 0640), 0);
    QFile::link(place("real"), place("link"));

    replaceFile(place("link"), "new");
    replaceFile(place("other"), QByteArray());

    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(place("real")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
    EXPECT_EQ(readWholeFile(place("real")), QByteArray("new"));
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({QStringLiteral("link"), QStringLiteral("other"), QStringLiteral("real")}));
}

TEST_F(WholeFile, ReplacesFilesOnly)
{
    QDir(testFolder()).mkdir(QStringLiteral("folder"));
    EXPECT_EQ(errorOf([] { replaceFile(place("folder"), "x"); }), pathAccessError);
    EXPECT_EQ(errorOf([] { replaceFile(place("no folder/x"), "x"); }), pathNotFound);
    EXPECT_EQ(errorOf([] { replaceFile(place(QByteArray(300, 'n').constData()), "x"); }), pathNotFound);
}
