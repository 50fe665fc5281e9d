#include "board/soundLookup.h"

#include "core/session.h"
#include "store/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

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
    QThreadPool::globalInstance()->start([question = asked, self = QPointer(this)] {
        const QString name = question.cardId + QStringLiteral(".snd");
        const bool sound = QFileInfo(filePathIn(question.folder, name)).isFile();
        QMetaObject::invokeMethod(
            qApp,
            [question, sound, self] {
                if (self)
                    self->take(question, sound);
            },
            Qt::QueuedConnection);
    });
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
