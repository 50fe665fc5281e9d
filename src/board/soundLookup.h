// Finds out whether the card under the mouse has a sound, without blocking on a slow folder.
#pragma once

#include "platform/errands.h"

#include <QString>

#include <functional>

/// Looks into the folder on another thread, once each time the mouse enters a card, and keeps the answer
/// while the mouse stays on it. While a look-up runs only the latest request is queued.
class SoundLookup {
public:
    /// True when the card is known to have a sound. False also while the answer is pending; `answered` is
    /// called when it has come.
    bool hasSound(int card);
    /// The mouse has left the card: forgets the answer.
    void endPass() { asked = {}; }

    std::function<void()> answered = [] {};

private:
    struct Question {
        QString folder;
        QString cardId;
        bool operator==(const Question&) const = default;
    };

    void askFolder();
    void take(const Question& question, bool sound);

    Question asked;
    bool known = false;
    bool answer = false;
    bool running = false;
    Errands errands;
};
