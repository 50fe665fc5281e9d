#include "store/fileStates.h"

#include "platform/wholeFile.h"
#include "store/paths.h"

namespace {

FileState stateOf(const QString& path, qint64 limit)
{
    try {
        return {0, readWholeFile(path, limit)};
    } catch (const RuntimeError& error) {
        return {error.number(), {}};
    }
}

} // namespace

QByteArray readAndRemember(const QString& path, qint64 limit)
{
    const FileState state = stateOf(path, limit);
    session.fileStates.insert(path, state);
    if (state.error)
        throw RuntimeError(state.error);
    return state.bytes;
}

bool alreadyTold(const QString& path)
{
    const auto told = session.toldStates.constFind(path);
    return session.inRefresh && told != session.toldStates.constEnd() && *told == knownState(path);
}

void rememberTold(const QString& path) { session.toldStates.insert(path, knownState(path)); }

FileState knownState(const QString& path) { return session.fileStates.value(path); }

void forgetStates(QLatin1StringView ending)
{
    session.fileStates.removeIf([ending](const auto& state) { return state.key().endsWith(ending); });
}

FileState stateOnDisk(const QString& path) { return stateOf(path, largestFile); }

FileState stateToReplace(const QString& path)
{
    const FileState state = stateOnDisk(path);
    if (state.error && state.error != fileNotFound)
        throw RuntimeError(state.error == pathNotFound ? pathNotFound : pathAccessError);
    return state;
}

void replaceAndRemember(const QString& path, const QByteArray& bytes)
{
    replaceFile(path, bytes, filePathIn(session.dbPath, descriptionName));
    session.fileStates.insert(path, {0, bytes});
}
