// Where a lesson that is played has got to, and what its pointer does there.
#pragma once

#include "player/lesson.h"

#include <optional>

struct Moment {
    std::size_t scene = 0;
    double second = 0; // of the scene
};

/// The ring around the tip of a pointer that presses a button of the mouse.
struct PressRing {
    bool right = false; // the right button
    double growth = 0;  // from 0, pressed just now, to 1, gone

    bool operator==(const PressRing&) const = default;
};

struct PointerView {
    QPointF place;
    std::optional<PressRing> ring;

    bool operator==(const PointerView&) const = default;
};

/// The pointer at that moment; none before its first place. It glides from place to place, slowly at both
/// ends unless something is dragged, and stays where the scene before has left it until the scene moves it.
std::optional<PointerView> pointerAt(const Lesson& lesson, const Moment& moment);

/// The pointer for a scene that is shown as a still: at its last place, with a ring if it has pressed there.
std::optional<PointerView> stillPointer(const Lesson& lesson, std::size_t scene);

class Playback {
public:
    explicit Playback(const Lesson& played)
        : lesson(played)
    {
    }

    /// What is to be shown: for stills, the last moment of the scene.
    Moment shown() const;
    std::optional<PointerView> pointer() const;

    bool isPaused() const { return paused; }
    bool atEnd() const;

    /// Time has passed: goes on, unless it is paused, to the last moment of the lesson at most.
    void advance(double seconds);
    /// Pauses or goes on; at the end plays the lesson again.
    void turn();
    /// To the beginning of the scene before, or of the first.
    void stepBack();
    /// To the beginning of the next scene, or to the end of the last.
    void stepOn();
    /// To the beginning of the lesson, and plays.
    void playAgain();
    /// Shows every scene as a still from now on.
    void showStills() { stills = true; }

private:
    const Lesson& lesson;
    Moment now;
    bool paused = false;
    bool stills = false;
};
