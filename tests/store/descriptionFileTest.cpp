#include "store/descriptionFile.h"

#include "core/session.h"
#include "platform/pictureFile.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

namespace {

const QString problem = u"Error|There was a problem reading your database, some of the data may be missing"_s;

QString description() { return inTestFolder(u"db-info.tdb"_s); }

/// Reads a description of those bytes and returns the number of messages; each must be the one of readDbInfo.
int problemsIn(const QByteArray& bytes)
{
    putFile(description(), bytes);
    recorded.messages.clear();
    recorded.beeps = 0;
    readDbInfo();
    EXPECT_EQ(recorded.messages.count(problem), recorded.messages.size());
    EXPECT_EQ(recorded.beeps, recorded.messages.size());
    return int(recorded.messages.size());
}

const QByteArray pets = " 2 \r\n 1 \r\n\"none\"\r\n"
                        "\"Name\"\r\n\"Abc\"\r\nFalse\r\n"
                        "\"Legs, or feet\"\r\n\"123\"\r\nTrue\r\n"
                        "\"2\"\r\n\"4\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                        "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"many\"\r\n"
                        "RO\r\nVER=\"1.1.0\"\r\n";

} // namespace

class DescriptionFile : public Fresh {
protected:
    DescriptionFile() { session.dbPath = testFolder().chopped(1); }
};

TEST_F(DescriptionFile, IsNotWrittenUnlessItIsChangedAndNeverOverWhatNobodyHasSeen)
{
    const QByteArray byHand = QByteArray(pets).replace("\r\n", "\n");
    problemsIn(byHand);
    writeDbInfo();
    EXPECT_EQ(bytesOf(description()), byHand) << "nothing was changed";

    putFile(description(), "another workstation's");
    session.fieldName[1] = u"Changed"_s;
    writeDbInfo();
    EXPECT_TRUE(bytesOf(description()).contains("Changed"));
    EXPECT_EQ(bytesOf(inTestFolder(u".kept/2026-03-09 10.30.05/db-info.tdb"_s)), "another workstation's");

    QFile::remove(description());
    QDir(testFolder()).mkdir(u"db-info.tdb"_s); // can't be read
    recorded.messages.clear();
    writeDbInfo();
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Path/File access error"_s));
}

TEST_F(DescriptionFile, EveryFailedStatementIsToldOnceAndTheRestIsRead)
{
    const struct {
        const char* name;
        QByteArray bytes;
        int problems;
        int fields;
        int size;
    } cases[] = {
        {"empty: three measures, three fields of three lines, the status", "", 13, 3, 1},
        {"cut behind the card size", " 2 \r\n 2 \r\n", 1 + 6 + 1, 2, 2},
        {"cut inside a list, which a file without version ends at six", pets.left(pets.indexOf("\"4\"")),
         5 + 1, 2, 1},
        {"thirteen fields", QByteArray(pets).replace(0, 3, " 13 "), 1 + 2, 3, 1},
        {"no fields", QByteArray(pets).replace(0, 3, " 0 "), 1 + 2, 3, 1},
        {"a count that is none", QByteArray(pets).replace(0, 3, "two"), 1 + 2, 3, 1},
        {"a count beyond 16 bits", QByteArray(pets).replace(0, 3, " 70000 "), 1 + 2, 3, 1},
        {"a card size out of range", QByteArray(pets).replace(" 1 ", " 3 "), 1, 2, 1},
        {"a version cut short", " 1 \r\n 2 \r\n\"none\"\r\n\"a\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"", 1, 1,
         2},
        {"a flag that is none", QByteArray(pets).replace("False", "Maybe"), 1, 2, 1},
    };
    for (const auto& [name, bytes, problems, fields, size] : cases) {
        freshStart();
        session.dbPath = testFolder().chopped(1);
        session.cardSize = 1;
        EXPECT_EQ(problemsIn(bytes), problems) << name;
        EXPECT_EQ(session.numFields, fields) << name;
        EXPECT_EQ(session.cardSize, size) << name;
        EXPECT_EQ(session.backgroundPicture, u"none"_s) << name;
    }
}

TEST_F(DescriptionFile, AMissingFileLeavesEverythingAsItWas)
{
    session.fieldUseList[1] = true;
    EXPECT_EQ(problemsIn(pets), 0);
    EXPECT_FALSE(session.fieldUseList[1]);
    EXPECT_EQ(session.editor.fieldName[2], u"Legs, or feet"_s);
    EXPECT_EQ(session.menu.menuItemState[1][1], u"Don'tShow"_s) << "nothing is deleted from a read-only one";
    EXPECT_TRUE(session.design.ChkRD);
    QFile::remove(description());
    recorded.messages.clear();
    readDbInfo();
    EXPECT_EQ(recorded.messages.count(problem), 1 + 1 + 3 + 3 + (3 + 6) + 1);
    EXPECT_EQ(session.fieldName[2], u"Legs, or feet"_s);
    EXPECT_EQ(session.databaseStatus, u"RO"_s);
    EXPECT_EQ(session.dbVersion, u"1.0.0"_s);
}

TEST_F(DescriptionFile, AnotherBackgroundIsLoadedOnce)
{
    const QImage map = plain({3, 2}, Qt::green);
    putFile(inTestFolder(u"map.bmp"_s), bitmapBytes(map));
    const auto withBackground = [](const QString& name) {
        return QByteArray(pets).replace("none", name.toUtf8());
    };
    EXPECT_EQ(problemsIn(withBackground(inTestFolder(u"map.bmp"_s))), 0);
    EXPECT_EQ(session.backgroundImage.size(), QSize(3, 2));
    EXPECT_EQ(problemsIn(pets), 1) << "there is no picture called none";
    EXPECT_EQ(session.backgroundPicture, u"none"_s);
    EXPECT_EQ(session.backgroundImage.size(), QSize(3, 2)) << "the old picture stays";
    EXPECT_EQ(problemsIn(pets), 0);
    EXPECT_EQ(problemsIn(withBackground(QString())), 0);
    EXPECT_TRUE(session.backgroundImage.isNull());
    EXPECT_EQ(problemsIn(withBackground(u"map.bmp"_s)), 0) << "beside the description";
    EXPECT_EQ(session.backgroundImage.size(), QSize(3, 2));
}
