// The small floating window that sets the speed of flying cards and pauses them. Closing it ends the run.
#pragma once

#include <QDialog>

class QPushButton;
class QSlider;

class FrmSpeed : public QDialog {
    Q_OBJECT
public:
    FrmSpeed();
    void load() {}

    /// Shows the speed prepared for a new run.
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

/// Shows the window near the upper right corner of `mainWindow`, which may be null.
void showSpeedWindow(const QWidget* mainWindow);
