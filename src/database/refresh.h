// The folder refresh: reads the whole database every two seconds, so that workstations that share a folder
// see each other's cards.
#pragma once

#include <QString>

class QTimer;

/// "On", in any case, reads the folder at once and at every tick, and ticks refreshCheck. Any other word ends
/// the refresh, and so does a failed reading, after an error box.
void setRefresh(const QString& word);

/// Ticks every 2000 ms while the refresh is on. A tick under a modal window, or inside another one, does
/// nothing.
QTimer& refreshTimer();
