// Printouts, read back from their PDF files by another program.
#include "analysis/printCard.h"
#include "analysis/printJob.h"
#include "analysis/thinkPrint.h"
#include "support/cards.h"
#include "support/database.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString problem = u"Printer Problem|Make sure your printer is ready !"_s;

QString pdftotext(const QByteArray& pdf, const QString& how)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {how, u"-"_s, u"-"_s});
    reader.write(pdf);
    reader.closeWriteChannel();
    EXPECT_TRUE(reader.waitForFinished());
    return QString::fromUtf8(reader.readAllStandardOutput());
}

class Printing : public Fresh {
protected:
    Printing()
    {
        session.paper.printScale = 0.08;
        desktop.paper.defaultPrinterName = [] { return u"Hall"_s; };
    }

    static QStringList linesOf(const QString& text, double boxWidth)
    {
        thinkPrint(text, boxWidth);
        return pdftotext(recorded.pdf, u"-layout"_s).remove(u'\f').split(u'\n', Qt::SkipEmptyParts);
    }
};

TEST_F(Printing, ATextIsBrokenIntoLines)
{
    const QString wide = QString(60, u'W'); // on paper 41 of them make a line
    struct Case {
        const char* what;
        QString text;
        double box; // twips
        std::vector<qsizetype> lengths;
    };
    const Case cases[] = {
        {"one line for each return", u"Zähne\r\nżółw \rend"_s, 9000, {5, 4, 3}},
        {"a narrow box", u"one two three"_s, 1400, {3 + 1 + 3, 5}},
        {"no wider than the page", u"WWWWWWWWW "_s.repeated(8), 90000, {4 * 10 - 1, 4 * 10 - 1}},
        {"a word longer than a line", u"then "_s + wide + u" end"_s, 90000, {4, 37, 23 + 4}},
        {"a line feed is nothing", u"a\nb"_s, 9000, {2}},
    };
    for (const auto& [what, text, box, lengths] : cases) {
        std::vector<qsizetype> found;
        for (const QString& line : linesOf(text, box))
            found.push_back(line.trimmed().size());
        EXPECT_EQ(found, lengths) << what;
    }
    EXPECT_EQ(linesOf(u"Zähne\r\nżółw"_s, 9000).join(u'|').simplified().remove(u' '), u"Zähne|żółw"_s);
}

TEST_F(Printing, ALongTextEndsOnItsOnePage)
{
    thinkPrint(u"line\r\n"_s.repeated(200), 9000);
    const QString words = pdftotext(recorded.pdf, u"-bbox"_s);
    EXPECT_EQ(words.count(u"<page"_s), 1);
    double lowest = 0;
    double height = 0;
    const QRegularExpression measure(u"(yMax|page .*height)=\"([\\d.]+)\""_s);
    for (const auto& found : measure.globalMatch(words)) {
        double& kept = found.captured(1) == "yMax"_L1 ? lowest : height;
        kept = std::max(kept, found.captured(2).toDouble());
    }
    EXPECT_NEAR(lowest / height, 0.77, 0.02);
}

TEST_F(Printing, NothingIsSentUnlessAllIsWell)
{
    session.dbPath = writeDatabase(u"pets"_s, 1);
    cards({u"cat"_s});
    session.cardId[1] = cardName(1);
    const auto noPrinter = [] { desktop.paper.defaultPrinterName = [] { return QString(); }; };
    const auto refusing = [] { desktop.paper.askPrinter = [](const QString&) { return PrinterAnswer(); }; };
    const auto failing = [] {
        desktop.paper.print = [](const QString&, const QString&, const QByteArray&) { return false; };
    };
    const auto pictureGone = [] { QFile::remove(session.dbPath + u"/AAAAAAAA.bmp"_s); };
    const auto strip = [] { session.cardSize = stripSize; }; // needs no picture
    struct Case {
        const char* what;
        std::function<void()> happens;
        int card;
        bool printed;
    };
    const Case cases[] = {
        {"a card", [] {}, 1, true},
        {"no card selected", [] {}, 0, false},
        {"the card is gone", [] {}, 2, false},
        {"the picture is gone", pictureGone, 1, false},
        {"a strip", strip, 1, true},
        {"a job that fails", failing, 1, false},
        {"refusing", refusing, 1, false},
        {"no printer", noPrinter, 1, false},
    };
    for (const auto& [what, happens, card, printed] : cases) {
        recorded.printed.clear();
        recorded.messages.clear();
        happens();
        printOut(u"Card"_s, PaperShape::portrait, [number = card](Page& page) { drawCard(page, number); });
        EXPECT_EQ(recorded.printed.size() == 1 && recorded.printed[0] == "Hall|Card"_L1, printed) << what;
        EXPECT_EQ(recorded.messages, printed ? QStringList() : QStringList(problem)) << what;
        EXPECT_FALSE(recorded.busy) << what;
    }
}

} // namespace
