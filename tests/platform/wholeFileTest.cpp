#include "platform/wholeFile.h"

#include "support/files.h"

#include <QDateTime>
#include <QDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using WholeFile = Fresh;

namespace {

QString place(const char* name) { return inTestFolder(QString::fromUtf8(name)); }

} // namespace

TEST_F(WholeFile, RaisesWhatAFileCannotGive)
{
    QDir(testFolder()).mkdir(u"folder"_s);
    putFile(place("plain"), "12345");
    ASSERT_EQ(mkfifo(QFile::encodeName(place("pipe")).constData(), 0600), 0);

    EXPECT_EQ(readWholeFile(place("plain")), QByteArray("12345"));
    const std::pair<const char*, int> cases[] = {
        {"missing", fileNotFound},   {"no folder/missing", pathNotFound}, {"plain/inside", pathNotFound},
        {"folder", pathAccessError}, {"pipe", pathAccessError},
    };
    for (const auto& [name, error] : cases)
        EXPECT_EQ(errorOf([path = place(name)] { readWholeFile(path); }), error) << name;
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
              QStringList({u"link"_s, u"other"_s, u"real"_s}));
}

namespace {

/// The name of this machine in temporary files, taken from one that a failing writer leaves behind.
QString thisMachine()
{
    const pid_t writer = fork();
    if (writer == 0) {
        std::signal(SIGXFSZ, SIG_DFL);
        const rlimit none{0, 0};
        setrlimit(RLIMIT_FSIZE, &none);
        replaceFile(place("killed"), "x");
        _exit(0);
    }
    waitpid(writer, nullptr, 0);
    const QString left =
        QDir(testFolder()).entryList({u".tallymoor~*"_s}, QDir::Hidden | QDir::Files).value(0);
    QFile::remove(testFolder() + left);
    return left.section(u'~', 1, 1);
}

QString leftover(const QString& machine, pid_t process, int count = 1)
{
    return u".tallymoor~%1~%2~%3"_s.arg(machine).arg(process).arg(count);
}

void age(const QString& path, int seconds)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime));
}

} // namespace

TEST_F(WholeFile, SweepingTakesWhatIsDeadAndLeavesWhatMayBeAlive)
{
    const pid_t dead = fork();
    if (dead == 0)
        _exit(0);
    waitpid(dead, nullptr, 0);
    const QString here = thisMachine();
    const QString elsewhere = u"0123456789abcdef"_s;
    const struct {
        QString name;
        int seconds; // the file's age
        bool stays;
    } cases[] = {
        {leftover(here, dead), 0, false},           {leftover(here, getpid()), 0, true},
        {leftover(here, getpid(), 2), 3600, false}, {leftover(elsewhere, dead, 1), 0, true},
        {leftover(elsewhere, dead, 2), 500, true},  {leftover(elsewhere, dead, 3), 700, false},
        {u".tallymoor~readme"_s, 3600, true},       {u"CARDAAAA.tcd"_s, 3600, true},
    };
    for (const auto& [name, seconds, stays] : cases) {
        putFile(inTestFolder(name), "half");
        age(inTestFolder(name), seconds);
    }
    sweepLeftovers(testFolder());
    for (const auto& [name, seconds, stays] : cases)
        EXPECT_EQ(QFile::exists(inTestFolder(name)), stays) << name.toStdString();
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files | QDir::Hidden).size(), 5);
}
