#include "store/questionFiles.h"

#include "core/session.h"
#include "support/files.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace {

class QuestionFiles : public Fresh {
protected:
    QuestionFiles() { session.dbPath = testFolder().chopped(1); }

    static QByteArrayList kept()
    {
        QByteArrayList found;
        QDirIterator files(testFolder() + u".kept"_s, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(bytesOf(files.next()));
        std::sort(found.begin(), found.end());
        return found;
    }

    const QString notes = inTestFolder(u"Questions.txt"_s);
    const QString copy = inTestFolder(u"Qa.txt"_s);
    const QByteArray heading =
        QByteArray(20, '=') + "\r\nTallymoor Jotter\r\n" + QByteArray(20, '=') + "\r\n\r\n";
};

} // namespace

TEST_F(QuestionFiles, DeletingTheAnswersTouchesNothingElse)
{
    putFile(inTestFolder(u"ANSWERS.TXT"_s), "x");
    putFile(inTestFolder(u"Questions.txt"_s), "x");
    deleteAnswers();
    deleteAnswers();
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList(u"Questions.txt"_s));
}

TEST_F(QuestionFiles, GrowByALineEndWithEachCycle)
{
    EXPECT_EQ(readQuestions(), std::nullopt);
    EXPECT_FALSE(QFile::exists(notes)) << "reading makes no file";
    EXPECT_EQ(openQuestions(), QString());
    EXPECT_EQ(readQuestions(), QString()) << "the jotter makes an empty one";
    EXPECT_EQ(questionsForPrograms(), QString());
    QByteArray bytes = "Ile n\u00f3g ma \u017c\u00f3\u0142w?\r\n4\n\r";
    saveQuestions(QString::fromUtf8(bytes));
    for (int cycle = 0; cycle < 3; ++cycle) {
        bytes += "\r\n";
        EXPECT_EQ(bytesOf(notes), bytes);
        EXPECT_EQ(bytesOf(questionsForPrograms()), heading + bytes);
        EXPECT_EQ(openQuestions().toUtf8(), bytes);
        EXPECT_FALSE(saveQuestions(openQuestions()));
    }
    EXPECT_EQ(kept(), QByteArrayList());
}

TEST_F(QuestionFiles, KeepWhatOthersHaveWritten)
{
    putFile(notes, "Why?");
    openQuestions();
    putFile(notes, "Theirs");
    putFile(copy, "Edited in a viewer");
    EXPECT_TRUE(saveQuestions(u"Mine"_s));
    EXPECT_EQ(kept(), QByteArrayList({"Edited in a viewer", "Theirs"}));
    QFile::remove(notes);
    QDir().mkdir(notes); // can't be read as a file
    EXPECT_EQ(errorOf([] { saveQuestions(u"Mine"_s); }), pathAccessError);
    session.dbPath += u"/gone"_s;
    EXPECT_EQ(openQuestions(), QString());
    EXPECT_EQ(errorOf([] { saveQuestions(u"Mine"_s); }), pathNotFound);
    EXPECT_FALSE(QFile::exists(session.dbPath));
}
