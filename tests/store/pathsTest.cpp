#include "store/paths.h"

#include "support/files.h"

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
    EXPECT_EQ(lastPathPart(QStringLiteral(R"(C:\cards/pets)")), QStringLiteral("pets"));
    EXPECT_EQ(lastPathPart(QStringLiteral("pets")), QStringLiteral("pets"));
    EXPECT_EQ(lastPathPart(QStringLiteral("/pets/")), QString());
    EXPECT_EQ(joinPath(QStringLiteral("/"), QStringLiteral("x")), QStringLiteral("/x"));
    EXPECT_EQ(joinPath(QStringLiteral("/pets"), QStringLiteral("x")), QStringLiteral("/pets/x"));
}

TEST_F(Paths, AFileIsFoundWhateverItsCase)
{
    putFile(inTestFolder(QStringLiteral("CARDAAAA.TCD")), "upper");
    putFile(inTestFolder(QStringLiteral("[odd]*.tcd")), "");
    const auto found = [](const char* name) {
        return lastPathPart(filePathIn(testFolder(), QString::fromLatin1(name)));
    };
    EXPECT_EQ(found("CardAAAA.tcd"), QStringLiteral("CARDAAAA.TCD"));
    EXPECT_EQ(found("[ODD]*.TCD"), QStringLiteral("[odd]*.tcd"));
    EXPECT_EQ(found("new.tcd"), QStringLiteral("new.tcd"));
    putFile(inTestFolder(QStringLiteral("cardaaaa.tcd")), "lower");
    EXPECT_EQ(found("cardaaaa.tcd"), QStringLiteral("cardaaaa.tcd"));
}
