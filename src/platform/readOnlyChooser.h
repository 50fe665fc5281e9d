// The desktop's choosers of files and folders, as children get them: they choose and change nothing.
#pragma once

#include <QString>

class QFileDialog;

/// Shows the dialog, in which nothing can be deleted, renamed, moved or made, and waits until it is closed.
/// What was chosen, empty when it was cancelled.
QString chosenIn(QFileDialog& dialog);
