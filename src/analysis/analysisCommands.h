// The commands of the Data menu that make figures and texts of the cards.
#pragma once

/// Asks what to plot and draws the graph. Refuses without a card and with more than 40 of them.
void makeGraph();

/// Shows the statistics screen. Refuses without a card.
void showStatistics();

/// Shows the report window. Refuses without a card.
void makeReport();

/// Brings the notes of the open database into view, as they are in its file now.
void showClues();
