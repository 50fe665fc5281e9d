// The second page of the card editor: the card's sound.
#pragma once

#include "platform/desktop.h"

#include <QFrame>

class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTimer;

class SoundCover : public QFrame {
    Q_OBJECT
public:
    SoundCover();

    /// The initial state of the buttons, for a card with or without a sound.
    void showOpening(bool cardHasSound);
    /// Does the same as BtnStopRec.
    void stopRecording();
    /// Stops player and recorder; call it when the editor closes.
    void leave();

    QGroupBox* const FMSnd;
    QRadioButton* const Option1;
    QRadioButton* const Option2;
    QFrame* const F1;
    QPushButton* const BtnImport;
    QPushButton* const BtnDelSnd;
    QPushButton* const soundBut;
    QFrame* const F2;
    QPushButton* const BtnRec;
    QPushButton* const BtnPauseRec;
    QPushButton* const BtnStopRec;
    QPushButton* const BtnPlay;
    QPushButton* const BtnPause;
    QPushButton* const BtnStop;
    QLabel* const light;
    QLabel* const status; // what player and recorder do, or the result of the last recording
    QProgressBar* const level;
    QLabel* const time;

Q_SIGNALS:
    /// The red light has gone on or off.
    void recordingShown(bool on);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void connectButtons();
    QLayout* panel();
    void chooseWay();
    void chooseFile();
    void askAndRemove();
    void startRecording();
    void togglePause(SoundActivity running, SoundActivity paused);
    void showProgress();
    void showLight(bool on);
    QString recordingResult() const;

    QTimer* const watch; // runs while player or recorder work
    QString lastStatus;  // shown while neither works
    bool begun = false;  // a recording that hasn't ended yet
    bool lit = false;
    bool seen = false; // the pupil has seen the page
};
