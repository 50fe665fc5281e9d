#include "store/questionFiles.h"

#include "core/session.h"
#include "support/files.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;

using QuestionFiles = Fresh;

TEST_F(QuestionFiles, DeletingTheAnswersTouchesNothingElse)
{
    session.dbPath = testFolder().chopped(1);
    putFile(inTestFolder(u"ANSWERS.TXT"_s), "x");
    putFile(inTestFolder(u"Questions.txt"_s), "x");
    deleteAnswers();
    EXPECT_TRUE(QFile::exists(inTestFolder(u"ANSWERS.TXT"_s))) << "the folder is no database";
    putFile(inTestFolder(u"DB-Info.tdb"_s), "x");
    deleteAnswers();
    deleteAnswers();
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList({u"DB-Info.tdb"_s, u"Questions.txt"_s}));
}

TEST_F(QuestionFiles, GrowByALineEndWithEachCycleAndKeepWhatOthersHaveWritten)
{
    session.dbPath = testFolder().chopped(1);
    const QString notes = inTestFolder(u"Questions.txt"_s);
    const auto kept = [] {
        QByteArrayList found;
        QDirIterator files(testFolder() + u".kept"_s, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(bytesOf(files.next()));
        std::sort(found.begin(), found.end());
        return found;
    };
    EXPECT_EQ(readQuestions(), std::nullopt);
    EXPECT_FALSE(QFile::exists(notes)) << "reading makes no file";
    EXPECT_EQ(openQuestions(), QString());
    EXPECT_EQ(readQuestions(), QString()) << "the jotter makes an empty one";
    QByteArray bytes = "Ile n\u00f3g ma \u017c\u00f3\u0142w?\r\n4\n\r";
    saveQuestions(QString::fromUtf8(bytes));
    for (int cycle = 0; cycle < 3; ++cycle) {
        bytes += "\r\n";
        EXPECT_EQ(bytesOf(notes), bytes);
        EXPECT_EQ(bytesOf(questionsForPrograms()).right(bytes.size() + 2), "\r\n" + bytes);
        EXPECT_FALSE(saveQuestions(openQuestions()));
    }
    EXPECT_EQ(kept(), QByteArrayList());
    putFile(notes, "Theirs");
    putFile(questionsForPrograms(), "Edited in a viewer");
    EXPECT_TRUE(saveQuestions(u"Mine"_s));
    EXPECT_EQ(kept(), QByteArrayList({"Edited in a viewer", "Theirs"}));
    QFile::remove(notes);
    QDir().mkdir(notes); // can't be read as a file
    EXPECT_EQ(errorOf([] { saveQuestions(u"Mine"_s); }), pathAccessError);
    session.dbPath += u"/gone"_s;
    EXPECT_EQ(openQuestions(), QString());
    EXPECT_EQ(errorOf([] { saveQuestions(u"Mine"_s); }), pathNotFound);
}
