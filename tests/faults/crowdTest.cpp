// Three copies of the program work in one folder by random: what anybody has typed is found again, in a
// record or among the kept versions, unless somebody who saw it has typed something else over it.
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/loading.h"
#include "editing/cardEntry.h"
#include "faults/children.h"
#include "faults/effort.h"
#include "faults/writers.h"
#include "platform/textFile.h"
#include "store/descriptionFile.h"
#include "support/files.h"
#include "tools/bin.h"

#include <QDeadlineTimer>
#include <QDirIterator>
#include <QSet>
#include <QThread>

#include <iostream>
#include <list>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int copies = 3;
constexpr int mostCards = 12;

/// One of the programs. It notes every text that it saved, and every text that it typed over.
class Member {
public:
    Member(int memberNumber, const QString& log)
        : number(memberNumber)
        , chance(unsigned(memberNumber))
        , notes(log)
    {
        EXPECT_TRUE(notes.open(QIODevice::WriteOnly | QIODevice::Append));
        desktop.random = [this] { return double(chance()) / (double(std::mt19937::max()) + 1); };
        desktop.now = [] { return QDateTime::currentDateTime(); };
        mainView.openCard = [this](int card) { fillIn(card); };
    }

    void act()
    {
        const int card = session.numCards ? upTo(session.numCards) + 1 : 0;
        switch (upTo(12)) {
        case 0:
            if (session.numCards < mostCards)
                addCard();
            break;
        case 1:
            if (card && session.numCards > 2)
                deleteCard(session.cardId[card], session.recordName[card]);
            break;
        case 2:
            loadAllCards();
            break;
        case 3:
            if (card) {
                session.box[card].left = 20 + upTo(800);
                saveCardPosition(card);
            }
            break;
        default:
            if (card)
                fillIn(card);
        }
    }

private:
    int upTo(int count) { return int(chance() % unsigned(count)); }

    void fillIn(int card)
    {
        fillEditor(card);
        const QString seen = session.editor.DataBox[1];
        const QString typed = u"text-%1-%2."_s.arg(number).arg(++texts);
        session.editor.DataBox[1] = typed;
        QThread::msleep(ulong(upTo(20)));
        const bool saved = keepCard();
        const QString note = saved ? u"saved "_s + typed + u'\n' + u"over "_s + seen + u'\n' : QString();
        EXPECT_EQ(notes.write(note.toUtf8()), note.size());
        notes.flush();
    }

    int number;
    int texts = 0;
    std::mt19937 chance;
    QFile notes;
};

QString logOf(int member) { return inTestFolder(u"log%1"_s.arg(member)); }

void work(int member)
{
    const QDeadlineTimer end(effort.crowdSeconds * 1000);
    loadAllCards();
    Member copy(member, logOf(member));
    while (!end.hasExpired())
        copy.act();
}

/// The texts in the folder's records and its kept versions, of which the oldest go after a while.
void collectTexts(QSet<QString>& found)
{
    for (QDirIterator files(session.dbPath, {u"*.tcd"_s}, QDir::Files | QDir::Hidden,
                            QDirIterator::Subdirectories);
         files.hasNext();)
        found.insert(itemsIn(bytesOf(files.next())).value(1));
}

QSet<QString> noted(const char* word)
{
    QSet<QString> texts;
    for (int member = 1; member <= copies; ++member) {
        for (const QByteArray& line : bytesOf(logOf(member)).split('\n')) {
            if (line.startsWith(word))
                texts.insert(QString::fromUtf8(line.mid(qsizetype(qstrlen(word)))));
        }
    }
    return texts;
}

using Crowd = Fresh;

} // namespace

TEST_F(Crowd, LosesNothingThatAnybodyTyped)
{
    useFolder(inTestFolder(u"class"_s));
    QDir().mkpath(session.dbPath);
    session.cardId[1].clear();
    session.cardSize = 1;
    writeDbInfo();
    std::list<Child> programs;
    for (int member = 1; member <= copies; ++member)
        programs.emplace_back([member] { work(member); });

    QSet<QString> found;
    for (const QDeadlineTimer end(effort.crowdSeconds * 1000); !end.hasExpired(); QThread::msleep(100))
        collectTexts(found);
    for (Child& program : programs)
        EXPECT_TRUE(program.succeeded());
    collectTexts(found);

    const QSet<QString> saved = noted("saved ");
    const QSet<QString> lost = saved - noted("over ") - found;
    std::cout << saved.size() << " texts saved by " << copies << " programs, " << lost.size() << " lost"
              << std::endl;
    EXPECT_GT(saved.size(), 10);
    EXPECT_TRUE(lost.isEmpty()) << lost.values().join(u' ').toStdString();
    EXPECT_TRUE(leftoversIn(session.dbPath).isEmpty());
}
