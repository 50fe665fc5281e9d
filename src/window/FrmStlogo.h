// The splash, shown while the program starts.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTimer>

class FrmStlogo : public QDialog {
    Q_OBJECT
public:
    FrmStlogo();
    void load();

    /// Does nothing: the splash can't be closed by the user.
    void reject() override {}

    QLabel* const lblVer;
    QTimer* const Timer1; // 2500 ms, once

private:
    void tick();
};
