// What routines ask of the windows, and of folders that they must not include. connectHooks() in
// window/assembly.h sets these before the first window is made; tests record the calls.
#pragma once

#include <QFont>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

struct ChartDrawing {
    QSizeF size;
    std::function<void(QPainter& painter)> paint;
};

struct MainView {
    /// Everything on the board may have changed.
    std::function<void()> redrawBoard;
    /// One card has moved or changed its face: repaints its old and its new place.
    std::function<void(int card)> redrawCard;
    /// session.window.title has changed.
    std::function<void()> showTitle;
    /// The states of the main window's controls in the session have changed (modes, headings, check boxes,
    /// panels).
    std::function<void()> showControls;
    /// Enters table mode: lays the table out for the window's size and fills it.
    std::function<void()> showTable;
    /// The table's cells, scroll bar or faces in the session have changed.
    std::function<void()> redrawTable;
    /// The chart at twice the screen's resolution; null without a main window.
    std::function<QImage()> chartPicture;
    /// The chart as it is on view, with its size in pixels; the size is empty without a main window.
    std::function<ChartDrawing()> chartDrawing;
    /// The font of the board's captions.
    std::function<QFont()> captionFont;
    /// Measures a caption in the board's font, in pixels.
    std::function<void(const QString& text, double& width, double& height)> measureLabel;

    /// The floating window that sets the pace of a run. Unloading it stops the run.
    std::function<void()> showSpeedWindow;
    std::function<void()> unloadSpeedWindow;

    /// Shows a hint beside the mouse pointer; removes it.
    std::function<void(const QString& text)> showHint;
    std::function<void()> hideHints;

    // Hooks: calls from a lower folder to a higher one.
    std::function<void(int card)> openCard;
    std::function<void(int card)> cardDropped;
    std::function<void()> openPictureEditor; // for Picture1 of the card editor
    std::function<void()> openTeacherOptions;
    /// Starts the main window's one-shot timer of that name (window/onceTimers.h).
    std::function<void(const char* timer)> startTimer;
    /// Enables a control of the report window, or lets its text be changed, if that window is loaded.
    std::function<void(const char* control, bool allowed)> allowInReport;
    std::function<void()> newDatabase;
    std::function<void()> openDatabase;
    /// Starts the tutorial of that name, or offers to install the tutorials.
    std::function<void(const QString& tutorial)> watchTutorial;
    std::function<void()> installTutorials;
    std::function<void()> showClues;
    /// The open database is about to be another one, or none: its clues are out of date.
    std::function<void()> closeClues;
    std::function<void(const QString& word)> setRefresh;
};

extern MainView mainView;

/// Every function does nothing: the state before connectHooks().
MainView blankMainView();
