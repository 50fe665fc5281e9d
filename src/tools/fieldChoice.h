// The list of the database's fields from which a tool's dialog takes its field.
#pragma once

class QComboBox;

/// A drop-down that puts the number of the field picked into session.chosenField.
QComboBox* fieldChoice(const char* name);

/// Fills the list with the fields of the open database and picks the first one.
void fillFieldChoice(QComboBox& choice);
