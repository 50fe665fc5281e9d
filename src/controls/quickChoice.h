// Options that can be chosen and answered in one act.
#pragma once

class QPushButton;
class QRadioButton;
class QWidget;

/// A double click on the option, or Return while it has the focus, chooses it and presses OK. The same for a
/// double click on its explanation, if it has one; a single click on that chooses the option.
void chooseQuickly(QRadioButton* option, QPushButton* ok, QWidget* explanation = nullptr);
