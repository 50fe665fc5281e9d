#include "platform/textFile.h"

#include "support/files.h"

using namespace Qt::StringLiterals;

namespace {

QStringList itemsOf(const QString& text)
{
    QStringList items;
    ItemReader reader(text);
    while (!reader.atEnd())
        items.append(reader.next());
    return items;
}

} // namespace

TEST(TextFile, EveryTextSurvivesARoundTrip)
{
    QString codePage;
    for (int byte = 0; byte < 256; ++byte)
        codePage += decodeText(QByteArray(1, char(byte)));
    const QString texts[] = {
        QString(),
        codePage,
        u"Żółw i świerszcz"_s,
        u"Ã¤"_s, // its 1252 bytes are valid UTF-8 of another text
        u"ï»¿abc"_s,
        u"😀"_s,
        QString(QChar(0xFEFF)) + u"mark"_s,
        u"\u0081"_s,
        u"nul"_s + QChar(0) + u"inside"_s,
    };
    for (const QString& text : texts)
        EXPECT_EQ(decodeText(encodeText(text)), text);
}

TEST(TextFile, PlainFilesKeepTheirBytes)
{
    EXPECT_EQ(encodeText(u"Bär €"_s), QByteArray("B\xE4r \x80"));
    EXPECT_EQ(encodeText(u"Ł"_s), QByteArray("\xC5\x81"));
    EXPECT_EQ(decodeText("B\xE4r \x80"), u"Bär €"_s);
    EXPECT_EQ(decodeText("B\xC3\xA4r"), u"Bär"_s);
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\"n\""), u"\"n\""_s) << "an editor's byte order mark";
}

TEST(TextFile, ItemsEndAtCommasAndLineEndsOutsideQuotes)
{
    const std::pair<const char*, QStringList> cases[] = {
        {"", {}},
        {"\"a, b\"\r\n\"\"\r\n", {"a, b", ""}},
        {" 4 \r\n 1 \r\n", {"4", "1"}},
        {"a,b\nc\rd", {"a", "b", "c", "d"}},
        {"VER=\"1.1.0\"\r\n", {"VER=\"1.1.0\""}},
        {"\"say \"hi\" now\"\r\n\"next\"", {"say ", "hi\" now\"", "next"}},
        {"\"12\"\"\r\n\"red\"", {"12", "\"", "red"}},
        {"\"a\" , \"b\"", {"a", "b"}},
        {"\"two\r\nlines\"\r\nx", {"two\r\nlines", "x"}},
        {"\"never closed\r\nx", {"never closed\r\nx"}},
        {"\"", {""}},
        {"\r\n\r\n", {"", ""}},
        {"a,\r\n", {"a", ""}},
        {"   ", {""}},
    };
    for (const auto& [text, items] : cases)
        EXPECT_EQ(itemsOf(QString::fromLatin1(text)), items) << text;
}

TEST(TextFile, NumbersAndTruthValuesThatAreNoneAreErrors)
{
    const auto integer = [](const char* text) { return ItemReader(QString::fromLatin1(text)).nextInteger(); };
    const auto truth = [](const char* text) { return ItemReader(QString::fromLatin1(text)).nextTruth(); };
    EXPECT_EQ(integer(" -7 \r\n"), -7);
    EXPECT_EQ(integer("\"2.5\""), 2);
    EXPECT_TRUE(truth("TRUE\r\n"));
    EXPECT_TRUE(truth("-1"));
    EXPECT_FALSE(truth("false"));
    EXPECT_EQ(errorOf([&] { integer("four"); }), typeMismatch);
    EXPECT_EQ(errorOf([&] { integer("40000"); }), overflow);
    EXPECT_EQ(errorOf([&] { integer("inf"); }), overflow);
    EXPECT_EQ(errorOf([&] { truth("maybe"); }), typeMismatch);
    EXPECT_EQ(errorOf([&] { truth(""); }), pastEndOfFile);
}
