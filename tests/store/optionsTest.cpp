#include "store/options.h"

#include "store/settings.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

using Options = Fresh;

TEST_F(Options, AreTheirDefaultsUntilTheyAreWrittenTogether)
{
    EXPECT_EQ(read(option::backgroundColour), u"&H8000000F"_s);
    writeSettings({{option::clues, u"1"_s}, {option::backgroundColour, u"255"_s}, {option::sound, u"1"_s}});
    write(option::sound, u"0"_s);
    EXPECT_EQ(bytesOf(settingsFile()), QByteArray("[Clue]\r\nStatus=1\r\n[Background]\r\nColour=255\r\n"
                                                  "[Sound]\r\nStatus=0\r\n"));
    EXPECT_EQ(read(option::backgroundColour), u"255"_s);
}

TEST_F(Options, HaveALetterForTheTeacherWhateverTheFileHolds)
{
    EXPECT_EQ(optionsLetter(), u"K"_s);
    const std::vector<std::pair<QString, QString>> cases = {
        {u"Q"_s, u"Q"_s},  {u"q"_s, u"Q"_s}, {u"tk"_s, u"T"_s}, {u"Ctrl"_s, u"C"_s},       {u"7g"_s, u"G"_s},
        {u"\""_s, u"K"_s}, {u""_s, u"K"_s},  {u"11"_s, u"K"_s}, {u"\u00e9"_s, u"\u00c9"_s}};
    for (const auto& [value, letter] : cases) {
        write(option::optionsKey, value);
        EXPECT_EQ(optionsLetter(), letter) << value.toStdString();
    }
}
