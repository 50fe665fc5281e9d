// Dialogs for choosing files and folders in which nothing can be deleted, renamed, moved or made.
#pragma once

#include <QString>

class QFileDialog;

/// Makes the dialog such a chooser, shows it and waits until it is closed. Returns the chosen path, empty
/// when it was cancelled.
QString chosenIn(QFileDialog& dialog);
