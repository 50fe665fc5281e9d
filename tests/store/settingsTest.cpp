#include "store/settings.h"

#include "support/files.h"

using Settings = Fresh;

TEST_F(Settings, LieBesideTheProgramAndAReadNamesItsOwnDefault)
{
    const QString file = settingsFile();
    EXPECT_EQ(file, inTestFolder(QStringLiteral("tallymoor.ini")));
    EXPECT_EQ(readSetting(file, QStringLiteral("Keys"), QStringLiteral("Value"), QStringLiteral("K")),
              QStringLiteral("K"));
    EXPECT_TRUE(writeSetting(file, QStringLiteral("Keys"), QStringLiteral("Value"), QStringLiteral("T")));
    EXPECT_EQ(readSetting(file, QStringLiteral("keys"), QStringLiteral("VALUE"), QString()),
              QStringLiteral("T"));
    EXPECT_EQ(bytesOf(file), QByteArray("[Keys]\r\nValue=T\r\n"));
}
