// The commands of the menus, in one table.
#pragma once

#include <QString>

inline constexpr int asItWas = -1;

/// A command of the menus.
struct MenuLine {
    QString word;
    QString icon;      // name of its icon
    int graphOnScreen; // what session.graph.graphOnScreen becomes, or asItWas
    void (*command)();
};

/// The entry for the word, null for an unknown one.
const MenuLine* menuLine(const QString& word);

/// The name of the word's icon, empty when it has none.
QString pictureOf(const QString& word);

/// Whether a click on that line of the open menu runs its command.
bool lineIsEnabled(int line);

/// Handles a click on a line of the open menu; does nothing while no menu is open, or under a dialog.
void dispatchLine(int line);

/// Runs the command of that word; an unknown word does nothing.
void runCommand(const QString& word);
