// Boxes whose whole text is selected when they get the focus, so that typing replaces it.
#pragma once

class QLineEdit;

/// Applies to focus by key, by code and by mouse; a second click places the caret as usual.
void selectOnFocus(QLineEdit* box);
