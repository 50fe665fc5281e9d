// Reading the main window's settings.
#pragma once

/// Reads the printer and every option of the main window into the session and applies them. A printer that
/// can't be selected is reported; reading goes on.
void loadMainSettings();

/// Each reads one option again and applies it: whether the remaining cards are scattered after a deletion,
/// whether the refresh and the clues are offered, whether the card editor is locked. The last one reads a key
/// of its own, option::lockDatabaseNow, which the program never writes.
void rereadDeleteOption();
void rereadRefreshOption();
void rereadClueOption();
void rereadLockOption();
