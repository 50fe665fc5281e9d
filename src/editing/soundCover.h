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
    /// Ends a recording as its button does.
    void stopRecording();
    /// The editor is closing: ends all that sounds.
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
    QLabel* const news; // what happens, in a word or two
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
    void letFileBeAdded();
    void letSoundBeRemoved();
    void startRecording();
    void togglePause(SoundActivity running, SoundActivity paused);
    void follow();
    void showLight(bool on);
    QString resultOfRecording() const;

    QTimer* const watch; // runs while anything sounds
    QString lastNews;    // shown while nothing sounds
    bool begun = false;  // a recording that hasn't ended yet
    bool lit = false;
    bool met = false; // the pupil has seen the page
};
