// The recorded screen of a lesson, put together from its pictures.
#pragma once

#include "player/playback.h"

#include <QImage>

class Film {
public:
    explicit Film(const Lesson& shown);

    /// Puts the screen of that moment together. True when it differs from the last one. Raises what
    /// readPicture() does.
    bool show(const Moment& moment);
    const QImage& screen() const { return image; }

private:
    const Lesson& lesson;
    QImage image;
    std::size_t scene = 0;
    std::size_t patches = 0; // of that scene that are on the screen
};
