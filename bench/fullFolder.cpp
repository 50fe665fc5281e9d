#include "fullFolder.h"

#include "controls/forms.h"
#include "core/session.h"
#include "database/loading.h"
#include "platform/desktop.h"
#include "platform/realDesktop.h"
#include "window/Form1.h"
#include "window/assembly.h"
#include "window/startValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cstdlib>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The benchmark's folder can't be written");
}

/// All rows differ, so that no shortcut is measured.
QImage busyPicture(int card)
{
    QImage picture(159, 120, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * card, y * 2, (x ^ y) + card));
    }
    return picture;
}

QString nameOf(int card) { return u"CARD%1"_s.arg(card, 4, 10, '0'_L1); }

void fill(const QString& folder)
{
    writeBytes(folder + u"/db-info.tdb"_s,
               " 3 \r\n 1 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\n\"Legs\"\r\n\"123\"\r\nFalse\r\n"
               "\"Home\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    for (int card = 1; card <= fullDatabase; ++card) {
        const QString record = u"\"00000000\"\r\n\"Monster %1\"\r\n\"%1\"\r\n\"Cave\"\r\n"_s.arg(card);
        writeBytes(recordOf(card), record.toLatin1());
        if (!busyPicture(card).save(pictureOf(card)))
            qFatal("The benchmark's pictures can't be written");
    }
}

} // namespace

QString recordOf(int card) { return fullFolder() + u'/' + nameOf(card) + u".tcd"_s; }
QString pictureOf(int card) { return fullFolder() + u'/' + nameOf(card) + u".bmp"_s; }

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
                                       QEvent::DeferredDelete); // no event loop is running
    installDesktop();
    desktop.files.programFolder = [] { return settings.path(); };
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString& text) {
        std::cerr << text.toStdString() << '\n';
        std::abort();
    };
    session = {};
    forgetLoadedFaces();
    connectHooks();
    Form1& window = form<Form1>();
    setStartValues();
    window.resize(1280, 800);
    window.show();
}

double residentMegabytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}
