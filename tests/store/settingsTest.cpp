#include "store/settings.h"

#include "store/options.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

using Settings = Fresh;

TEST_F(Settings, MeanRelativeFoldersFromTheProgramsOwn)
{
    const struct {
        QString written, read;
    } folders[] = {
        {u"samples"_s, inTestFolder(u"samples"_s)},
        {u"samples/Amazing Animals"_s, inTestFolder(u"samples/Amazing Animals"_s)},
        {u"/home/class"_s, u"/home/class"_s},
        {u"C:\\Class"_s, u"C:\\Class"_s},
        {u"\\\\server\\class"_s, u"\\\\server\\class"_s},
        {u"MyDocs"_s, u"MyDocs"_s},
        {QString(), QString()},
    };
    for (const auto& folder : folders) {
        write(option::workingFolder, folder.written);
        EXPECT_EQ(readFolder(option::workingFolder), folder.read);
    }
}

TEST_F(Settings, HaveALetterForTheTeacherWhateverTheFileHolds)
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
