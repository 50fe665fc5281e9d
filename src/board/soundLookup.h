// Whether the card under the mouse has a sound, without making the mouse wait for the folder.
#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// Asks the folder on another thread, once for each pass of the mouse over a card, and remembers the answer
/// for as long as the mouse stays on it. Only the latest question waits while one is being answered.
class SoundLookup : public QObject {
public:
    using QObject::QObject;

    /// True when the card is known to have a sound. False too while the answer isn't there yet; `answered` is
    /// called when it is.
    bool hasSound(int card);
    /// The mouse has left the card: the next question goes to the folder again.
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
};
