// Boxes whose whole text is selected when they get the focus, so that typing replaces it.
#pragma once

class QLineEdit;

/// By keys, by the program and by the mouse's click alike; a second click puts the caret as usual.
void selectOnFocus(QLineEdit* box);
