// The shape of a database: how many fields its cards have, what they are called, whether cards may be
// deleted.
//
// Every change counts at once in the session; cancelling the dialog takes none of them back.
#pragma once

#include <QString>

/// One field more, at most twelve. It shows what the field table holds for it.
void addField();

/// One field less, at least one. Name, type and list of the field that goes stay in the field table.
void removeField();

/// The type of field f as a word: "Abc", and "123" for anything else.
QString fieldTypeWord(int f);

/// True when the teacher lets a database be marked read-only.
bool readOnlyMayChange();

/// OK in the dialog: the read-only tick becomes the database's status, in the session and in the settings.
void acceptDesign();

/// True when the settings want the pupil reminded of adding cards.
bool reminderWanted();
void setReminderWanted(bool wanted);
