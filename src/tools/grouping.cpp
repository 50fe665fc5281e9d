#include "tools/grouping.h"

#include "core/mainView.h"
#include "core/session.h"
#include "platform/errors.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Group {
    QString value; // spelled as on its first card
    qint16 count = 0;
};

using Groups = Table<Group, lastCard>;

/// Finds groups 1..session.groupTable.numGroups, in the order of their first cards.
Groups countedGroups(int field)
{
    Groups groups;
    session.groupTable.numGroups = 0;
    for (int card = 1; card <= session.numCards; ++card) {
        const QString& value = session.cardValue[card][field];
        int g = 1;
        while (g <= session.groupTable.numGroups && adjustCase(groups[g].value) != adjustCase(value))
            ++g;
        if (g > session.groupTable.numGroups) {
            session.groupTable.numGroups = g;
            groups[g].value = value;
        }
        ++groups[g].count;
    }
    return groups;
}

void showGroupLabel(int g, const QString& caption, int column, double width)
{
    BoardLabel& label = session.board.groupTitle[g];
    label.text = caption;
    double textWidth = 0;
    mainView.measureLabel(caption, textWidth, label.height);
    label.width = width;
    label.left = column * width;
    label.top = session.board.height - label.height;
    label.visible = true;
}

/// The card's column: the last label equal to its value, or 0 for "Other".
int columnOf(int card, int field)
{
    const QString value = adjustCase(session.cardValue[card][field]);
    for (int g = session.groupTable.numGroups; g >= 1; --g) {
        if (adjustCase(session.board.groupTitle[g].text) == value)
            return g;
    }
    return 0;
}

int tallestColumn(int field)
{
    Table<int, 12> columnFill;
    for (int card = 1; card <= session.numCards; ++card)
        ++columnFill[columnOf(card, field)];
    return *std::max_element(columnFill.begin(), columnFill.end());
}

/// The vertical distance between cards of a column: they touch, or overlap as much as needed.
double stepBetweenCards(int tallest)
{
    const double step = session.box[1].height - 1;
    const double room = session.board.groupTitle[1].top - session.box[0].top;
    return tallest * step > room ? std::floor(room) / (tallest + 1) : step;
}

} // namespace

void buildGroups(int field)
{
    withErrorBox([&] {
        Groups groups = countedGroups(field);
        std::stable_sort(groups.begin() + 1, groups.begin() + 1 + session.groupTable.numGroups,
                         [](const Group& one, const Group& other) { return one.count > other.count; });
        session.groupTable.numGroups = std::min(session.groupTable.numGroups, mostGroups);
        const double columnWidth = std::floor(session.board.width / (session.groupTable.numGroups + 1));
        for (int g = 1; g <= session.groupTable.numGroups; ++g)
            showGroupLabel(g, groups[g].value, g - 1, columnWidth);
        showGroupLabel(0, u"Other"_s, session.groupTable.numGroups, columnWidth);
        mainView.redrawBoard();
    });
}

void moveCardsToGroups(int field)
{
    withErrorBox([&] {
        beginRun();
        const double stepY = stepBetweenCards(tallestColumn(field));
        Table<int, 12> columnFill;
        for (int card = 1; card <= session.numCards; ++card) {
            const int g = columnOf(card, field);
            const BoardLabel& label = session.board.groupTitle[g];
            const CardImage& image = session.box[card];
            flyOnto(card, Axis::x, label.left + label.width / 2 - image.width / 2);
            if (flyOnto(card, Axis::y, label.top - stepY * columnFill[g] - image.height)) {
                sendCardToBack(card);
                ++columnFill[g];
            }
        }
        endRun();
    });
}
