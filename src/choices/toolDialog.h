// The common parts of the card tools' dialogs: caption, picture, answers and the video.
#pragma once

#include <QString>

class AnswerDialog;
class QLabel;
class QLayout;
class QWidget;

struct ToolCaption {
    QString caption; // "Sort ?"
    QString picture;
};

/// Lays the dialog out around its own controls in `middle`. OK and Cancel give their answer; the dialog stays
/// loaded.
void layOutTool(AnswerDialog& dialog, const ToolCaption& caption, QLayout* middle);

/// The control with a label above it, such as "Sort by:", whose mnemonic focuses the control.
QLayout* labelledChoice(const QString& text, QWidget* control);
