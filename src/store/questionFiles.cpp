#include "store/questionFiles.h"

#include "core/session.h"
#include "store/paths.h"

#include <QFile>

using namespace Qt::StringLiterals;

void deleteAnswers()
{
    if (!session.dbPath.isEmpty())
        QFile::remove(filePathIn(session.dbPath, u"Answers.txt"_s));
}
