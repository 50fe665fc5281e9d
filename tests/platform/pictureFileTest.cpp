#include "platform/pictureFile.h"

#include "support/files.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

QImage sample(QImage::Format format = QImage::Format_RGB32)
{
    QImage picture(13, 7, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 19, y * 36, (x ^ y) * 16));
    }
    return picture.convertToFormat(format);
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format));
    return buffer.data();
}

/// A bitmap built field by field.
struct Bitmap {
    quint32 headerSize = 40;
    qint32 width = 2;
    qint32 height = 2;
    quint16 bits = 24;
    quint32 compression = 0;
    QByteArray palette = {};
    QByteArray pixels = QByteArray(16, '\x7F');
    quint32 offset = 0; // 0: where the pixels are

    QByteArray bytes() const
    {
        QByteArray file("BM");
        const auto put = [&file](auto value) {
            const auto little = qToLittleEndian(value);
            file.append(reinterpret_cast<const char*>(&little), sizeof little);
        };
        put(quint32(0));
        put(quint32(0));
        put(offset ? offset : quint32(14 + headerSize + palette.size()));
        put(headerSize);
        put(width);
        put(height);
        put(quint16(1));
        put(bits);
        put(compression);
        file.append(14 + headerSize - file.size(), '\0');
        return file + palette + pixels;
    }
};

/// A photo as a phone writes it: taken upright, stored on its side, with a mark that says so.
QByteArray photo(QSize stored)
{
    QImage picture(stored, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < stored.height(); ++y) {
        for (int x = 0; x < stored.width() / 4; ++x)
            picture.setPixelColor(x, y, Qt::red); // the left becomes the top
    }
    const QByteArray turned("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 32);
    QByteArray file = encoded(picture, "JPG");
    return file.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + turned);
}

} // namespace

using PictureFile = Fresh;

TEST_F(PictureFile, ABitmapReadsBackPixelForPixel)
{
    const QByteArray bytes = bitmapBytes(sample());
    EXPECT_EQ(bytes.size(), 54 + 7 * 40) << "24 bits, plain header";
    EXPECT_EQ(decodePicture(bytes).convertToFormat(QImage::Format_RGB32), sample());

    QImage clear(2, 2, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    EXPECT_EQ(decodePicture(bitmapBytes(clear)).pixelColor(1, 1), QColor(Qt::white));
}

TEST_F(PictureFile, GoesByContentAndTellsWhatIsMissing)
{
    const QString path = inTestFolder(u"picture.bmp"_s);
    putFile(path, encoded(sample(), "PNG"));
    EXPECT_EQ(readPicture(path).size(), QSize(13, 7));
    putFile(path, "no picture");
    EXPECT_EQ(errorOf([&] { readPicture(path); }), invalidPicture);
    putFile(path, QByteArray());
    EXPECT_EQ(errorOf([&] { readPicture(path); }), invalidPicture);
    EXPECT_EQ(errorOf([] { readPicture(inTestFolder(u"none"_s)); }), fileNotFound);
    EXPECT_EQ(errorOf([] { readPicture(inTestFolder(u"none/none"_s)); }), pathNotFound);
}

TEST_F(PictureFile, ABitmapCutShortAnywhereIsNone)
{
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono}) {
        const QByteArray whole = encoded(sample(format), "BMP");
        EXPECT_EQ(decodePicture(whole, {1, 1}).size(), QSize(13, 7)) << "thinned out without need";
        for (qsizetype length = 0; length < whole.size(); ++length)
            ASSERT_EQ(errorOf([&] { decodePicture(whole.first(length)); }), invalidPicture) << length;
    }
}

