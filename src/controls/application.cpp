#include "controls/application.h"

#include "platform/displayScale.h"
#include "platform/picture.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QScreen>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// None where the desktop scales by itself.
QList<QSize> screensToFill()
{
    QList<QSize> sizes;
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR") || qApp->devicePixelRatio() != 1)
        return sizes;
    for (const QScreen* screen : QGuiApplication::screens())
        sizes.append(screen->size());
    return sizes;
}

} // namespace

std::unique_ptr<QApplication> makeApplication(int& count, char** arguments,
                                              const std::function<QString()>& chosenScale)
{
    static int firstCount;          // it and the copy live as long as a QApplication may
    static std::vector<char*> copy; // the first QApplication takes some away
    firstCount = count;
    copy.assign(arguments, arguments + count + 1);
    auto application = std::make_unique<QApplication>(firstCount, copy.data());
    if (const double scale = displayScale(screensToFill(), chosenScale()); scale != 1) {
        application.reset();
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale)); // which the next one reads
        application = std::make_unique<QApplication>(count, arguments);
        qunsetenv("QT_SCALE_FACTOR"); // not for the programs that this one starts
    }
    return application;
}

void dressApplication()
{
    QApplication::setApplicationName(u"tallymoor"_s);
    QApplication::setWindowIcon(QIcon(picturePath(u"tallymoor"_s)));
    QApplication::setStyle(u"Fusion"_s);
    QFile sheet(u":/tallymoor.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}
