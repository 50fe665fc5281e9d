// A lesson of two scenes in the test's folder: white, then with a red square.
#pragma once

#include "support/files.h"

inline const QByteArray smallLesson = R"({"title": "Finding Cards", "size": [200, 100], "scenes": [
 {"caption": "Open the menu Card.", "length": 4,
  "pictures": [{"at": 0, "file": "01.png", "x": 0, "y": 0}, {"at": 2, "file": "02.png", "x": 50, "y": 20}],
  "pointer": [{"at": 1, "x": 0, "y": 0}, {"at": 2, "x": 100, "y": 40, "press": "left"}]},
 {"caption": "Drag the card.", "length": 3, "pictures": [{"at": 1, "file": "02.png", "x": 0, "y": 0}],
  "pointer": [{"at": 1, "x": 0, "y": 20, "press": "drag"}, {"at": 2, "x": 40, "y": 20, "press": "drop"}]}]})";

/// Writes it, or another script with its pictures, and returns the folder.
inline QString writeLesson(const QByteArray& script = smallLesson)
{
    putFile(inTestFolder(QStringLiteral("lesson.json")), script);
    plain({200, 100}, Qt::white).save(inTestFolder(QStringLiteral("01.png")));
    plain({20, 20}, Qt::red).save(inTestFolder(QStringLiteral("02.png")));
    return testFolder().chopped(1);
}
