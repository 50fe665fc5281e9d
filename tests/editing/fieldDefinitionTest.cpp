#include "editing/fieldDefinition.h"

#include "store/descriptionFile.h"
#include "support/files.h"

class FieldDefinitions : public Fresh {
protected:
    FieldDefinitions() { session.dbPath = testFolder().chopped(1); }
};

TEST_F(FieldDefinitions, WithoutAListKeepTheOldAnswersOutOfSight)
{
    FieldDefinition pets{QStringLiteral("Pet"), QStringLiteral("Abc"), true, {}};
    pets.answers[12] = QStringLiteral("cat");
    defineField(2, pets);
    EXPECT_EQ(fieldDefinition(2).answers[12], QStringLiteral("cat"));

    defineField(2, {QStringLiteral("Legs"), QStringLiteral("123"), false, {}});
    EXPECT_EQ(session.fieldListItem[2][12], QStringLiteral("cat"));
    EXPECT_TRUE(fieldDefinition(2).answers[12].isEmpty());
    session.fieldType[2] = QStringLiteral("abc");
    EXPECT_EQ(fieldDefinition(2).type, QStringLiteral("123")) << "only the exact word is text";
}

// What a name becomes on the disk, and what the next workstation reads.
TEST_F(FieldDefinitions, SpecialTextsHaveOneFateOnTheDisk)
{
    const struct {
        const char* what;
        QString typed;
        QByteArray onDisk;
        QString readBack;
        QString typeReadBack = QStringLiteral("Abc");
        int messages = 0;
    } cases[] = {
        {"nothing", QString(), "\"\"", QString()},
        {"a comma", QStringLiteral("big, bigger"), "\"big, bigger\"", QStringLiteral("big, bigger")},
        {"a tab", QStringLiteral("a\tb"), "\"a\tb\"", QStringLiteral("a\tb")},
        {"pasted line ends", QStringLiteral("two\r\nlines\nmore"), "\"two lines more\"",
         QStringLiteral("two lines more")},
        {"blanks at the ends", QStringLiteral(" x "), "\" x \"", QStringLiteral(" x ")},
        {"an umlaut, a byte of the code page", QStringLiteral("Größe"), "\"Gr\xF6\xDF\x65\"",
         QStringLiteral("Größe")},
        {"a Polish name: the file becomes UTF-8", QStringLiteral("Łukasz"), "\"\xC5\x81ukasz\"",
         QStringLiteral("Łukasz")},
        {"an emoji: the file becomes UTF-8", QStringLiteral("🐞"), "\"\xF0\x9F\x90\x9E\"",
         QStringLiteral("🐞")},
        // Nothing is escaped: the quote ends the name and what follows it is taken for the type, so that all
        // later lines are read one too late.
        {"a quote", QStringLiteral("my \"pet\""), "\"my \"pet\"\"", QStringLiteral("my "),
         QStringLiteral("pet\"\""), 1},
    };
    for (const auto& [what, typed, onDisk, readBack, typeReadBack, messages] : cases) {
        session.numFields = 1;
        defineField(1, {typed, QStringLiteral("Abc"), false, {}});
        writeDbInfo();
        const QByteArray lines = bytesOf(inTestFolder(QStringLiteral("db-info.tdb")));
        EXPECT_EQ(lines.split('\r').value(3).mid(1), onDisk) << what;
        recorded.messages.clear();
        readDbInfo();
        EXPECT_EQ(session.fieldName[1], readBack) << what;
        EXPECT_EQ(session.fieldType[1], typeReadBack) << what;
        EXPECT_EQ(recorded.messages.size(), messages) << what;
    }
}
