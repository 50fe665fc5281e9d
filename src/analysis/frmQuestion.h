// "Clues": the notes that a teacher has left with a database, in a window that stays in view.
#pragma once

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

class frmQuestion : public QDialog {
    Q_OBJECT
public:
    frmQuestion();
    void load() {}

    /// Brings the window into view with these clues.
    void present(const QString& clues);
    void reject() override;

    QPlainTextEdit* const RTF1;
    QPushButton* const cmdOK;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
};
