// The small floating window that sets the pace of flying cards, pauses them and, when it is closed, ends the
// run.
#pragma once

#include <QDialog>

class QPushButton;
class QSlider;

class FrmSpeed : public QDialog {
    Q_OBJECT
public:
    FrmSpeed();
    void load() {}

    /// Takes the pace that was prepared for a new run.
    void showPreparedPace();

protected:
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void showPauseOrResume();

    QSlider* const Slider1;
    QPushButton* const BtnPause;
    QPushButton* const BtnResume;
};

/// Lets the tools show and unload the window. It stands near the upper right corner of `mainWindow`.
void installSpeedWindow(QWidget& mainWindow);
