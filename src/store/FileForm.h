// The system's own file dialog, made for children: eight large icons in a row and a slider under them.
#pragma once

#include "platform/answerButtons.h"
#include "store/folderWalk.h"

#include <array>

class QLabel;
class QLineEdit;
class QSlider;
class QToolButton;

class FileForm : public AnswerDialog {
    Q_OBJECT

public:
    FileForm();
    /// Reads what the settings say of the working folder and of leaving it.
    void load();

    /// Sets the form up as a chooser that begins in `startFolder` and shows the files that match the pattern.
    /// With the caption "Open Database" a folder that holds a database is one icon and can't be entered.
    ///
    /// Then show it modally; `session.dialogResult` tells the answer. A start folder that can't be read shows
    /// its error and cancels.
    void choose(const QString& caption, const QString& startFolder, const QString& pattern);

    /// The folder that the dialog stands in.
    QString folder() const { return walk.folder(); }

    QString chosenFile; // the name that was chosen; after "DBOK" a whole path
    QString TLPath;     // the working folder of the settings, "MyDocs" resolved; empty when there is none
    QString F1;         // "1" when the system's folder chooser gave a folder, "0" when it didn't

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

    void select(int slot);
    void openSlot(int slot);
    void moveAlong(int slot, int step);
    bool slotKeyPressed(int slot, int key);
    int slotOf(const QObject* control) const;
    void answer(const QString& result);
    void browse();

    enum class Wish { none, select, open };

    FolderWalk walk;
    QWidget* row = nullptr;
    QLabel* waitLabel = nullptr;
    bool starting = false;
    QString wishedPath; // a folder that was clicked before it was known whether it is a database
    Wish wish = Wish::none;
};
