// The design of a database: the number and names of its fields, and whether it is read-only.
//
// Every change takes effect in the session at once; Cancel reverts none of them.
#pragma once

#include <QString>

/// Adds a field, up to twelve, with the definition that the field table holds for it.
void addField();

/// Removes the last field, down to one. Its name, type and list stay in the field table.
void removeField();

/// The type of field f for display: "Abc", or "123" for any other type.
QString fieldTypeWord(int f);

/// Whether the teacher allows databases to be marked read-only.
bool readOnlyMayChange();

/// OK in the dialog: the read-only tick becomes the database's status, in the session and in the settings.
void acceptDesign();

/// Whether the settings ask for the reminder to add cards.
bool reminderWanted();
void setReminderWanted(bool wanted);
