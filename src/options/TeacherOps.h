// The teacher's options: pages of switches, hidden from the pupils behind a key chord.
#pragma once

#include "controls/answerButtons.h"
#include "core/session.h"
#include "options/teacherOptions.h"
#include "platform/errands.h"

#include <QHash>

class AboutPage;
class DropDown;
class HiddenParts;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenuBar;
class QRadioButton;
class QTabWidget;
class QVBoxLayout;
class SwatchRow;
class pucTextTip;

class TeacherOps : public AnswerDialog {
    Q_OBJECT
public:
    TeacherOps();
    /// Reads every option from the settings.
    void load();

    QTabWidget* const Tab1;
    QRadioButton* const Opt1;
    QRadioButton* const Opt2;
    QWidget* const FrmMyDoc;
    QLineEdit* const WorkingDirTxt;
    QPushButton* const BtnSetPath;
    QPushButton* const btnColSel;
    SwatchRow* const colsBord;
    SwatchRow* const cols;
    DropDown* const KeyCombo;
    pucTextTip* const TipBox1;
    DropDown* const Printercombo;
    AboutPage* const about;
    HiddenParts* const hidden;
    QLabel* const lblKept; // how long changes last, where they can't be written to the installed settings

private:
    QMenuBar* menus();
    void orderKeys();
    QLayout* lowestRow();
    QGroupBox* frame(Page page, const QString& caption);
    void addTick(const Tick& tick);
    void footnote(Page page, const QString& text);
    void fillFolders();
    void fillColours();
    void fillMisc();
    void fillPrinter();

    void connectFolders();
    void connectColours();
    void connectOthers();
    void turn(const Tick& tick, bool ticked);
    void showFolder();
    void showBackground();
    void chooseFolder();
    void chooseBackground();
    void showPrinters(const PrinterList& printers);
    void askForPrinters();
    void takePrinter(int index);
    void keep();

    TeacherValues values;
    QHash<QString, QGroupBox*> frames;    // by page and caption
    QHash<QString, QCheckBox*> tickBoxes; // by name
    QLabel* lblPrinters;                  // why there is nothing to choose
    QStringList printerNames;
    Errands errands; // asks for the printers
};

/// Closes an open menu and shows the screen. session.dialogResult is "Cancel" after Cancel; OK leaves it.
void openTeacherOptions();
