// The second page of the card editor: the card's sound.
#pragma once

#include <QFrame>

class QGroupBox;
class QPushButton;
class QRadioButton;

class SoundCover : public QFrame {
    Q_OBJECT
public:
    SoundCover();

    /// The initial state of the buttons, for a card with or without a sound.
    void showOpening(bool cardHasSound);

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
};
