#include "store/paths.h"

#include "support/files.h"

using namespace Qt::StringLiterals;

using Paths = Fresh;

TEST_F(Paths, CleaningCutsRunsOfSeparatorsAfterTheSecondCharacter)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"a", "a"},
        {R"(C:\\\a\\b)", R"(C:\a\b)"},
        {R"(\\server\\share)", R"(\\server\share)"},
        {R"(\\\server)", R"(\\\server)"},
        {R"(C:\a\\)", R"(C:\a\)"},
        {"/home//child///cards/", "/home/child/cards/"},
        {"//server//share", "//server/share"},
        {R"(a\b/\c)", R"(a\b\c)"},
    };
    for (const auto& [path, clean] : cases)
        EXPECT_EQ(cleanPath(QString::fromLatin1(path)), QString::fromLatin1(clean)) << path;
}

TEST_F(Paths, AreTakenApartAndJoinedAtEitherSeparator)
{
    EXPECT_EQ(lastPathPart(QStringLiteral(R"(C:\cards/pets)")), u"pets"_s);
    EXPECT_EQ(lastPathPart(u"pets"_s), u"pets"_s);
    EXPECT_EQ(lastPathPart(u"/pets/"_s), QString());
    EXPECT_EQ(joinPath(u"/"_s, u"x"_s), u"/x"_s);
    EXPECT_EQ(joinPath(u"/pets"_s, u"x"_s), u"/pets/x"_s);
}

TEST_F(Paths, AFileIsFoundWhateverItsCase)
{
    putFile(inTestFolder(u"CARDAAAA.TCD"_s), "upper");
    putFile(inTestFolder(u"[odd]*.tcd"_s), "");
    const auto found = [](const char* name) {
        return lastPathPart(filePathIn(testFolder(), QString::fromLatin1(name)));
    };
    EXPECT_EQ(found("CardAAAA.tcd"), u"CARDAAAA.TCD"_s);
    EXPECT_EQ(found("[ODD]*.TCD"), u"[odd]*.tcd"_s);
    EXPECT_EQ(found("new.tcd"), u"new.tcd"_s);
    putFile(inTestFolder(u"cardaaaa.tcd"_s), "lower");
    EXPECT_EQ(found("cardaaaa.tcd"), u"cardaaaa.tcd"_s);
}
