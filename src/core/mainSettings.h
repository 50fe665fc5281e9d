// What the main window reads from the settings file when it loads.
#pragma once

/// Reads the printer's choice and every option of the main window into the session, with the effects that
/// they have at once. A choice of printer that can't be made is told and passed over.
void loadMainSettings();

/// Reads again whether the cards left are scattered after a deletion.
void rereadDeleteOption();
