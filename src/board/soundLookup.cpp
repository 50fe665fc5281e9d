#include "board/soundLookup.h"

#include "core/session.h"
#include "store/cardFiles.h"

#include <QFileInfo>

bool SoundLookup::hasSound(int card)
{
    const Question question{session.dbPath, session.cardId[card]};
    if (question != asked) {
        asked = question;
        known = answer = false;
        askFolder();
    }
    return known && answer;
}

void SoundLookup::askFolder()
{
    if (running)
        return;
    running = true;
    errands.send(
        [question = asked](const Errands::Forgotten&) {
            return QFileInfo(cardFilePath(question.folder, question.cardId, soundEnding)).isFile();
        },
        [this, question = asked](bool sound) { take(question, sound); });
}

void SoundLookup::take(const Question& question, bool sound)
{
    running = false;
    if (question == asked) {
        known = true;
        answer = sound;
        answered();
    } else if (!asked.cardId.isEmpty() && !known) {
        askFolder();
    }
}
