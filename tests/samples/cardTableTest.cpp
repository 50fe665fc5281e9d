#include "cardTable.h"

#include "support/files.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct CardTables : Fresh {
    /// The error message about the table, empty when it can be read.
    std::string complaint(const QByteArray& table)
    {
        putFile(inTestFolder("table.txt"), table);
        try {
            readCardTable(inTestFolder("table.txt"));
            return {};
        } catch (const std::runtime_error& error) {
            return error.what();
        }
    }
};

const QByteArray start =
    "# a note\r\ntitle: Fruit\r\nfield: Name; text\r\nfield: Colour; text; red, green\r\n"
    "field: Weight g; number\r\nground: Colour\r\nboard: stall.svg\r\n\r\nName ; Colour ; Weight g ; "
    "Note\r\n";

} // namespace

TEST_F(CardTables, AreReadAsATeacherWritesThem)
{
    putFile(inTestFolder("table.txt"), start + "Apple; green ; 120.5;\nÄpfelchen;red;7;small, sour\n");
    const CardTable table = readCardTable(inTestFolder("table.txt"));
    EXPECT_EQ(table.title, "Fruit");
    ASSERT_EQ(table.fields.size(), 3);
    EXPECT_THAT(table.fields[1].answers, ElementsAre("red", "green"));
    EXPECT_TRUE(table.fields[2].isNumber);
    EXPECT_EQ(table.ground, "Colour");
    EXPECT_EQ(table.board, "stall.svg");
    ASSERT_EQ(table.cards.size(), 2);
    EXPECT_EQ(table.cards[0]["Weight g"], "120.5");
    EXPECT_EQ(table.cards[1]["Name"], u"Äpfelchen"_s);
    EXPECT_EQ(table.cards[1]["Note"], "small, sour");
}

TEST_F(CardTables, NameTheLineThatIsWrong)
{
    const struct {
        QByteArray table;
        std::string told;
    } faults[] = {
        {start + "Apple; blue; 1;", "table.txt:10: blue is not in the list of Colour"},
        {start + "Apple; red; heavy;", "table.txt:10: Weight g is no number: heavy"},
        {start + "Apple; red; 1;\nApple; red; 2;", "table.txt:11: a name is missing or stands twice: Apple"},
        {start + "Apple; red; 1", "table.txt:10: this row has more or fewer cells than the headings"},
        {start + "\"Apple\"; red; 1;", "table.txt:10: a cell can't hold a double quote"},
        {"title: Fruit\nfield: Name; words", "table.txt:2: a field's type is text or number"},
        {"title: Fruit\nfield: Name; text\nName; Price", "table.txt:3: unexpected heading Price"},
        {"title: Fruit\nfield: Name; text\nground: Name",
         "table.txt:3: the ground is no field with a list: Name"},
        {"field: Name; text\nName\nApple", "the table has no title"},
    };
    for (const auto& fault : faults)
        EXPECT_THAT(complaint(fault.table), HasSubstr(fault.told));
}
