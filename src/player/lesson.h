// A lesson: a recorded screen, a pointer and captions, in the folder that tutorials/README.md describes.
#pragma once

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>

#include <vector>

enum class Press { none, left, right, drag, drop };

/// A picture that is shown on top of what is there, from that second of its scene on.
struct Patch {
    double at = 0;
    QString file; // the whole path
    QPoint place;
};

/// The pointer is at that place at that second; between two of them it glides.
struct PointerStop {
    double at = 0;
    QPointF place;
    Press press = Press::none;
};

struct Scene {
    QString caption;
    double length = 0; // seconds
    std::vector<Patch> pictures;
    std::vector<PointerStop> pointer;
};

struct Lesson {
    QString title;
    QSize size; // of the recorded screen
    std::vector<Scene> scenes;

    double length() const;
};

/// Reads and checks the lesson in the folder: afterwards it has a scene, times ascend within their scenes,
/// and every picture is a file of the folder and lies on the screen. Pictures are not decoded yet. Raises an
/// error whose description says what is wrong and where.
Lesson readLesson(const QString& folder);
