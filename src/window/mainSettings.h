// Reading the main window's settings.
#pragma once

/// Reads the printer and every option of the main window into the session and applies them. A printer that
/// can't be selected is reported; reading goes on.
void loadMainSettings();

/// Reads the option again that scatters the remaining cards after a deletion.
void rereadDeleteOption();
