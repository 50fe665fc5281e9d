#include "platform/profileFile.h"

#include "platform/textFile.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

namespace {

QString profile() { return inTestFolder(u"some.ini"_s); }

QString read(const char* section, const char* key, const QString& absent = u"absent"_s)
{
    return readProfile(QString::fromUtf8(section), QString::fromUtf8(key), absent, profile());
}

bool write(const char* section, const char* key, const QString& value)
{
    return writeProfile({{QString::fromUtf8(section), QString::fromUtf8(key), value}}, profile());
}

} // namespace

using ProfileFile = Fresh;

TEST_F(ProfileFile, ReadsAsThePlatformsOwnFunctionsDo)
{
    putFile(profile(), "stray=1\n"
                       "; [Colours]\n"
                       "[Colours] made by hand\r\n"
                       ";Ink=9\n"
                       "  INK  =  5  \r\n"
                       "Ink=6\n"
                       "Empty=\n"
                       "Quoted=\"  two blanks \"\n"
                       "Single='x'\n"
                       "Uneven=\"x'\n"
                       "Lone=\"\n"
                       "Equals=a=b;c\n"
                       "no value\n"
                       "\n"
                       "[Other]\nInk=7\n"
                       "[colours]\nLate=1\n"
                       "[Last DB]\nPath=B\xE4r");
    const struct {
        const char* section;
        const char* key;
        const char* value;
    } cases[] = {
        {"Colours", "Ink", "5"},           {"COLOURS", "ink", "5"},
        {"Colours", "Empty", ""},          {"Colours", "Quoted", "  two blanks "},
        {"Colours", "Single", "x"},        {"Colours", "Uneven", "\"x'"},
        {"Colours", "Lone", "\""},         {"Colours", "Equals", "a=b;c"},
        {"Colours", "no value", "absent"}, {"Colours", "stray", "absent"},
        {"Colours", "Late", "absent"},     {"Other", "Ink", "7"},
        {"Nowhere", "Ink", "absent"},      {"last db", "path", "Bär"},
    };
    for (const auto& [section, key, value] : cases)
        EXPECT_EQ(read(section, key), QString::fromUtf8(value)) << section << '/' << key;
}

TEST_F(ProfileFile, CutsAtTheReadersBuffer)
{
    const QString longText(300, u'x');
    EXPECT_TRUE(write("S", "K", longText));
    EXPECT_EQ(read("S", "K").size(), 199);
    EXPECT_EQ(read("S", "missing", longText).size(), 199);
    EXPECT_EQ(read("S", "missing", u" x  "_s), u" x"_s);
}

TEST_F(ProfileFile, WritingChangesOneLineOnly)
{
    const struct {
        QByteArray before;
        const char* section;
        const char* key;
        QByteArray after;
    } cases[] = {
        {"", "S", "k", "[S]\r\nk=v\r\n"},
        {"[a]\nx=1", "S", "k", "[a]\nx=1\r\n[S]\r\nk=v\r\n"},
        {"; mine\n[ s ]\nK = \"old\"\nother\n\n[b]\nk=1\n", "S", "k",
         "; mine\n[ s ]\nK =v\r\nother\n\n[b]\nk=1\n"},
        {"[s]\nx=1\n\n\n[b]\n", "S", "k", "[s]\nx=1\nk=v\r\n\n\n[b]\n"},
        {"[s]", "S", "k", "[s]\r\nk=v\r\n"},
        {"[s]\nk=1\nK=2\n[S]\nk=3\n", "S", "k", "[s]\nk=v\r\nK=2\n[S]\nk=3\n"},
        {QByteArray("\x00\xFF\x81 garbage\n", 12), "S", "k",
         QByteArray("\x00\xFF\x81 garbage\n", 12) + "[S]\r\nk=v\r\n"},
    };
    for (const auto& [before, section, key, after] : cases) {
        putFile(profile(), before);
        EXPECT_TRUE(write(section, key, u"v"_s));
        EXPECT_EQ(bytesOf(profile()), after) << before.toStdString();
    }
}

TEST_F(ProfileFile, WhatCannotBeReadIsNotReplaced)
{
    QFile file(profile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64(5) << 30)); // larger than any profile is
    EXPECT_EQ(read("S", "k"), u"absent"_s);
    EXPECT_FALSE(write("S", "k", u"v"_s));
    EXPECT_EQ(file.size(), qint64(5) << 30);
}
