// The folder refresh: reads the whole database again every two seconds, so that several workstations that
// look at one folder see each other's cards.
#pragma once

#include <QString>

class QTimer;

/// "On", in whatever case, reads the folder at once and from then on at every tick, and ticks refreshCheck.
/// Any other word ends that. Reading that fails as a whole is told once and ends it too.
void setRefresh(const QString& word);

/// Ticks every 2000 ms while the refresh is on. A tick under a modal window, or inside another one, does
/// nothing.
QTimer& refreshTimer();
