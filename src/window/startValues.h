// The session's content before the first database is opened.
#pragma once

/// The initial states of the main window's controls: without a database only the File menu is enabled.
void setControlsAtStart();

/// Resets everything that belongs to a database; called after the settings were read.
void setStartValues();
