#include "core/mainView.h"

MainView blankMainView()
{
    MainView blank;
    blank.redrawBoard = [] {};
    blank.redrawCard = [](int) {};
    blank.showTitle = [] {};
    blank.showControls = [] {};
    blank.showTable = [] {};
    blank.redrawTable = [] {};
    blank.chartPicture = [] { return QImage(); };
    blank.chartDrawing = [] { return ChartDrawing(); };
    blank.captionFont = [] { return QFont(); };
    blank.measureLabel = [](const QString&, double&, double&) {};
    blank.showSpeedWindow = [] {};
    blank.unloadSpeedWindow = [] {};
    blank.showHint = [](const QString&) {};
    blank.hideHints = [] {};
    blank.openCard = [](int) {};
    blank.cardDropped = [](int) {};
    blank.openPictureEditor = [] {};
    blank.openTeacherOptions = [] {};
    blank.startTimer = [](const char*) {};
    blank.allowInReport = [](const char*, bool) {};
    blank.newDatabase = [] {};
    blank.openDatabase = [] {};
    blank.watchTutorial = [](const QString&) {};
    blank.installTutorials = [] {};
    blank.showClues = [] {};
    blank.closeClues = [] {};
    blank.setRefresh = [](const QString&) {};
    return blank;
}

MainView mainView = blankMainView();
