#include "player/lesson.h"

#include "platform/errors.h"
#include "platform/wholeFile.h"

#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestScript = 8 << 20; // bytes
constexpr int leastSide = 64, largestSide = 4096;
constexpr double shortestScene = 0.1, longestScene = 120;
constexpr qsizetype longestText = 300, mostScenes = 100, mostEntries = 10'000; // of a scene

/// Reads the parts of a lesson from the script, and remembers where it is for what it says about a fault.
class LessonReader {
public:
    explicit LessonReader(const QString& lessonFolder)
        : folder(lessonFolder)
    {
    }

    Lesson read();

private:
    [[noreturn]] void reject(const QString& why) const;
    QByteArray bytes() const;
    QJsonObject objectOf(const QJsonValue& value, const char* what) const;
    QJsonArray arrayOf(const QJsonObject& from, const char* key, qsizetype least, qsizetype most) const;
    double number(const QJsonValue& value, const char* what, double least, double most) const;
    int wholeNumber(const QJsonValue& value, const char* what, int least, int most) const;
    QString text(const QJsonObject& from, const char* key) const;
    double time(const QJsonObject& entry, double length, double& last) const;
    Scene scene(const QJsonValue& value);
    Patch patch(const QJsonValue& value, double length, double& last);
    PointerStop stop(const QJsonValue& value, double length, double& last) const;
    QSize sizeOf(const QString& file);

    QString folder;
    QString place; // "Scene 3", empty outside of scenes
    QSize screen;
    QHash<QString, QSize> sizes; // of the pictures seen so far
};

void LessonReader::reject(const QString& why) const
{
    throw RuntimeError(invalidProperty, place.isEmpty() ? why : place + u": "_s + why);
}

QByteArray LessonReader::bytes() const
{
    try {
        return readWholeFile(folder + u"/lesson.json"_s, largestScript);
    } catch (const RuntimeError& error) {
        reject(u"lesson.json can't be read (%1)."_s.arg(error.description()));
    }
}

QJsonObject LessonReader::objectOf(const QJsonValue& value, const char* what) const
{
    if (!value.isObject())
        reject(u"%1 is missing or has another form."_s.arg(QLatin1String(what)));
    return value.toObject();
}

QJsonArray LessonReader::arrayOf(const QJsonObject& from, const char* key, qsizetype least,
                                 qsizetype most) const
{
    const QJsonValue value = from[QLatin1String(key)];
    const QJsonArray array = value.toArray();
    if (!value.isArray() || array.size() < least || array.size() > most)
        reject(u"\"%1\" must be a list of %2 to %3."_s.arg(QLatin1String(key)).arg(least).arg(most));
    return array;
}

double LessonReader::number(const QJsonValue& value, const char* what, double least, double most) const
{
    const double number = value.toDouble(most + 1);
    if (!(number >= least && number <= most))
        reject(u"\"%1\" must be a number from %2 to %3."_s.arg(QLatin1String(what)).arg(least).arg(most));
    return number;
}

int LessonReader::wholeNumber(const QJsonValue& value, const char* what, int least, int most) const
{
    return int(std::lround(number(value, what, least, most)));
}

QString LessonReader::text(const QJsonObject& from, const char* key) const
{
    const QString text = from[QLatin1String(key)].toString().simplified();
    if (text.isEmpty() || text.size() > longestText)
        reject(u"\"%1\" must be a text of at most %2 characters."_s.arg(QLatin1String(key)).arg(longestText));
    return text;
}

double LessonReader::time(const QJsonObject& entry, double length, double& last) const
{
    const double at = number(entry["at"_L1], "at", 0, length);
    if (at < last)
        reject(u"the times don't ascend."_s);
    last = at;
    return at;
}

QSize LessonReader::sizeOf(const QString& file)
{
    static const QRegularExpression plainName(u"\\A[\\w-][\\w .-]*\\.png\\z"_s);
    if (const auto known = sizes.constFind(file); known != sizes.constEnd())
        return *known;
    const QFileInfo info(folder + u'/' + file);
    if (!plainName.match(file).hasMatch() || info.isSymLink())
        reject(u"\"%1\" is no name of a picture in the lesson's folder."_s.arg(file.left(longestText)));
    if (!info.isFile())
        reject(u"the picture \"%1\" is missing."_s.arg(file));
    const QImageReader reader(info.filePath());
    const QSize size = reader.size();
    if (!size.isValid() || reader.format() != "png")
        reject(u"the picture \"%1\" is damaged."_s.arg(file));
    return *sizes.insert(file, size);
}

Patch LessonReader::patch(const QJsonValue& value, double length, double& last)
{
    const QJsonObject entry = objectOf(value, "a picture");
    const QString file = entry["file"_L1].toString();
    const QSize size = sizeOf(file);
    Patch patch{time(entry, length, last), folder + u'/' + file, {}};
    patch.place = {wholeNumber(entry["x"_L1], "x", 0, screen.width()),
                   wholeNumber(entry["y"_L1], "y", 0, screen.height())};
    if (!QRect({}, screen).contains(QRect(patch.place, size)))
        reject(u"the picture \"%1\" is larger than its place."_s.arg(file));
    return patch;
}

PointerStop LessonReader::stop(const QJsonValue& value, double length, double& last) const
{
    static const QHash<QString, Press> presses = {{u"left"_s, Press::left},
                                                  {u"right"_s, Press::right},
                                                  {u"drag"_s, Press::drag},
                                                  {u"drop"_s, Press::drop}};
    const QJsonObject entry = objectOf(value, "a place of the pointer");
    PointerStop stop;
    stop.at = time(entry, length, last);
    stop.place = {number(entry["x"_L1], "x", 0, screen.width()),
                  number(entry["y"_L1], "y", 0, screen.height())};
    if (!entry.contains("press"_L1))
        return stop;
    const auto press = presses.constFind(entry["press"_L1].toString());
    if (press == presses.constEnd())
        reject(u"\"press\" must be left, right, drag or drop."_s);
    stop.press = *press;
    return stop;
}

Scene LessonReader::scene(const QJsonValue& value)
{
    const QJsonObject from = objectOf(value, "a scene");
    Scene scene;
    scene.caption = text(from, "caption");
    scene.length = number(from["length"_L1], "length", shortestScene, longestScene);
    double last = 0;
    for (const QJsonValue& entry : arrayOf(from, "pictures", 0, mostEntries))
        scene.pictures.push_back(patch(entry, scene.length, last));
    last = 0;
    for (const QJsonValue& entry : arrayOf(from, "pointer", 0, mostEntries))
        scene.pointer.push_back(stop(entry, scene.length, last));
    return scene;
}

Lesson LessonReader::read()
{
    const QJsonObject script = QJsonDocument::fromJson(bytes()).object();
    if (script.isEmpty())
        reject(u"lesson.json is damaged."_s);
    Lesson lesson;
    lesson.title = text(script, "title");
    const QJsonArray size = arrayOf(script, "size", 2, 2);
    screen = {wholeNumber(size[0], "size", leastSide, largestSide),
              wholeNumber(size[1], "size", leastSide, largestSide)};
    lesson.size = screen;
    for (const QJsonValue& value : arrayOf(script, "scenes", 1, mostScenes)) {
        place = u"Scene %1"_s.arg(lesson.scenes.size() + 1);
        lesson.scenes.push_back(scene(value));
    }
    return lesson;
}

} // namespace

double Lesson::length() const
{
    return std::accumulate(scenes.begin(), scenes.end(), 0.0,
                           [](double sum, const Scene& scene) { return sum + scene.length; });
}

Lesson readLesson(const QString& folder) { return LessonReader(folder).read(); }
