#include "analysis/thinkPrint.h"

#include "analysis/printJob.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double fontSize = 14;      // points
constexpr double marginShare = 0.08; // of the page, on the left and at the top
constexpr double textShare = 0.69;   // of the page's height, below the top margin
constexpr double frameOfBox = 8;     // twips by which a line may be wider than the box

/// Breaks a text into lines while it is printed, a character at a time.
class LinePrinter {
public:
    LinePrinter(Page& onPage, double boxWidth)
        : page(onPage)
        , left(marginShare * page.width())
        , longest(std::min(boxWidth + frameOfBox, page.width() - 2 * left))
        , limit((marginShare + textShare) * page.height() - page.textHeight())
    {
        page.moveTo(left, marginShare * page.height());
    }

    void take(QChar character)
    {
        if (character == u' ')
            endWord();
        else if (character == u'\r')
            endLine();
        else if (character != u'\n')
            addToWord(character);
    }

    void end()
    {
        if (!line.isEmpty() || !word.isEmpty())
            endLine();
    }

    bool pageIsFull() const { return full; }

private:
    bool fits(const QString& text) const { return page.textWidth(text) <= longest; }

    void endWord()
    {
        if (!fits(line + u' ' + word))
            printLineBeforeWord();
        line += word + u' ';
        word.clear();
    }

    void endLine()
    {
        if (fits(line + word)) {
            print(line + word);
        } else {
            print(line);
            print(word);
        }
        line.clear();
        word.clear();
    }

    void addToWord(QChar character)
    {
        if (!fits(word + character)) {
            printLineBeforeWord();
            print(word);
            word.clear();
        }
        word += character;
    }

    void printLineBeforeWord()
    {
        if (!line.isEmpty())
            print(line);
        line.clear();
    }

    void print(const QString& text)
    {
        if (full)
            return;
        page.moveTo(left, page.currentY());
        page.print(text);
        full = page.currentY() > limit;
    }

    Page& page;
    const double left;
    const double longest;
    const double limit;
    QString line;
    QString word;
    bool full = false;
};

} // namespace

void thinkPrint(const QString& printText, double boxWidth)
{
    printOut(u"Report"_s, PaperShape::portrait, [&](Page& page) { drawText(page, printText, boxWidth); });
}

void drawText(Page& page, const QString& printText, double boxWidth)
{
    page.setFont(u"Arial"_s, fontSize);
    LinePrinter lines(page, boxWidth);
    for (const QChar character : printText) {
        lines.take(character);
        if (lines.pageIsFull())
            return;
    }
    lines.end();
}
