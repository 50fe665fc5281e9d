// What one field of the cards is: its name, its type, and the ready answers that it offers.
#pragma once

#include "core/session.h"

struct FieldDefinition {
    QString name;
    QString type; // "Abc" or "123"
    bool useList = false;
    FieldAnswers answers; // 1..12; empty without a list
};

/// Field f as the session has it, in the form in which the dialog shows it.
FieldDefinition fieldDefinition(int f);

/// Gives field f another definition; nothing is validated. Without a list the session's old answers stay
/// where they are. A pasted line end becomes a blank: the description has one item to a line.
void defineField(int f, const FieldDefinition& definition);

/// Whether an answer to a field of that type may be typed with this key. For "123" these are the digits and
/// the slash only: neither point nor minus sign, and no key that stands for a control character.
bool answerTakesKey(const QString& type, QChar key);
