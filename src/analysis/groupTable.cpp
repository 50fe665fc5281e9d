#include "analysis/groupTable.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostGroups = 40;
constexpr double belowAll = -99999999;

void clearRows()
{
    for (int row = 1; row <= mostGroups; ++row) {
        session.groupTable.groupTally[row] = 0;
        session.groupTable.groupLabel[row].clear();
    }
}

/// The row with that label; 0 without one.
int rowOf(const QString& label)
{
    const GroupTable& table = session.groupTable;
    for (int row = 1; row <= table.numTallies; ++row) {
        if (table.groupLabel[row] == label)
            return row;
    }
    return 0;
}

void count(const QString& value)
{
    GroupTable& table = session.groupTable;
    if (const int row = rowOf(value)) {
        ++table.groupTally[row];
        return;
    }
    ++table.numTallies;
    if (table.numTallies > mostGroups)
        desktop.boxes.showMessage(MessageIcon::none, u"Tallymoor"_s, u"Graph Too Complex"_s);
    table.groupLabel[table.numTallies] = value; // fails beyond the table's end
    table.groupTally[table.numTallies] = 1;
}

bool isOutOfOrder(int row, bool byLabel)
{
    const QString& one = session.groupTable.groupLabel[row];
    const QString& next = session.groupTable.groupLabel[row + 1];
    return byLabel ? one > next : leadingNumber(one) > leadingNumber(next);
}

void exchangeWithNext(int row)
{
    std::swap(session.groupTable.groupLabel[row], session.groupTable.groupLabel[row + 1]);
    std::swap(session.groupTable.groupTally[row], session.groupTable.groupTally[row + 1]);
}

} // namespace

void countGroups(int field)
{
    try {
        session.groupTable.numTallies = 0;
        clearRows();
        for (int card = 1; card <= session.numCards; ++card)
            count(session.cardValue[card][field]);
    } catch (const RuntimeError& error) {
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s,
                                  error.description() + u" - "_s + QString::number(error.number()));
    }
}

void listValues(int field)
{
    session.groupTable.numTallies = session.numCards;
    clearRows();
    for (int card = 1; card <= session.numCards; ++card) {
        session.groupTable.groupTally[card] = toSingle(leadingNumber(session.cardValue[card][field]));
        session.groupTable.groupLabel[card] = session.cardValue[card][1];
    }
}

void findGraphMax()
{
    session.graph.graphMaxValue = belowAll;
    for (int row = 1; row <= session.groupTable.numTallies; ++row)
        session.graph.graphMaxValue =
            std::max(session.graph.graphMaxValue, double(session.groupTable.groupTally[row]));
}

void sortGroups(int field)
{
    const bool byLabel = session.fieldType[field] == "Abc"_L1 || session.graph.showAllData;
    const int last = session.groupTable.numTallies - 1;
    for (int round = 1; round <= last; ++round) {
        for (int row = 1; row <= last; ++row) {
            if (isOutOfOrder(row, byLabel))
                exchangeWithNext(row);
        }
    }
}

void findScatterMax()
{
    for (const int axis : {1, 2}) {
        session.graph.graphMaxValue = belowAll; // anew for each axis: the last one's is what remains
        for (int card = 1; card <= session.numCards; ++card) {
            const QString& value = session.cardValue[card][session.graph.graphAxisField[axis]];
            session.graph.graphMaxValue = std::max(session.graph.graphMaxValue, leadingNumber(value));
        }
    }
}
