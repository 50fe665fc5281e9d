#include "store/settings.h"

#include "store/options.h"

#include "support/files.h"

using namespace Qt::StringLiterals;

using Settings = Fresh;

TEST_F(Settings, LieBesideTheProgramAndAReadNamesItsOwnDefault)
{
    const QString file = settingsFile();
    EXPECT_EQ(file, inTestFolder(u"tallymoor.ini"_s));
    EXPECT_EQ(readSetting(file, u"Keys"_s, u"Value"_s, u"K"_s), u"K"_s);
    EXPECT_TRUE(writeSetting(file, u"Keys"_s, u"Value"_s, u"T"_s));
    EXPECT_EQ(readSetting(file, u"keys"_s, u"VALUE"_s, QString()), u"T"_s);
    EXPECT_EQ(bytesOf(file), QByteArray("[Keys]\r\nValue=T\r\n"));
}

TEST_F(Settings, MeanRelativeFoldersFromTheProgramsOwn)
{
    const struct {
        QString written, read;
    } folders[] = {
        {u"samples"_s, inTestFolder(u"samples"_s)},
        {u"samples/Amazing Animals"_s, inTestFolder(u"samples/Amazing Animals"_s)},
        {u"/home/class"_s, u"/home/class"_s},
        {u"C:\\Class"_s, u"C:\\Class"_s},
        {u"\\\\server\\class"_s, u"\\\\server\\class"_s},
        {u"MyDocs"_s, u"MyDocs"_s},
        {QString(), QString()},
    };
    for (const auto& folder : folders) {
        write(option::workingFolder, folder.written);
        EXPECT_EQ(readFolder(option::workingFolder), folder.read);
    }
}
