#include "window/onceTimers.h"

#include "controls/forms.h"
#include "database/FileForm.h"
#include "window/mainSettings.h"

namespace {

void rereadWorkingFolder()
{
    if (isLoaded<FileForm>())
        form<FileForm>().takeWorkingFolder();
}

constexpr OnceTimer timers[] = {
    {"TMF", 10, rereadRefreshOption},   {"tmrDBLock", 2, rereadLockOption},
    {"tmrClue", 2, rereadClueOption},   {"tmrDelCard", 2, rereadDeleteOption}, // also at the start
    {"TMWDir", 5, rereadWorkingFolder}, // never started: the file dialog reads its folder itself
    {"TmrShow", 3000, [] {}},
};

} // namespace

std::span<const OnceTimer> onceTimers() { return timers; }
