// The text table of a sample database: its title, its fields with their answers, and a row for each card.
//
// A table can be edited by a teacher in any plain-text editor:
//
//     # a note
//     title: Musical Instruments
//     field: Name; text
//     field: Family; text; Brass, Percussion, Strings, Woodwind
//     field: Size cm; number
//     ground: Family
//     board: stage.svg
//     Name   ; Family  ; Size cm ; Picture    ; Sound
//     Guitar ; Strings ; 100     ; guitar.svg ; guitar
//
// The ground is the field that tells what is drawn behind the figure, the board a drawing to lie below the
// cards; both can be left out. The row of headings begins with the fields in their order. The columns
// Picture, Sound and Note may follow it.

#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

struct SampleField {
    QString name;
    bool isNumber = false;
    QStringList answers; ///< the list that pupils choose from; empty when they type the value
};

struct SampleCard {
    QMap<QString, QString> cells; ///< by heading
    QString operator[](const QString& heading) const { return cells.value(heading); }
};

struct CardTable {
    QString title;
    QList<SampleField> fields;
    QString ground; ///< name of the field whose answers choose the grounds of the pictures; or empty
    QString board;  ///< file name of the drawing below the cards; empty when there is none
    QList<SampleCard> cards;
};

/// Reads a table. Throws std::runtime_error with the file and the line of the first thing that is wrong: a
/// value that is not in its list, a number that is none, a name that stands twice, a missing cell.
CardTable readCardTable(const QString& path);
