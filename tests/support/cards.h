// Cards for tests that need no folder: they exist in the session only.
#pragma once

#include "core/session.h"

#include <QStringList>

#include <vector>

/// Card i gets values[i - 1] in field 1, of the given type; it is at (100, 200), 80 by 60.
inline void cards(const QStringList& values, const QString& type = QStringLiteral("Abc"))
{
    session.numCards = int(values.size());
    session.fieldType[1] = type;
    session.chosenField = 1;
    for (int i = 1; i <= session.numCards; ++i) {
        session.cardValue[i][1] = values[i - 1];
        session.box[i].left = 100;
        session.box[i].top = 200;
        session.box[i].visible = true;
    }
}

/// Cards with two fields, the text "Name" and the number "Legs".
inline void animals(const QStringList& names, const QStringList& legs)
{
    cards(names);
    session.numFields = 2;
    session.fieldName[1] = QStringLiteral("Name");
    session.fieldName[2] = QStringLiteral("Legs");
    session.fieldType[2] = QStringLiteral("123");
    for (int i = 1; i <= session.numCards; ++i)
        session.cardValue[i][2] = legs[i - 1];
}

/// The numbers of the cards from the upper left to the lower right of the board.
inline std::vector<int> cardsByTop()
{
    std::vector<int> order;
    for (int i = 1; i <= session.numCards; ++i)
        order.push_back(i);
    std::stable_sort(order.begin(), order.end(),
                     [](int one, int other) { return session.box[one].top < session.box[other].top; });
    return order;
}
