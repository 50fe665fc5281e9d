// The window that is shown while the tutorials are unpacked.
#pragma once

#include "platform/errands.h"

#include <QDialog>
#include <QLabel>
#include <QTimer>

class frmVids : public QDialog {
    Q_OBJECT
public:
    frmVids();
    /// Shows the hourglass and starts the timer.
    void load();
    /// Escape and the window's close button give the installation up; it removes what it has made.
    void reject() override;

    QLabel* const Label1;
    QTimer* const Timer1; // its one tick begins the installation

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void install();

    Errands errands;
};

/// Unpacks the tutorials that came with the program and says how that went.
void installTutorials();
