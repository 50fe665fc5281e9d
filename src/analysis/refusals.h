// When graphs, statistics and reports can't be made, and what is said then.
#pragma once

inline constexpr int mostCardsInGraph = 40; // rows of the group table: each card can make one

/// Says that cards or values are missing.
void refuseReport();
/// Says that cards or values are missing. Also shown when there are more than 40 cards.
void refuseStatistics();
/// Says that cards or values are missing.
void refuseGraph();
/// Says that there are more than 40 cards.
void refuseGraphOfSoMany();
