#include "cardTable.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int mostFields = 12, mostAnswers = 12, mostCards = 99;
const QStringList furtherColumns{"Picture", "Sound", "Note"};

QStringList cellsOf(const QString& text, QChar separator)
{
    QStringList cells = text.split(separator);
    for (QString& cell : cells)
        cell = cell.trimmed();
    return cells;
}

void demand(bool holds, const QString& complaint)
{
    if (!holds)
        throw std::runtime_error(complaint.toStdString());
}

SampleField readField(const QString& text)
{
    const QStringList parts = cellsOf(text, ';');
    demand(parts.size() == 2 || parts.size() == 3, "a field is: name; text or number; answers");
    demand(parts[1] == "text" || parts[1] == "number", "a field's type is text or number");
    SampleField field{parts[0], parts[1] == "number", {}};
    if (parts.size() == 3)
        field.answers = cellsOf(parts[2], ',');
    demand(field.answers.size() <= mostAnswers, "a list has twelve answers at most");
    return field;
}

/// Checks that the field has a list, since each answer needs a ground.
QString readGround(const QString& name, const QList<SampleField>& fields)
{
    const auto isMeant = [&](const SampleField& field) {
        return field.name == name && !field.answers.isEmpty();
    };
    demand(std::any_of(fields.begin(), fields.end(), isMeant), "the ground is no field with a list: " + name);
    return name;
}

void checkHeadings(const QStringList& headings, const QList<SampleField>& fields)
{
    demand(!fields.isEmpty() && fields.size() <= mostFields, "a database has one to twelve fields");
    demand(headings.size() >= fields.size(), "the row of headings lacks a field");
    for (int i = 0; i < headings.size(); ++i) {
        const bool known =
            i < fields.size() ? headings[i] == fields[i].name : furtherColumns.contains(headings[i]);
        demand(known, "unexpected heading " + headings[i]);
    }
}

SampleCard readCard(const QStringList& cells, const QStringList& headings, const QList<SampleField>& fields)
{
    demand(cells.size() == headings.size(), "this row has more or fewer cells than the headings");
    SampleCard card;
    for (int i = 0; i < cells.size(); ++i) {
        demand(!cells[i].contains('"'), "a cell can't hold a double quote");
        card.cells[headings[i]] = cells[i];
    }
    for (const SampleField& field : fields) {
        const QString value = card[field.name];
        bool isNumber = false;
        static_cast<void>(value.toDouble(&isNumber));
        demand(!field.isNumber || isNumber, field.name + " is no number: " + value);
        demand(field.answers.isEmpty() || field.answers.contains(value),
               value + " is not in the list of " + field.name);
    }
    return card;
}

} // namespace

CardTable readCardTable(const QString& path)
{
    QFile file(path);
    demand(file.open(QIODevice::ReadOnly), "can't read " + path);
    CardTable table;
    QStringList headings;
    QSet<QString> names;
    int lineNumber = 0;
    try {
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
            ++lineNumber;
            const QString text = line.trimmed();
            if (text.isEmpty() || text.startsWith('#'))
                continue;
            if (text.startsWith("title:")) {
                table.title = text.section(':', 1).trimmed();
            } else if (text.startsWith("field:")) {
                table.fields.append(readField(text.section(':', 1)));
            } else if (text.startsWith("ground:")) {
                table.ground = readGround(text.section(':', 1).trimmed(), table.fields);
            } else if (text.startsWith("board:")) {
                table.board = text.section(':', 1).trimmed();
            } else if (headings.isEmpty()) {
                headings = cellsOf(text, ';');
                checkHeadings(headings, table.fields);
            } else {
                table.cards.append(readCard(cellsOf(text, ';'), headings, table.fields));
                const QString name = table.cards.last()[headings[0]];
                demand(!name.isEmpty() && !names.contains(name),
                       "a name is missing or stands twice: " + name);
                names.insert(name);
            }
        }
        demand(!table.title.isEmpty(), "the table has no title");
        demand(table.cards.size() <= mostCards, "a database has 99 cards at most");
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(QString("%1:%2: %3")
                                     .arg(QFileInfo(path).fileName())
                                     .arg(lineNumber)
                                     .arg(error.what())
                                     .toStdString());
    }
    return table;
}
