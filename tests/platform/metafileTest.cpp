#include "platform/metafile.h"

#include "platform/pictureFile.h"
#include "support/files.h"

#include <QtEndian>

namespace {

using Words = std::initializer_list<int>;

/// Metafiles put together record by record, in a window of 100 x 80 units.
class Metafile {
public:
    Metafile& add(quint16 function, Words words)
    {
        put32(quint32(3 + words.size()));
        put16(function);
        for (const int word : words)
            put16(word);
        return *this;
    }
    Metafile& window(int left, int top, int width, int height)
    {
        return add(0x020B, {top, left}).add(0x020C, {height, width});
    }
    Metafile& brush(int number, int colour)
    {
        return add(0x02FC, {0, colour & 0xFFFF, colour >> 16, 0}).add(0x012D, {number});
    }
    Metafile& noPen(int number) { return add(0x02FA, {5, 0, 0, 0, 0}).add(0x012D, {number}); }

    QByteArray bytes(int unitsToInch = 100, int right = 100) const
    {
        Metafile head;
        for (const int word : {0xCDD7, 0x9AC6, 0, 0, 0, right, 80, unitsToInch, 0, 0, 0})
            head.put16(word);
        for (const int word : {1, 9, 0x300, int(9 + records.size() / 2 + 3), 0, 8, 100, 0, 0})
            head.put16(word);
        return head.records + records + QByteArray("\x03\0\0\0\0\0", 6);
    }

private:
    void put16(int value)
    {
        const auto little = qToLittleEndian(quint16(value));
        records.append(reinterpret_cast<const char*>(&little), sizeof little);
    }
    void put32(quint32 value)
    {
        put16(int(value & 0xFFFF));
        put16(int(value >> 16));
    }

    QByteArray records;
};

constexpr int redWord = 0x0000FF; // blue in the high byte
constexpr int blueWord = 0xFF0000;

/// A red sheet with a blue pie from three to twelve o'clock and a blue bar along its upper edge.
QByteArray pieOnSheet(const Metafile& window)
{
    return Metafile(window)
        .noPen(0)
        .brush(1, redWord)
        .add(0x041B, {80, 100, 0, 0})
        .brush(2, blueWord)
        .add(0x041B, {8, 100, 0, 0})
        .add(0x081A, {10, 50, 40, 90, 70, 90, 10, 10})
        .bytes();
}

QColor colourAt(const QImage& picture, double x, double y)
{
    return picture.pixelColor(int(picture.width() * x), int(picture.height() * y));
}

} // namespace

using MetafileReading = Fresh;

TEST_F(MetafileReading, PlaysADrawingOverTheSizeThatIsNeeded)
{
    const QByteArray file = pieOnSheet(Metafile().window(0, 0, 100, 80));
    const QImage picture = decodePicture(file, {320, 242});
    EXPECT_EQ(picture.width(), 320);
    EXPECT_NEAR(picture.height(), 256, 1) << "in its proportions";
    EXPECT_EQ(colourAt(picture, 0.05, 0.9), QColor(Qt::red));
    EXPECT_EQ(colourAt(picture, 0.6, 0.4), QColor(Qt::blue)) << "the pie lies at the upper right";
    EXPECT_EQ(colourAt(picture, 0.4, 0.4), QColor(Qt::red));
    EXPECT_EQ(colourAt(picture, 0.6, 0.6), QColor(Qt::red));
}

TEST_F(MetafileReading, AMirroredWindowMirrorsTheDrawing)
{
    const QImage picture = decodePicture(pieOnSheet(Metafile().window(0, 80, 100, -80)), {320, 242});
    EXPECT_EQ(colourAt(picture, 0.5, 0.95), QColor(Qt::blue));
    EXPECT_EQ(colourAt(picture, 0.5, 0.05), QColor(Qt::red));
}

