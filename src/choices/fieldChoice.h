// The drop-down in a tool's dialog that offers the database's fields.
#pragma once

class QComboBox;

/// A drop-down that stores the number of the picked field in session.chosenField.
QComboBox* fieldChoice(const char* name);

/// Fills the list with the fields of the open database; none is picked.
void offerFields(QComboBox& choice);
/// The same, and picks the first one.
void fillFieldChoice(QComboBox& choice);
