#include "player/film.h"

#include "platform/pictureFile.h"

#include <QPainter>

Film::Film(const Lesson& shown)
    : lesson(shown)
    , image(shown.size, QImage::Format_RGB32)
{
    image.fill(Qt::white);
}

bool Film::show(const Moment& moment)
{
    const auto inTime = [&](std::size_t patch) {
        return scene < moment.scene || lesson.scenes[scene].pictures[patch].at <= moment.second;
    };
    bool changed = false;
    if (scene > moment.scene || (patches > 0 && !inTime(patches - 1))) { // back: from the beginning
        image.fill(Qt::white);
        scene = patches = 0;
        changed = true;
    }
    QPainter painter(&image);
    for (;;) {
        const std::vector<Patch>& pictures = lesson.scenes[scene].pictures;
        if (patches < pictures.size() && inTime(patches)) {
            painter.drawImage(pictures[patches].place, readPicture(pictures[patches].file));
            ++patches;
            changed = true;
        } else if (scene < moment.scene) {
            ++scene;
            patches = 0;
        } else {
            return changed;
        }
    }
}
