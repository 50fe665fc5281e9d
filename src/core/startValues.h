// What the session holds before the first database is opened.
#pragma once

/// The main window's controls as they stand before anything is read: without a database only the File menu
/// works.
void setControlsAtStart();

/// The start values, set after the settings were read: what a database brings with it begins anew.
void setStartValues();
