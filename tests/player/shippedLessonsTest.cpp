// The lessons in tutorials/lessons: they are sound, and a child has the time to read them.
#include "platform/pictureFile.h"
#include "player/film.h"

#include <QDir>
#include <QRegion>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double secondsPerWord = 0.35;
constexpr int longestCaption = 100;

// What help window, buttons and teacher's options start.
const QStringList shipped = {
    u"Entering Data"_s, u"Finding Cards"_s,    u"Grouping Cards"_s, u"Looking at Statistics"_s,
    u"Making Graphs"_s, u"Making a report"_s,  u"Newdb"_s,          u"Oview"_s,
    u"Sorting Data"_s,  u"Start a Database"_s, u"Topts"_s,          u"Using Databases"_s,
};

/// What of the screen the lesson doesn't show at its beginning.
QRegion missingAtFirst(const Lesson& lesson)
{
    QRegion missing(QRect({}, lesson.size));
    for (const Patch& patch : lesson.scenes[0].pictures) {
        if (patch.at == 0)
            missing -= QRect(patch.place, readPicture(patch.file).size());
    }
    return missing;
}

} // namespace

TEST(ShippedLessons, AreWholeAndCanBeReadInTime)
{
    const QDir lessons(QStringLiteral(TUTORIALS_FOLDER "/lessons"));
    const QStringList names = lessons.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    EXPECT_EQ(names, shipped);
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const Lesson lesson = readLesson(lessons.filePath(name));
        EXPECT_GE(lesson.length(), 60);
        EXPECT_LE(lesson.length(), 120);
        EXPECT_TRUE(missingAtFirst(lesson).isEmpty());
        EXPECT_TRUE(stillPointer(lesson, 0)) << "no pointer in the first scene";
        for (const Scene& scene : lesson.scenes) {
            EXPECT_LE(scene.caption.size(), longestCaption) << scene.caption.toStdString();
            EXPECT_GE(scene.length, secondsPerWord * double(scene.caption.split(u' ').size()))
                << scene.caption.toStdString();
        }
        Film film(lesson); // raises an error for a picture that can't be decoded
        film.show({lesson.scenes.size() - 1, lesson.scenes.back().length});
    }
}
