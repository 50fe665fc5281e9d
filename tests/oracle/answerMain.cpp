// The program's own answers to the cases of cases.py: reads a case a line, runs each tool and prints a line.
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "tools/arranging.h"
#include "tools/conditions.h"
#include "tools/finding.h"
#include "tools/grouping.h"
#include "tools/pacing.h"
#include "tools/sorting.h"
#include "tools/venn.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// A value that was never read is a null QString, which differs from an empty one.
QString cardText(const QJsonValue& value)
{
    const QString text = value.toString();
    return text.isEmpty() ? QString() : text;
}

QString typedText(const QJsonValue& value)
{
    const QString text = value.toString();
    return text.isEmpty() ? QString(""_L1) : text;
}

void takeBoard(const QJsonObject& given)
{
    session = {};
    resetFieldTable();
    session.options.caseSensitive = given["caseSensitive"].toBool();
    session.board.width = given["board"][0].toDouble();
    session.board.height = given["board"][1].toDouble();
    session.cardWidth = given["cardSize"][0].toDouble();
    session.cardHeight = given["cardSize"][1].toDouble();
    resetCardTable();
    CardImage& corner = session.box[0];
    corner.left = given["box0"][0].toDouble();
    corner.top = given["box0"][1].toDouble();
    corner.width = given["box0"][2].toDouble();
    corner.height = given["box0"][3].toDouble();
}

void takeCards(const QJsonObject& given)
{
    const QJsonArray types = given["types"].toArray();
    const QJsonArray values = given["cards"].toArray();
    session.numFields = int(types.size());
    session.numCards = int(values.size());
    for (int f = 1; f <= session.numFields; ++f) {
        session.fieldType[f] = types[f - 1].toString();
        for (int card = 1; card <= session.numCards; ++card)
            session.cardValue[card][f] = cardText(values[card - 1][f - 1]);
    }
    for (int card = 1; card <= session.numCards; ++card) {
        session.box[card].left = given["start"][card - 1][0].toDouble();
        session.box[card].top = given["start"][card - 1][1].toDouble();
        session.box[card].visible = true;
    }
}

void takeConditions(const QJsonObject& given)
{
    for (int row = 0; row < 3; ++row) {
        const QJsonObject condition = given["rows"][row].toObject();
        session.findRow[row] = {QString::number(condition["field"].toInt()),
                                {},
                                condition["word"].toString(),
                                typedText(condition["value"])};
    }
    for (int join = 0; join < 2; ++join)
        session.andOr[join] = given["andOr"][join].toString();
}

/// The initial state for each tool.
void take(const QJsonObject& given)
{
    takeBoard(given);
    takeCards(given);
    takeConditions(given);
}

/// The function's result for each card, in order.
template <class Part>
QJsonArray ofCards(Part part)
{
    QJsonArray all;
    for (int card = 1; card <= session.numCards; ++card)
        all.append(part(card));
    return all;
}

QJsonArray places()
{
    return ofCards([](int card) { return QJsonArray{session.box[card].left, session.box[card].top}; });
}

QJsonArray stack()
{
    QJsonArray cards;
    for (const int card : session.cardStack.fromBelow()) {
        if (card >= 1 && card <= session.numCards)
            cards.append(card);
    }
    return cards;
}

QJsonArray conditions()
{
    return ofCards([](int card) {
        QJsonArray held;
        for (int row = 0; row < 3; ++row)
            held.append(int(testCondition(row, card)));
        return held;
    });
}

QJsonArray regionCounts()
{
    int counts[4] = {};
    for (int card = 1; card <= session.numCards; ++card)
        ++counts[3 - 2 * int(testCondition(0, card)) - int(testCondition(1, card))];
    return {counts[0], counts[1], counts[2], counts[3]};
}

/// The number of cards in the column above the label.
int cardsInColumn(const BoardLabel& label)
{
    int count = 0;
    for (int card = 1; card <= session.numCards; ++card) {
        const CardImage& image = session.box[card];
        count += std::abs(image.left + image.width / 2 - label.left - label.width / 2) < 1e-6;
    }
    return count;
}

QJsonArray groups()
{
    QJsonArray shown;
    for (int g = 1; g <= session.groupTable.numGroups; ++g) {
        const BoardLabel& label = session.board.groupTitle[g];
        shown.append(QJsonArray{label.text, cardsInColumn(label)});
    }
    return shown;
}

QJsonObject answerTo(const QJsonObject& given)
{
    QJsonObject answer;
    take(given);
    const QString joined = session.andOr[0] + session.andOr[1];
    answer["conditions"] = conditions();
    answer["found"] = ofCards([&](int card) { return int(isFound(joined, card)); });
    runFind();
    answer["foundPlaces"] = places();

    take(given);
    const QJsonArray counts = regionCounts();
    runVenn([] {});
    answer["venn"] = QJsonObject{{"counts", counts}, {"places", places()}};

    take(given);
    session.chosenField = given["sort"]["field"].toInt();
    session.sortDirection = given["sort"]["direction"].toString();
    sortByChosenField();
    answer["sortOrder"] = stack(); // each card comes to the front when it is placed
    answer["sortPlaces"] = places();

    take(given);
    buildGroups(given["group"].toInt());
    moveCardsToGroups(given["group"].toInt());
    answer["groups"] = groups();
    answer["groupPlaces"] = places();
    answer["groupStack"] = stack();

    take(given);
    arrangeCards(given["arrange"].toString());
    answer["arrangePlaces"] = places();
    return answer;
}

void connectSeams(const double& speed, const double& labelHeight)
{
    desktop.sound.beep = [] {};
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString&) {
    }; // sorting an empty database reports an error
    desktop.yield = [] {};
    mainView = blankMainView();
    mainView.showSpeedWindow = [&speed] { session.run.animationSpeed = speed; };
    mainView.unloadSpeedWindow = stopRun;
    mainView.measureLabel = [&labelHeight](const QString&, double& width, double& height) {
        width = 100;
        height = labelHeight;
    };
}

} // namespace

int main()
{
    double speed = 0;
    double labelHeight = 0;
    connectSeams(speed, labelHeight);
    std::string line;
    while (std::getline(std::cin, line)) {
        const QJsonObject given = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        speed = given["speed"].toDouble();
        labelHeight = given["labelHeight"].toDouble();
        std::cout << QJsonDocument(answerTo(given)).toJson(QJsonDocument::Compact).toStdString() << '\n';
    }
}
