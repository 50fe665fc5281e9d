// Where every command of the menus arrives and is sent on.
#pragma once

#include <QString>

/// When a command has to be refused, and what the pupil is told then.
struct Refusal {
    bool (*applies)();
    QString title;
    QString text;
};

inline constexpr int asItWas = -1;

/// A word that the menus know.
struct MenuLine {
    QString word;
    QString icon;                     // name of its picture
    int graphOnScreen;                // what session.graphOnScreen becomes, or asItWas
    void (*command)();                // null while the program hasn't got it yet
    const Refusal* refusal = nullptr; // asked before the command
};

/// The word's line, null for a word that nothing knows.
const MenuLine* menuLine(const QString& word);

/// The name of the picture beside the word, empty when it has none.
QString pictureOf(const QString& word);

/// A click on a line of the open menu.
void dispatchLine(int line);

/// Acts on a word. An unknown word does nothing.
void runCommand(const QString& word);
