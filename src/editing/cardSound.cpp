#include "editing/cardSound.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/wave.h"
#include "platform/wholeFile.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"
#include "store/fileStates.h"
#include "store/keptVersions.h"
#include "store/paths.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString soundPath() { return cardSoundPath(session.selectedCard); }

/// Raises 57 when it is no wave file.
QByteArray readWaveFile(const QString& path)
{
    const QByteArray bytes = readWholeFile(path);
    readWave(bytes);
    return bytes;
}

} // namespace

void rememberCardSound()
{
    ignoringErrors({[] { readAndRemember(soundPath(), mostKeptBytes); }});
}

bool addSound(const QString& file)
{
    desktop.sound.stop();
    bool added = false;
    ignoringErrors({[&] {
        writeCardSound(session.selectedCard, readWaveFile(file));
        added = true;
    }});
    return added;
}

void removeSound()
{
    desktop.sound.stop();
    if (!QFileInfo::exists(soundPath()))
        throw RuntimeError(fileNotFound);
    moveToKept({soundPath()});
    if (QFileInfo::exists(soundPath()))
        throw RuntimeError(pathAccessError);
    forgetStates(soundEnding);
}

QString workFile()
{
    const QString beside = desktop.files.programFolder();
    const QString folder = QFileInfo(beside).isWritable() ? beside : desktop.files.ownFolder();
    return joinPath(folder, u"tmpsnd.wav"_s);
}

bool beginRecording()
{
    desktop.sound.stop();
    desktop.sound.takeRecording();
    session.editor.recording.clear();
    QFile::remove(workFile());
    return desktop.sound.record();
}

void endRecording()
{
    const QByteArray recording = desktop.sound.takeRecording();
    if (recording.isEmpty())
        return;
    session.editor.recording = recording;
    ignoringErrors({[&] { replaceFile(workFile(), recording); }});
}

void playRecording()
{
    endRecording();
    const QByteArray recording = lastRecording();
    if (recording.isEmpty())
        throw RuntimeError(fileNotFound);
    desktop.sound.playBack(recording);
}

QByteArray lastRecording()
{
    QByteArray last = session.editor.recording;
    if (last.isEmpty())
        ignoringErrors({[&] { last = readWaveFile(workFile()); }});
    return last;
}

void leaveCardSound()
{
    endRecording();
    desktop.sound.stop();
    forgetStates(soundEnding);
}
