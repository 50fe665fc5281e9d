#include "player/playback.h"

#include <algorithm>

namespace {

constexpr double ringTime = 1;                    // seconds
constexpr double heldRing = 0.4, stillRing = 0.4; // growth of a ring that doesn't grow

using Stops = std::vector<PointerStop>;

/// Slow at both ends.
double eased(double part) { return part * part * (3 - 2 * part); }

/// Where the scenes before have left the pointer.
const PointerStop* lastStopBefore(const Lesson& lesson, std::size_t scene)
{
    while (scene > 0) {
        const Stops& stops = lesson.scenes[--scene].pointer;
        if (!stops.empty())
            return &stops.back();
    }
    return nullptr;
}

/// The last press at or before the end of that range.
const PointerStop* lastPress(Stops::const_iterator first, Stops::const_iterator end)
{
    while (end != first) {
        if ((--end)->press != Press::none)
            return &*end;
    }
    return nullptr;
}

std::optional<PressRing> ringOf(const PointerStop* press, double second)
{
    if (!press)
        return {};
    if (press->press == Press::drag)
        return PressRing{false, heldRing};
    const double growth = (second - press->at) / ringTime;
    return growth < 1 ? std::optional(PressRing{press->press == Press::right, growth}) : std::nullopt;
}

} // namespace

std::optional<PointerView> pointerAt(const Lesson& lesson, const Moment& moment)
{
    const Stops& stops = lesson.scenes[moment.scene].pointer;
    const auto next = std::find_if(stops.begin(), stops.end(),
                                   [&](const PointerStop& stop) { return stop.at > moment.second; });
    const PointerStop* before = lastStopBefore(lesson, moment.scene);
    const double from = next == stops.begin() ? 0 : std::prev(next)->at;
    if (next != stops.begin())
        before = &*std::prev(next);
    if (!before)
        return {};
    const PointerStop* press = lastPress(stops.begin(), next);
    PointerView view{before->place, ringOf(press, moment.second)};
    if (next != stops.end()) {
        const double part = (moment.second - from) / (next->at - from);
        const bool held = press && press->press == Press::drag;
        view.place += (next->place - before->place) * (held ? part : eased(part));
    }
    return view;
}

std::optional<PointerView> stillPointer(const Lesson& lesson, std::size_t scene)
{
    const PointerStop* last = lastStopBefore(lesson, scene + 1);
    if (!last)
        return {};
    const Stops& stops = lesson.scenes[scene].pointer;
    const PointerStop* press = lastPress(stops.begin(), stops.end());
    PointerView view{last->place, {}};
    if (press && press->place == last->place)
        view.ring = PressRing{press->press == Press::right, stillRing};
    return view;
}

Moment Playback::shown() const { return {now.scene, stills ? lesson.scenes[now.scene].length : now.second}; }

std::optional<PointerView> Playback::pointer() const
{
    return stills ? stillPointer(lesson, now.scene) : pointerAt(lesson, now);
}

bool Playback::atEnd() const
{
    return now.scene + 1 == lesson.scenes.size() && now.second >= lesson.scenes.back().length;
}

void Playback::advance(double seconds)
{
    if (paused)
        return;
    now.second += seconds;
    while (now.second >= lesson.scenes[now.scene].length) {
        const double length = lesson.scenes[now.scene].length;
        if (now.scene + 1 == lesson.scenes.size()) {
            now.second = length;
            return;
        }
        now = {now.scene + 1, now.second - length};
    }
}

void Playback::turn()
{
    if (atEnd())
        playAgain();
    else
        paused = !paused;
}

void Playback::stepBack() { now = {now.scene == 0 ? 0 : now.scene - 1, 0}; }

void Playback::stepOn()
{
    if (now.scene + 1 < lesson.scenes.size())
        now = {now.scene + 1, 0};
    else
        now.second = lesson.scenes.back().length;
}

void Playback::playAgain()
{
    now = {};
    paused = false;
}
