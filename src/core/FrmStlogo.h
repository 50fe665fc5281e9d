// The splash: what a pupil sees while the program starts.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTimer>

class FrmStlogo : public QDialog {
    Q_OBJECT
public:
    FrmStlogo();
    void load();

    /// The splash can't be sent away: it goes by itself.
    void reject() override {}

    QLabel* const lblVer;
    QTimer* const Timer1; // 2500 ms, once

private:
    void tick();
};
