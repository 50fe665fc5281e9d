#include "editing/fieldDefinition.h"

#include "store/descriptionFile.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

class FieldDefinitions : public Fresh {
protected:
    FieldDefinitions() { session.dbPath = testFolder().chopped(1); }
};

TEST_F(FieldDefinitions, WithoutAListKeepTheOldAnswersOutOfSight)
{
    FieldDefinition pets{u"Pet"_s, u"Abc"_s, true, {}};
    pets.answers[12] = u"cat"_s;
    defineField(2, pets);
    EXPECT_EQ(fieldDefinition(2).answers[12], u"cat"_s);

    defineField(2, {u"Legs"_s, u"123"_s, false, {}});
    EXPECT_EQ(session.fieldListItem[2][12], u"cat"_s);
    EXPECT_TRUE(fieldDefinition(2).answers[12].isEmpty());
    session.fieldType[2] = u"abc"_s;
    EXPECT_EQ(fieldDefinition(2).type, u"123"_s) << "only the exact word is text";
}

// The name as written to disk, and as read by the next workstation.
TEST_F(FieldDefinitions, SpecialTextsHaveOneFateOnTheDisk)
{
    const struct {
        const char* what;
        QString typed;
        QByteArray onDisk;
        QString readBack;
        QString typeReadBack = u"Abc"_s;
        int messages = 0;
    } cases[] = {
        {"nothing", QString(), "\"\"", QString()},
        {"a comma", u"big, bigger"_s, "\"big, bigger\"", u"big, bigger"_s},
        {"a tab", u"a\tb"_s, "\"a\tb\"", u"a\tb"_s},
        {"pasted line ends", u"two\r\nlines\nmore"_s, "\"two lines more\"", u"two lines more"_s},
        {"blanks at the ends", u" x "_s, "\" x \"", u" x "_s},
        {"an umlaut, a byte of the code page", u"Größe"_s, "\"Gr\xF6\xDF\x65\"", u"Größe"_s},
        {"a Polish name: the file becomes UTF-8", u"Łukasz"_s, "\"\xC5\x81ukasz\"", u"Łukasz"_s},
        {"an emoji: the file becomes UTF-8", u"🐞"_s, "\"\xF0\x9F\x90\x9E\"", u"🐞"_s},
        // Nothing is escaped: the quote ends the name and the rest is read as the type, so that all later
        // items are shifted by one.
        {"a quote", u"my \"pet\""_s, "\"my \"pet\"\"", u"my "_s, u"pet\"\""_s, 1},
    };
    for (const auto& [what, typed, onDisk, readBack, typeReadBack, messages] : cases) {
        session.numFields = 1;
        defineField(1, {typed, u"Abc"_s, false, {}});
        writeDbInfo();
        const QByteArray lines = bytesOf(inTestFolder(u"db-info.tdb"_s));
        EXPECT_EQ(lines.split('\r').value(3).mid(1), onDisk) << what;
        recorded.messages.clear();
        readDbInfo();
        EXPECT_EQ(session.fieldName[1], readBack) << what;
        EXPECT_EQ(session.fieldType[1], typeReadBack) << what;
        EXPECT_EQ(recorded.messages.size(), messages) << what;
    }
}
