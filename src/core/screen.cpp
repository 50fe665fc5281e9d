#include "core/screen.h"

Screen blankScreen()
{
    Screen blank;
    blank.redrawBoard = [] {};
    blank.redrawCard = [](int) {};
    blank.showTitle = [] {};
    blank.showControls = [] {};
    blank.showTable = [] {};
    blank.redrawTable = [] {};
    blank.measureLabel = [](const QString&, double&, double&) {};
    blank.showSpeedWindow = [] {};
    blank.unloadSpeedWindow = [] {};
    blank.showHint = [](const QString&) {};
    blank.hideHints = [] {};
    blank.openCard = [](int) {};
    blank.cardDropped = [](int) {};
    blank.openPictureEditor = [] {};
    blank.openTeacherOptions = [] {};
    blank.newDatabase = [] {};
    blank.openDatabase = [] {};
    blank.installTutorials = [] {};
    blank.showClues = [] {};
    blank.command = [](const QString&) {};
    blank.setRefresh = [](const QString&) {};
    return blank;
}

Screen screen = blankScreen();
