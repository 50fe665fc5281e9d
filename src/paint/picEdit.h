// The picture editor: a small paint program for the picture of a card.
#pragma once

#include "controls/answerButtons.h"
#include "paint/painting.h"
#include "paint/tools.h"

class CanvasWidget;
class PaintButton;
class QLabel;
class QLineEdit;

class picEdit : public AnswerDialog {
    Q_OBJECT
public:
    picEdit();
    /// Reads the settings of the outside clip-art browser.
    void load();

    /// Everything in the window follows the painting.
    void showPainting();

    Painting painting;
    CanvasWidget* const Picture1;
    QLineEdit* const Text1;                    // on the canvas, while a text is typed
    Table<PaintButton*, numTools - 1> ToolPic; // the hidden ones too
    Table<PaintButton*, numColours - 1> colourSwatch;
    QPushButton* const UndoBut;
    QPushButton* const BtnImport;
    QPushButton* const BtnClipart; // hidden
    QLabel* const hint;            // what to do next
    QString lblBPath;              // command line of the clip-art browser

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTools();
    void addColours();
    void addAnswers();
    void addShadows();
    void orderTabs();
    void connectControls();
    void frame(const QRect& place);
    void clickTool(int index);
    void showText();
    void stamp();
    void importImage();
    void startClipart();

    QWidget* shadows[4]; // ShadowLeft, ShadowTop, ShadowRight, ShadowBot
};

/// Lets the card editor's picture be painted on; it changes only when the answer is OK.
void openPictureEditor();
