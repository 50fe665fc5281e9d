#include "tools/finding.h"

#include "board/labels.h"
#include "core/mainView.h"
#include "core/session.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct FindRule {
    const char* joined;
    bool (*holds)(bool c0, bool c1, bool c2);
    int rows; // number of conditions that it uses
};

constexpr FindRule rules[] = {
    {"  ", [](bool c0, bool, bool) { return c0; }, 1},
    {"and ", [](bool c0, bool c1, bool) { return c0 && c1; }, 2},
    {"or ", [](bool c0, bool c1, bool) { return c0 || c1; }, 2},
    {"andand", [](bool c0, bool c1, bool c2) { return c0 && c1 && c2; }, 3},
    {"oror", [](bool c0, bool c1, bool c2) { return c0 || c1 || c2; }, 3},
    {"andor", [](bool c0, bool c1, bool c2) { return (c0 && c1) || c2; }, 3},
    {"orand", [](bool c0, bool c1, bool c2) { return c0 || (c1 && c2); }, 3},
};

const FindRule* ruleOf(const QString& joined)
{
    const auto* found = std::find_if(std::begin(rules), std::end(rules), [&](const FindRule& rule) {
        return joined == QLatin1String(rule.joined);
    });
    return found == std::end(rules) ? nullptr : found;
}

bool joins(const QString& word) { return word == "and"_L1 || word == "or"_L1; }

} // namespace

bool isFindRule(const QString& joined) { return ruleOf(joined) != nullptr; }

bool isFound(const QString& joined, int card)
{
    const FindRule* rule = ruleOf(joined);
    if (rule == nullptr)
        return false;
    bool c[3] = {};
    for (int row = 0; row < rule->rows; ++row)
        c[row] = testCondition(row, card);
    return rule->holds(c[0], c[1], c[2]);
}

void showSearchTitle()
{
    clearBoardLabels();
    QString sentence = u"Search for: "_s + conditionText(0);
    for (int row = 1; row <= 2; ++row) {
        const QString& word = session.andOr[row - 1];
        if (joins(word))
            sentence += word + u' ' + conditionText(row);
    }
    BoardLabel& title = session.board.searchTitle;
    title.text = sentence;
    mainView.measureLabel(title.text, title.width, title.height);
    title.left = session.board.width / 2 - title.width / 2;
    title.top = 48;
    title.visible = true;
    mainView.redrawBoard();
}

void moveCardFound(int card, bool found)
{
    if (found)
        ++session.foundCount;
    const double target =
        found ? session.board.height * 0.25 : session.board.height - 16 - session.box[card].height;
    if (!found)
        flyAlong(card, Axis::y, target);
    else if (flyOnto(card, Axis::y, target))
        bringCardToFront(card);
}

void runFind()
{
    const QString joined = session.andOr[0] + session.andOr[1];
    showSearchTitle();
    beginRun();
    session.foundCount = 0;
    if (isFindRule(joined)) {
        for (int card = 1; card <= session.numCards; ++card)
            moveCardFound(card, isFound(joined, card));
    }
    endRun();
}
