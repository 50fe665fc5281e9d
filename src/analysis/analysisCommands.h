// The commands of the Data menu that make figures of the cards.
#pragma once

/// Asks what to plot and draws the graph. Refuses without a card and with more than 40 of them.
void makeGraph();

/// Shows the statistics screen. Refuses without a card.
void showStatistics();
