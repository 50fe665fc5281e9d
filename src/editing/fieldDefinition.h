// The definition of a field: its name, its type and its list of ready answers.
#pragma once

#include "core/session.h"

struct FieldDefinition {
    QString name;
    QString type; // "Abc" or "123"
    bool useList = false;
    FieldAnswers answers; // 1..12; empty without a list
};

/// The definition of field f in the session, as the dialog shows it.
FieldDefinition fieldDefinition(int f);

/// Changes the definition of field f without validating it. Without a list the old answers stay in the
/// session. Line ends become blanks, since the description has one item to a line.
void defineField(int f, const FieldDefinition& definition);

/// Whether a field of that type accepts this key in an answer. "123" accepts digits and the slash only: no
/// point, no minus sign, no control character.
bool answerTakesKey(const QString& type, QChar key);