TEST_F(PictureFile, HeadersThatAskForTooMuchAreRefused)
{
    const std::pair<const char*, Bitmap> cases[] = {
        {"huge", {.width = 60000, .height = 60000}},
        {"huge with run lengths", {.width = 60000, .height = 60000, .bits = 8, .compression = 1}},
        {"largest measures", {.width = 0x7FFFFFFF, .height = -0x7FFFFFFF - 1}},
        {"pixels beyond the file", {.offset = 100'000}},
        {"pixels partly beyond it", {.offset = 60}},
        {"no width", {.width = 0}},
        {"negative width", {.width = -2}},
        {"no height", {.height = 0}},
        {"header of 16 bytes", {.headerSize = 16}},
        {"header of no known size", {.headerSize = 41}},
        {"palette missing", {.bits = 8}},
    };
    for (const auto& [name, bitmap] : cases)
        EXPECT_EQ(errorOf([&, picture = &bitmap] { decodePicture(picture->bytes()); }), invalidPicture)
            << name;
    EXPECT_EQ(decodePicture(Bitmap{.height = -2}.bytes()).size(), QSize(2, 2)) << "the top row first";
}

TEST_F(PictureFile, ABitmapTooLargeForMemoryIsThinnedOutWhereThatIsEnough)
{
    QImage map(1000, 700, QImage::Format_RGB32); // 2.7 MB
    map.fill(Qt::green);
    QPainter(&map).fillRect(0, 0, 500, 350, Qt::red);
    const QByteArray bytes = bitmapBytes(map);
    const int usual = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(1);
    EXPECT_EQ(errorOf([&] { decodePicture(bytes); }), invalidPicture);
    const QImage thin = decodePicture(bytes, {300, 200});
    QImageReader::setAllocationLimit(usual);
    EXPECT_EQ(thin.size(), QSize(300, 210));
    EXPECT_EQ(thin.pixelColor(145, 100), QColor(Qt::red));
    EXPECT_EQ(thin.pixelColor(145, 110), QColor(Qt::green));
    EXPECT_EQ(thin.pixelColor(155, 100), QColor(Qt::green));
}

TEST_F(PictureFile, AnEmptyAlphaIsTakenAsOpaque)
{
    // A header of version 4 with masks for blue, green, red and alpha; four pixels whose alpha is 0.
    Bitmap bitmap{.headerSize = 108, .bits = 32, .compression = 3};
    bitmap.pixels = QByteArray("\x10\x20\x30\x00", 4).repeated(4);
    QByteArray bytes = bitmap.bytes();
    const quint32 masks[] = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    bytes.replace(54, sizeof masks, reinterpret_cast<const char*>(masks), sizeof masks);
    EXPECT_EQ(decodePicture(bytes).pixelColor(0, 0), QColor(0x30, 0x20, 0x10));

    bytes[bytes.size() - 1] = '\x80';
    EXPECT_EQ(decodePicture(bytes).pixelColor(0, 0).alpha(), 0) << "one that uses its alpha keeps it";
}

TEST_F(PictureFile, AColourThatThePaletteLacksIsBlack)
{
    Bitmap bitmap{.bits = 8, .palette = QByteArray("\xFF\xFF\xFF\0\x00\x00\xFF\0", 8)};
    bitmap.pixels = QByteArray("\x01\x1A\0\0\x00\xFF\0\0", 8);
    QByteArray bytes = bitmap.bytes();
    bytes[46] = 2; // colours in the palette
    const QImage picture = decodePicture(bytes);
    EXPECT_EQ(picture.pixelColor(0, 1), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::black));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(1, 0), QColor(Qt::black));
}

TEST_F(PictureFile, WhatADamagedFileDoesNotTellIsTheSameEveryTime)
{
    // Run-length data that ends at once sets no pixel; other formats are truncated in the middle.
    QByteArray colours(1024, '\0');
    for (int i = 0; i < 256; ++i)
        colours[4 * i] = char(i); // all different
    const Bitmap ended{.width = 40,
                       .height = 40,
                       .bits = 8,
                       .compression = 1,
                       .palette = colours,
                       .pixels = QByteArray("\x00\x01", 2)};
    QList<QByteArray> files = {ended.bytes()};
    for (const char* format : {"PNG", "JPG", "PPM"}) {
        const QByteArray whole = encoded(sample().scaled(200, 200), format);
        files.append(whole.first(whole.size() / 2));
    }
    for (const QByteArray& file : files) {
        std::vector<QImage> decodings;
        for (const int filling : {0x11, 0xEE}) {
            std::vector<QImage> dirt(20, QImage(40, 40, QImage::Format_ARGB32));
            for (QImage& image : dirt)
                image.fill(uint(filling) * 0x01010101u);
            dirt.clear(); // its pixels stay in memory that is reused next
            ignoringErrors({[&] { decodings.push_back(decodePicture(file)); }});
        }
        if (decodings.size() == 2)
            EXPECT_EQ(decodings[0], decodings[1]) << file.left(8).toStdString();
        else
            EXPECT_TRUE(decodings.empty());
    }
}

TEST_F(PictureFile, APhotoComesUprightAndNoLargerThanNeeded)
{
    struct Case {
        QSize needed, decoded;
    };
    const Case cases[] = {
        {{}, {300, 400}},
        {{60, 40}, {60, 80}}, // covered in the photo's own proportions
        {{10, 80}, {60, 80}},
        {{600, 40}, {300, 400}}, // never larger than it is
    };
    for (const auto& [needed, size] : cases) {
        const QImage upright = decodePicture(photo({400, 300}), needed);
        EXPECT_EQ(upright.size(), size) << needed.width();
        const auto red = [&](int x, int y) { return QColor(upright.pixel(x, y)).green() < 100; };
        EXPECT_TRUE(red(2, 2));
        EXPECT_TRUE(red(size.width() - 2, size.height() / 5));
        EXPECT_FALSE(red(size.width() / 2, size.height() / 3));
    }
}

TEST_F(PictureFile, AHugePhotoIsNotRefusedWhenAFaceOfItIsNeeded)
{
    QImage huge(12000, 9000, QImage::Format_Grayscale8);
    huge.fill(0x60);
    EXPECT_EQ(decodePicture(encoded(huge, "JPG"), {318, 240}).size(), QSize(320, 240));
}

TEST_F(PictureFile, ADrawingThatCouldReadOtherFilesIsNone)
{
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    EXPECT_EQ(errorOf([&] { decodePicture(drawing); }), invalidPicture);
}
