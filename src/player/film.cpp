#include "player/film.h"

#include "platform/errors.h"
#include "platform/pictureFile.h"

#include <QFileInfo>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QImage decoded(const QString& file)
{
    try {
        return readPicture(file);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), u"The picture \"%1\" can't be shown (%2)."_s.arg(
                                               QFileInfo(file).fileName(), error.description()));
    }
}

} // namespace

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
            painter.drawImage(pictures[patches].place, decoded(pictures[patches].file));
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
