#include "tools/grouping.h"

#include "core/screen.h"
#include "core/session.h"
#include "platform/errors.h"
#include "tools/conditions.h"
#include "tools/flight.h"
#include "tools/pacing.h"

#include <algorithm>
#include <cmath>

namespace {

struct Group {
    QString value; // as its first card spells it
    qint16 count = 0;
};

using Groups = Table<Group, lastCard>;

/// Fills groups 1..session.numGroups in the order of their first cards.
Groups countedGroups(int field)
{
    Groups groups;
    session.numGroups = 0;
    for (int card = 1; card <= session.numCards; ++card) {
        const QString& value = session.cardValue[card][field];
        int g = 1;
        while (g <= session.numGroups && adjustCase(groups[g].value) != adjustCase(value))
            ++g;
        if (g > session.numGroups) {
            session.numGroups = g;
            groups[g].value = value;
        }
        ++groups[g].count;
    }
    return groups;
}

void showGroupLabel(int g, const QString& caption, int column, double width)
{
    BoardLabel& label = session.GroupLabel[g];
    label.text = caption;
    double textWidth = 0;
    screen.measureLabel(caption, textWidth, label.height);
    label.width = width;
    label.left = column * width;
    label.top = session.boardHeight - label.height;
    label.visible = true;
}

/// The column of the card: the last label that its value equals, or 0, "Other".
int columnOf(int card, int field)
{
    const QString value = adjustCase(session.cardValue[card][field]);
    for (int g = session.numGroups; g >= 1; --g) {
        if (adjustCase(session.GroupLabel[g].text) == value)
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

/// How far one card of a column stands above the other: they touch, or overlap as far as they must.
double stepBetweenCards(int tallest)
{
    const double step = session.box[1].height - 1;
    const double room = session.GroupLabel[1].top - session.box[0].top;
    return tallest * step > room ? std::floor(room) / (tallest + 1) : step;
}

} // namespace

void buildGroups(int field)
{
    withErrorBox([&] {
        Groups groups = countedGroups(field);
        std::stable_sort(groups.begin() + 1, groups.begin() + 1 + session.numGroups,
                         [](const Group& one, const Group& other) { return one.count > other.count; });
        session.numGroups = std::min(session.numGroups, mostGroups);
        const double columnWidth = std::floor(session.boardWidth / (session.numGroups + 1));
        for (int g = 1; g <= session.numGroups; ++g)
            showGroupLabel(g, groups[g].value, g - 1, columnWidth);
        showGroupLabel(0, QStringLiteral("Other"), session.numGroups, columnWidth);
        screen.redrawBoard();
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
            const BoardLabel& label = session.GroupLabel[g];
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
