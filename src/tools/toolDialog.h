// What the dialogs of the card tools have in common: caption, picture, answers and the video.
#pragma once

#include <QString>

class AnswerButtons;
class QDialog;
class QLabel;
class QLayout;
class QWidget;

struct ToolCaption {
    QString caption; // "Sort ?"
    QString picture;
    QString tutorial; // name of the video
};

/// Lays the dialog out around its own middle. OK and Cancel put their word into session.dialogResult and hide
/// the dialog, which stays loaded.
void layOutTool(QDialog& dialog, AnswerButtons& answers, const ToolCaption& caption, QLayout* middle);

/// "Sort by:" above the control that its letter leads to.
QLayout* labelledChoice(const QString& text, QWidget* control);
