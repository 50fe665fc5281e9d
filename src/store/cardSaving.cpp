#include "store/cardSaving.h"

#include "core/session.h"
#include "platform/folderLock.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"
#include "store/cardFiles.h"
#include "store/fileStates.h"
#include "store/keptVersions.h"
#include "store/paths.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// A file that is about to be written.
struct Writing {
    QString path;
    QByteArray bytes;
    bool needed = true;
    bool othersLost = false; // another workstation has changed it since it was loaded
    bool keptFirst = false;
};

void takeBoxes(int card)
{
    for (int f = 1; f <= session.numFields; ++f)
        session.cardValue[card][f] = session.editor.DataBox[f];
}

void labelTooltip(int card) { session.box[card].tooltip = session.cardValue[card][1]; }

/// True when the record looks like the result of an interrupted write on another system: empty, bytes of
/// zero, or an open quote.
bool isDamagedRecord(const QByteArray& bytes)
{
    return bytes.trimmed().isEmpty() || bytes.contains('\0') || bytes.count('"') % 2 != 0;
}

bool isDamagedPicture(const QByteArray& bytes)
{
    try {
        decodePicture(bytes, {1, 1}); // no photo is too large then
        return false;
    } catch (const RuntimeError&) {
        return true;
    }
}

bool canBeSeen(QChar character)
{
    return character.isSurrogate() || (character.isPrint() && !character.isSpace());
}

bool nothingFilledIn()
{
    for (int f = 1; f <= session.numFields; ++f) {
        const QString& text = session.editor.DataBox[f];
        if (std::any_of(text.begin(), text.end(), canBeSeen))
            return false;
    }
    return true;
}

/// While the description couldn't be read whole, records may have more items than the session has fields.
bool mayHaveFurtherItems()
{
    const QString description = filePathIn(session.dbPath, descriptionName);
    return !session.descriptionWhole || stateOnDisk(description) != knownState(description);
}

QByteArray recordBytes(int card, const QByteArray& onDisk)
{
    ItemWriter writer;
    writer.quoted(session.cardValue[card][0]);
    for (int f = 1; f <= session.numFields; ++f)
        writer.quoted(session.editor.DataBox[f]);
    if (mayHaveFurtherItems()) {
        for (const QString& item : itemsIn(onDisk).mid(session.numFields + 1))
            writer.quoted(item);
    }
    return writer.bytes();
}

Writing recordWriting(int card)
{
    const QString path = cardRecordPath(card);
    const FileState known = knownState(path);
    const FileState now = stateToReplace(path);
    if (now.error == 0 && known.error != 0 && known.error != fileNotFound)
        throw RuntimeError(pathAccessError); // the boxes don't show its values
    Writing record{path, recordBytes(card, now.bytes)};
    const bool damaged = now.error == 0 && isDamagedRecord(now.bytes);
    record.needed = !damaged || !nothingFilledIn();
    const bool changes = now.error == 0 && now.bytes != record.bytes;
    record.othersLost = changes && now != known;
    record.keptFirst = record.othersLost || (changes && damaged);
    return record;
}

Writing pictureWriting(int card)
{
    const QString path = cardPicturePath(card);
    const FileState now = stateToReplace(path);
    Writing picture{path, bitmapBytes(session.editor.Picture1.shown())};
    picture.othersLost = now.error == 0 && now != knownState(path) && now.bytes != picture.bytes;
    picture.keptFirst = picture.othersLost || (now.error == 0 && isDamagedPicture(now.bytes));
    return picture;
}

Writing soundWriting(int card, const QByteArray& waveFile)
{
    const QString path = cardSoundPath(card);
    if (QFileInfo(path).size() > mostKeptBytes)
        return {path, waveFile}; // too large to be compared or kept
    const FileState now = stateToReplace(path);
    Writing sound{path, waveFile};
    sound.needed = now.error || now.bytes != waveFile;
    sound.keptFirst = now.error == 0 && now.bytes.size() <= mostKeptBytes;
    sound.othersLost = sound.keptFirst && now != knownState(path);
    return sound;
}

void keepBefore(std::initializer_list<const Writing*> writings)
{
    QStringList paths;
    for (const Writing* writing : writings) {
        if (!writing->needed || !writing->keptFirst)
            continue;
        if (writing->path.endsWith(soundEnding))
            keepVersions({writing->path}); // a large one is within the limit only alone
        else
            paths.append(writing->path);
    }
    keepVersions(paths);
}

void write(const Writing& writing)
{
    if (writing.needed)
        replaceAndRemember(writing.path, writing.bytes);
}

bool pictureNeeded(int card)
{
    if (session.cardSize == stripSize)
        return false;
    return session.editor.Picture1.shown() != session.editor.openedPicture ||
           !QFileInfo::exists(cardPicturePath(card));
}

} // namespace

void saveCardValues(int card)
{
    withErrorBox([card] {
        const FolderLock lock(session.dbPath);
        takeBoxes(card);
        const Writing record = recordWriting(card);
        keepBefore({&record});
        write(record);
        labelTooltip(card);
    });
}

void saveCardPicture(int card)
{
    if (session.cardSize == stripSize)
        return;
    withErrorBox([card] {
        const FolderLock lock(session.dbPath);
        const Writing picture = pictureWriting(card);
        keepBefore({&picture});
        write(picture);
    });
}

void writeCardSound(int card, const QByteArray& waveFile)
{
    const FolderLock lock(session.dbPath);
    const Writing sound = soundWriting(card, waveFile);
    keepBefore({&sound});
    write(sound);
}

bool writeEditedCard(int card, const QByteArray& waveFile)
{
    const FolderLock lock(session.dbPath);
    const Writing record = recordWriting(card);
    const Writing none{{}, {}, false};
    const Writing picture = pictureNeeded(card) ? pictureWriting(card) : none;
    const Writing sound = waveFile.isEmpty() ? none : soundWriting(card, waveFile);
    keepBefore({&record, &picture, &sound});
    write(sound); // first, since it is the largest: a full disk then leaves the card as it was
    write(record);
    takeBoxes(card);
    labelTooltip(card);
    write(picture);
    return (record.needed && record.othersLost) || picture.othersLost || (sound.needed && sound.othersLost);
}
