// What routines ask of the windows above them. Form1 and start-up fill these in; tests record the calls.
#pragma once

#include <QString>

#include <functional>

struct Screen {
    /// Everything on the board may have changed.
    std::function<void()> redrawBoard;
    /// One card moved or changed its face: paints where it was and where it is.
    std::function<void(int card)> redrawCard;
    /// The window's title is session.title now.
    std::function<void()> showTitle;
    /// The controls of the main window take the states in the session (modes, headings, check boxes, panels).
    std::function<void()> showControls;
    /// Enters table mode: lays the table out for the window's size and fills it.
    std::function<void()> showTable;
    /// The table's cells, its scroll bar or one of its faces are those of the session now.
    std::function<void()> redrawTable;
    /// Tells the width and height of a caption in the board's font, in pixels.
    std::function<void(const QString& text, double& width, double& height)> measureLabel;

    /// The floating window that sets the pace of a run. Unloading it stops the run.
    std::function<void()> showSpeedWindow;
    std::function<void()> unloadSpeedWindow;

    /// A hint beside the mouse pointer, in the balloon of the bin and the buttons; none any more.
    std::function<void(const QString& text)> showHint;
    std::function<void()> hideHints;

    // Hooks: what a lower floor asks of a higher one.
    std::function<void(int card)> openCard;
    std::function<void(int card)> cardDropped;
    std::function<void()> openPictureEditor; // for Picture1 of the card editor
    std::function<void()> openTeacherOptions;
    std::function<void()> newDatabase;
    std::function<void()> openDatabase;
    std::function<void()> installTutorials;
    std::function<void()> showClues;
    std::function<void(const QString& word)> command;
    std::function<void(const QString& word)> setRefresh;
};

extern Screen screen;

/// A screen on which every call does nothing: the state before the main window is made, and named places
/// whose window isn't there.
Screen blankScreen();