TEST_F(MetafileReading, WhatIsNoWholeDrawingIsRefused)
{
    const QByteArray whole = pieOnSheet(Metafile().window(0, 0, 100, 80));
    for (qsizetype length = 0; length < whole.size(); ++length)
        ASSERT_EQ(errorOf([&] { decodePicture(whole.first(length)); }), invalidPicture) << length;
    const QByteArray cases[] = {
        Metafile().window(0, 0, 100, 80).bytes(),              // nothing drawn
        Metafile().add(0x041B, {80, 100, 0, 0}).bytes(0),      // no units to the inch
        Metafile().add(0x041B, {80, 100, 0, 0}).bytes(100, 0), // an empty frame
        "\xD7\xCD\xC6\x9A" + QByteArray(200, '\xFF'),
        QByteArray("\x01\0\x09\0", 4),
    };
    for (const QByteArray& file : cases)
        EXPECT_EQ(errorOf([&] { decodePicture(file); }), invalidPicture) << file.toHex().toStdString();
}

TEST_F(MetafileReading, ArcsRunAgainstTheClockOnTheSheetAlsoInAMirroredWindow)
{
    // A pie from right of the middle to above it, on a sheet of 100 x 80 units; in a mirrored window the ends
    // lie elsewhere, and the way between them is still the one against the clock.
    struct Case {
        const char* what;
        int left, top, width, height;
        const char* quarters; // upper left, upper right, lower left, lower right: '#' where the pie is
    };
    const Case cases[] = {
        {"plain", 0, 0, 100, 80, ".#.."},
        {"upside down", 0, 80, 100, -80, "###."},
        {"left to right", 100, 0, -100, 80, ".###"},
        {"both", 100, 80, -100, -80, "..#."},
    };
    for (const Case& c : cases) {
        const QImage picture =
            decodePicture(pieOnSheet(Metafile().window(c.left, c.top, c.width, c.height)), {320, 242});
        QByteArray found;
        for (const auto& [x, y] : {std::pair(0.4, 0.4), {0.6, 0.4}, {0.4, 0.6}, {0.6, 0.6}})
            found += colourAt(picture, x, y) == QColor(Qt::blue) ? '#' : '.';
        EXPECT_EQ(found, c.quarters) << c.what;
    }
}

TEST_F(MetafileReading, TheEndsOfAnArcMayLieAnywhereOnTheirRays)
{
    // From the right to 63 degrees above it, where the end lies outside the ellipse's frame.
    const QByteArray file = Metafile()
                                .window(0, 0, 100, 80)
                                .noPen(0)
                                .brush(1, redWord)
                                .add(0x041B, {80, 100, 0, 0})
                                .brush(2, blueWord)
                                .add(0x081A, {0, 70, 40, 100, 70, 80, 10, 20})
                                .bytes();
    const QImage picture = decodePicture(file, {320, 242});
    EXPECT_EQ(colourAt(picture, 0.625, 0.23), QColor(Qt::blue));
    EXPECT_EQ(colourAt(picture, 0.594, 0.21), QColor(Qt::red));
}

TEST_F(MetafileReading, AFewBytesDoNotAskForEndlessWork)
{
    Metafile bitmaps = Metafile().window(0, 0, 100, 80);
    Metafile sheets = bitmaps;
    for (int record = 0; record < 100; ++record) // a bitmap of 5000 x 5000 pixels that tells none of them
        bitmaps.add(0x0F43, {0x20, 0xCC, 0, 80, 100, 0, 0, 80, 100, 0, 0, 40, 0, 5000, 0, 5000, 0,
                             1,    8,    1, 0,  0,   0, 0, 0,  0,   0, 1, 0,  0, 0,    0, 0,    0x100});
    for (int record = 0; record < 20000; ++record)
        sheets.add(0x041B, {80, 100, 0, 0});
    EXPECT_EQ(errorOf([&] { decodePicture(bitmaps.bytes(), {640, 480}); }), invalidPicture);
    EXPECT_EQ(errorOf([&] { decodePicture(sheets.bytes(), {640, 480}); }), invalidPicture);
}
