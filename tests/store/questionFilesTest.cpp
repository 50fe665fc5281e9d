#include "store/questionFiles.h"

#include "core/session.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

using QuestionFiles = Fresh;

TEST_F(QuestionFiles, DeletingTheAnswersTouchesNothingElse)
{
    session.dbPath = testFolder().chopped(1);
    putFile(inTestFolder(u"ANSWERS.TXT"_s), "x");
    putFile(inTestFolder(u"Questions.txt"_s), "x");
    deleteAnswers();
    deleteAnswers();
    EXPECT_EQ(QDir(testFolder()).entryList(QDir::Files), QStringList(u"Questions.txt"_s));
}
