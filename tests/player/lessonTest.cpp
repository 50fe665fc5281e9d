#include "player/lesson.h"
#include "player/film.h"
#include "player/smallLesson.h"

using namespace Qt::StringLiterals;

using LessonFile = Fresh;

TEST_F(LessonFile, IsReadWithEverythingInIt)
{
    const Lesson lesson = readLesson(writeLesson());
    EXPECT_EQ(lesson.title, u"Finding Cards"_s);
    EXPECT_EQ(lesson.length(), 7);
    ASSERT_EQ(lesson.scenes.size(), 2U);
    const Scene& scene = lesson.scenes[0];
    EXPECT_EQ(scene.caption, u"Open the menu Card."_s);
    ASSERT_EQ(scene.pictures.size(), 2U);
    EXPECT_EQ(scene.pictures[1].place, QPoint(50, 20));
    EXPECT_EQ(scene.pictures[1].at, 2);
    ASSERT_EQ(scene.pointer.size(), 2U);
    EXPECT_EQ(scene.pointer[1].press, Press::left);
}

TEST_F(LessonFile, ThatIsBadIsRefusedWithTheReason)
{
    struct {
        QByteArray part;
        QByteArray instead;
        const char* reason;
    } const cases[] = {
        {smallLesson, "", "damaged"},
        {smallLesson, "[1, 2]", "damaged"},
        {"{\"title\"", "\"title\"", "damaged"},
        {"\"Finding Cards\"", "7", "\"title\""},
        {"[200, 100]", "[200]", "\"size\""},
        {"[200, 100]", "[200, 1e300]", "\"size\""},
        {"[200, 100]", "[-200, 100]", "\"size\""},
        {"[200, 100]", "[100, 100]", "Scene 1: the picture \"01.png\" is larger"},
        {"\"scenes\": [", "\"scenes\": [], \"other\": [", "\"scenes\""},
        {"\"scenes\": [", "\"scenes\": [null, ", "Scene 1"},
        {"\"length\": 3", "\"length\": -3", "Scene 2: \"length\""},
        {"\"length\": 3", "\"length\": 1e9", "Scene 2: \"length\""},
        {"Drag the card.", QByteArray(5000, 'a'), "Scene 2: \"caption\""},
        {"\"at\": 0,", "\"at\": -1,", "\"at\""},
        {"\"at\": 0,", "\"at\": 3,", "ascend"},
        {"\"at\": 2, \"x\": 40", "\"at\": 4, \"x\": 40", "\"at\""},
        {"\"x\": 50", "\"x\": \"50\"", "\"x\""},
        {"\"x\": 50", "\"x\": 190", "\"02.png\" is larger"},
        {"\"drop\"", "\"let go\"", "Scene 2: \"press\""},
        {"01.png", "03.png", "\"03.png\" is missing"},
        {"01.png", "lesson.json", "no name"},
        {"01.png", "../01.png", "no name"},
        {"01.png", "/etc/01.png", "no name"},
        {"01.png", "link.png", "no name"},
        {"01.png", "text.png", "damaged"},
        {"01.png", "folder.png", "missing"},
    };
    QFile::link(writeLesson() + u"/02.png"_s, inTestFolder(u"link.png"_s));
    putFile(inTestFolder(u"text.png"_s), "no picture");
    QDir(testFolder()).mkdir(u"folder.png"_s);
    for (const auto& [part, instead, reason] : cases) {
        QByteArray script = smallLesson;
        ASSERT_TRUE(script.contains(part)) << part.toStdString();
        script.replace(script.indexOf(part), part.size(), instead);
        try {
            readLesson(writeLesson(script));
            ADD_FAILURE() << "taken: " << instead.toStdString();
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.description().contains(QLatin1String(reason)))
                << error.description().toStdString();
        }
    }
    EXPECT_EQ(errorOf([] { readLesson(inTestFolder(u"nowhere"_s)); }), invalidProperty);
}

TEST_F(LessonFile, ShowsItsPicturesInTimeForwardsAndBackwards)
{
    const Lesson lesson = readLesson(writeLesson());
    struct {
        Moment moment;
        bool changed;
        QPoint red; // a place that is red, -1 for none
        QPoint white;
    } const steps[] = {
        {{0, 0}, true, {-1, -1}, {60, 30}}, {{0, 1.9}, false, {-1, -1}, {60, 30}},
        {{0, 2}, true, {60, 30}, {10, 10}}, {{1, 0.5}, false, {60, 30}, {10, 10}},
        {{1, 2}, true, {10, 10}, {90, 90}}, {{1, 0}, true, {60, 30}, {10, 10}},
        {{0, 1}, true, {-1, -1}, {60, 30}}, {{1, 3}, true, {60, 30}, {90, 90}},
    };
    Film film(lesson);
    for (const auto& [moment, changed, red, white] : steps) {
        EXPECT_EQ(film.show(moment), changed) << moment.scene << ", " << moment.second;
        if (red.x() >= 0) {
            EXPECT_EQ(film.screen().pixelColor(red), Qt::red) << moment.scene << ", " << moment.second;
        }
        EXPECT_EQ(film.screen().pixelColor(white), Qt::white) << moment.scene << ", " << moment.second;
    }
}
