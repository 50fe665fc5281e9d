#include "fullFolder.h"

#include "core/Form1.h"
#include "core/session.h"
#include "core/startValues.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/realDesktop.h"
#include "store/loading.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cstdlib>
#include <iostream>

namespace {

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The benchmark's folder can't be written");
}

/// No row is like another, so that nothing gets off lightly.
QImage busyPicture(int card)
{
    QImage picture(159, 120, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * card, y * 2, (x ^ y) + card));
    }
    return picture;
}

QString nameOf(int card) { return QStringLiteral("CARD%1").arg(card, 4, 10, QLatin1Char('0')); }

void fill(const QString& folder)
{
    writeBytes(folder + QStringLiteral("/db-info.tdb"),
               " 3 \r\n 1 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\n\"Legs\"\r\n\"123\"\r\nFalse\r\n"
               "\"Home\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    for (int card = 1; card <= fullDatabase; ++card) {
        const QString record =
            QStringLiteral("\"00000000\"\r\n\"Monster %1\"\r\n\"%1\"\r\n\"Cave\"\r\n").arg(card);
        writeBytes(recordOf(card), record.toLatin1());
        if (!busyPicture(card).save(pictureOf(card)))
            qFatal("The benchmark's pictures can't be written");
    }
}

} // namespace

QString recordOf(int card) { return fullFolder() + QLatin1Char('/') + nameOf(card) + QStringLiteral(".tcd"); }
QString pictureOf(int card)
{
    return fullFolder() + QLatin1Char('/') + nameOf(card) + QStringLiteral(".bmp");
}

QString fullFolder()
{
    static const QTemporaryDir place;
    static bool filled = false;
    if (!filled) {
        filled = true;
        fill(place.path());
    }
    return place.path();
}

void startFresh()
{
    static const QTemporaryDir settings;
    unloadAllForms();
    QCoreApplication::sendPostedEvents(nullptr,
                                       QEvent::DeferredDelete); // there is no event loop to come round
    installDesktop();
    desktop.programFolder = [] { return settings.path(); };
    desktop.showMessage = [](MessageIcon, const QString&, const QString& text) {
        std::cerr << text.toStdString() << '\n';
        std::abort();
    };
    session = {};
    forgetLoadedFaces();
    Form1& window = form<Form1>();
    setStartValues();
    window.resize(1280, 800);
    window.show();
}

double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}
