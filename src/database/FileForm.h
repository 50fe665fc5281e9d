// The program's own file dialog, made for children: eight large icons in a row with a slider below.
#pragma once

#include "controls/answerButtons.h"
#include "database/folderWalk.h"

#include <array>

class QLabel;
class QLineEdit;
class QSlider;
class QToolButton;

/// What a pupil is to choose.
struct FileChoice {
    QString caption;
    QString pattern;        // of the files that are shown
    bool databases = false; // a folder that holds a database is one icon and can't be entered
};

class FileForm : public AnswerDialog {
    Q_OBJECT

public:
    FileForm();
    /// Reads the working folder, and whether it may be left, from the settings.
    void load();

    /// Prepares the form for choosing, starting in `startFolder`. Then call ask(), which returns "OK", "DBOK"
    /// or "Cancel". Where the start folder can't be read the error is shown, and the
    /// dialog stands at the user's documents.
    void choose(const FileChoice& choice, const QString& startFolder);

    /// Enables the ways out of the working folder as session.options.upLevelStatus says.
    void followUpLevel();
    /// Reads the working folder again and goes there.
    void takeWorkingFolder();

    /// The folder that the dialog shows.
    QString folder() const { return walk.folder(); }

    QString chosenFile; // the chosen name; after "DBOK" a full path
    QString TLPath;     // the working folder from the settings, "MyDocs" resolved; empty when there is none
    QString F1;         // "1" when a folder was chosen in the desktop's folder dialog, else "0"

    QLabel* const FileLabel;
    QLabel* const CurDirIcon;
    QLineEdit* const CurDirBox;
    QPushButton* const upFoldBut;
    QPushButton* const StdDiBoxBut;
    std::array<QToolButton*, FolderWalk::slotCount> iconBox{};
    std::array<QLabel*, FolderWalk::slotCount> fileNameBox{};
    QSlider* const Fslide;
    QLineEdit* const SelectedFnameBox;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* placeRow();
    QWidget* iconRow();
    QWidget* answerRow();
    void showPlace();
    void showIcons();
    void showSlot(int slot);
    void showWaiting();
    void placeRefused(int error);
    void startElsewhere(int error);

    bool isChosen(int slot) const;
    void select(int slot);
    void openSlot(int slot);
    void moveAlong(int slot, int step);
    bool slotKeyPressed(int slot, int key);
    int slotOf(const QObject* control) const;
    void leave(const QString& result);
    void browse();

    enum class Wish { none, select, open };

    FolderWalk walk;
    QWidget* row = nullptr;
    QLabel* waitLabel = nullptr;
    bool starting = false;
    QString chosenPath;      // of the highlighted item, which OK opens; empty without one
    QStringList otherStarts; // to be tried while the folder to start in can't be read
    QString wishedPath;      // a folder clicked before it was known whether it is a database
    Wish wish = Wish::none;
};
