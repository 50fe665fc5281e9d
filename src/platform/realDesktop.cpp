#include "platform/realDesktop.h"

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/mounts.h"
#include "platform/picture.h"
#include "platform/wavePlayer.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include <future>
#include <utility>

namespace {

constexpr double twipsPerInch = 1440;

QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::stop:
        return QMessageBox::Critical;
    case MessageIcon::exclamation:
        return QMessageBox::Warning;
    case MessageIcon::information:
        return QMessageBox::Information;
    case MessageIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

/// Shows a box with the plain text, whatever signs are in it, and returns the button that closed it.
int runBox(QMessageBox::Icon icon, const QString& title, const QString& text,
           QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, title, text, buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    return box.exec();
}

void showMessage(MessageIcon icon, const QString& title, const QString& text)
{
    runBox(boxIcon(icon), title, text, QMessageBox::Ok);
}

bool ask(const QString& title, const QString& text)
{
    return runBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QString chosenIn(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString chooseFolder(const QString& caption, const QString& startFolder)
{
    QFileDialog dialog(QApplication::activeWindow(), caption, startFolder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosenIn(dialog);
}

QString chooseFile(const QString& caption, const QString& startFolder, const QString& filter)
{
    QFileDialog dialog(QApplication::activeWindow(), caption, startFolder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosenIn(dialog);
}

// What askForPrintersEarly() asked for; each answer is given once.
std::shared_future<QStringList> earlyNames;
std::future<QString> earlyDefault;

QStringList printerNames()
{
    const auto asked = std::exchange(earlyNames, {});
    return asked.valid() ? asked.get() : QPrinterInfo::availablePrinterNames();
}

QString defaultPrinterName()
{
    return earlyDefault.valid() ? earlyDefault.get() : QPrinterInfo::defaultPrinterName();
}

void openDocument(const QString& path)
{
    if (!QFileInfo::exists(path) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        throw RuntimeError(fileNotFound);
}

void startProgram(const QString& path, const QStringList& arguments)
{
    if (!QProcess::startDetached(path, arguments))
        throw RuntimeError(fileNotFound);
}

void setBusyPointer(bool busy)
{
    static bool shown = false;
    if (busy && !shown)
        QGuiApplication::setOverrideCursor(QCursor(picture(QStringLiteral("sand"), {32, 32}), 16, 16));
    else if (!busy && shown)
        QGuiApplication::restoreOverrideCursor();
    shown = busy;
}

double twipsPerPixel(double dotsPerInch) { return dotsPerInch > 0 ? twipsPerInch / dotsPerInch : 15; }

} // namespace

void installDesktop()
{
    desktop.beep = [] { QApplication::beep(); };
    desktop.showMessage = showMessage;
    desktop.ask = ask;
    desktop.chooseFolder = chooseFolder;
    desktop.chooseFile = chooseFile;

    desktop.yield = [] { QCoreApplication::processEvents(); };
    desktop.waitForEvents = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); };
    desktop.random = [] { return QRandomGenerator::global()->generateDouble(); };
    desktop.today = [] { return QDate::currentDate(); };

    desktop.openDocument = openDocument;
    desktop.startProgram = startProgram;
    desktop.playSound = playWaveFile;

    desktop.clearClipboard = [] { QGuiApplication::clipboard()->clear(); };
    desktop.copyText = [](const QString& text) { QGuiApplication::clipboard()->setText(text); };
    desktop.copyPicture = [](const QImage& image) { QGuiApplication::clipboard()->setImage(image); };

    desktop.printerNames = printerNames;
    desktop.defaultPrinterName = defaultPrinterName;

    desktop.setBusyPointer = setBusyPointer;
    desktop.pixelRatio = [] { return qGuiApp->devicePixelRatio(); };
    desktop.screenSize = [] { return QGuiApplication::primaryScreen()->size(); };
    desktop.twipsPerPixelX = [] {
        return twipsPerPixel(QGuiApplication::primaryScreen()->logicalDotsPerInchX());
    };
    desktop.twipsPerPixelY = [] {
        return twipsPerPixel(QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    };

    desktop.programFolder = [] { return QCoreApplication::applicationDirPath(); };
    desktop.documentsFolder = [] {
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    };
    desktop.volumes = drivesOfComputer;
}

void askForPrintersEarly()
{
    earlyNames = std::async(std::launch::async, [] { return QPrinterInfo::availablePrinterNames(); });
    earlyDefault = std::async(std::launch::async, [names = earlyNames] {
        names.wait(); // the printing system is asked by one thread at a time
        return QPrinterInfo::defaultPrinterName();
    });
}
