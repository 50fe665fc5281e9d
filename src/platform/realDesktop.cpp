#include "platform/realDesktop.h"

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/motion.h"
#include "platform/mounts.h"
#include "platform/owningWindow.h"
#include "platform/picture.h"
#include "platform/pictureChooser.h"
#include "platform/printers.h"
#include "platform/readOnlyChooser.h"
#include "platform/roundPace.h"
#include "platform/soundDevices.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

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

/// Shows a box with the text as it is, mark-up characters included, and returns the button that closed it.
int runBox(QMessageBox::Icon icon, const QString& title, const QString& text,
           QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, title, text, buttons, owningWindow());
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

QColor chooseColour(const QString& title, const QColor& present)
{
    QColorDialog dialog(present, owningWindow());
    dialog.setWindowTitle(title);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedColor() : QColor();
}

QString chooseFolder(const QString& caption, const QString& startFolder)
{
    QFileDialog dialog(owningWindow(), caption.section(u'\n', 0, 0), startFolder);
    if (const QString instruction = caption.section(u'\n', 1); !instruction.isEmpty())
        dialog.setLabelText(QFileDialog::LookIn, instruction);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosenIn(dialog);
}

QString chooseFile(const QString& caption, const QString& startFolder, const QString& filter)
{
    QFileDialog dialog(owningWindow(), caption, startFolder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosenIn(dialog);
}

QString ownFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder;
}

QString chooseNewFile(const QString& caption, const QString& suggestedPath, const QString& filter)
{
    QFileDialog dialog(owningWindow(), caption, {}, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(suggestedPath).suffix());
    dialog.setDirectory(QFileInfo(suggestedPath).path());
    dialog.selectFile(QFileInfo(suggestedPath).fileName());
    return chosenIn(dialog);
}

void letARoundPass()
{
    static RoundPace pace;
    QCoreApplication::processEvents();
    const auto ahead = pace.sleepAfterRound(RoundPace::Clock::now());
    if (ahead.count() > 0)
        std::this_thread::sleep_for(ahead);
}

/// The desktop's answer is awaited: a document that it has no program for would be dropped in silence.
/// Without an answer it is taken to have one.
bool hasProgramFor(const QString& path)
{
    constexpr int patience = 3000; // ms
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, QMimeDatabase().mimeTypeForFile(path).name()});
    return !query.waitForFinished(patience) || query.exitCode() != 0 || !query.readAll().trimmed().isEmpty();
}

void openDocument(const QString& path)
{
    if (!QFileInfo::exists(path))
        throw RuntimeError(fileNotFound);
    if (!hasProgramFor(path) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        throw RuntimeError(fileNotFound, u"Sorry! This computer has no program to show \"%1\"."_s.arg(
                                             QFileInfo(path).fileName()));
}

void openLink(const QString& address)
{
    if (!QDesktopServices::openUrl(QUrl(address)))
        throw RuntimeError(fileNotFound);
}

void startProgram(const QString& path, const QStringList& arguments)
{
    if (!QProcess::startDetached(path, arguments))
        throw RuntimeError(fileNotFound);
}

void startCommand(const QString& commandLine)
{
    QStringList words = QProcess::splitCommand(commandLine);
    if (words.isEmpty())
        throw RuntimeError(fileNotFound);
    const QString program = words.takeFirst();
    startProgram(program, words);
}

void setBusyPointer(bool busy)
{
    static bool shown = false;
    if (busy && !shown)
        QGuiApplication::setOverrideCursor(QCursor(picture(u"sand"_s, {32, 32}), 16, 16));
    else if (!busy && shown)
        QGuiApplication::restoreOverrideCursor();
    shown = busy;
}

double twipsPerPixel(double dotsPerInch) { return dotsPerInch > 0 ? twipsPerInch / dotsPerInch : 15; }

} // namespace

void installDesktop()
{
    desktop.boxes.showMessage = showMessage;
    desktop.boxes.ask = ask;
    desktop.boxes.chooseColour = chooseColour;

    desktop.files.chooseFolder = chooseFolder;
    desktop.files.chooseFile = chooseFile;
    desktop.files.chooseNewFile = chooseNewFile;
    desktop.files.choosePicture = choosePictureFile;
    desktop.files.programFolder = [] { return QCoreApplication::applicationDirPath(); };
    desktop.files.documentsFolder = [] {
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    };
    desktop.files.ownFolder = ownFolder;
    desktop.files.desktopFolder = [] {
        return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    };
    desktop.files.volumes = drivesOfComputer;

    desktop.sound.beep = [] { QApplication::beep(); };
    desktop.sound.play = soundDevices::play;
    desktop.sound.playBack = soundDevices::playBack;
    desktop.sound.record = soundDevices::record;
    desktop.sound.pause = soundDevices::pause;
    desktop.sound.stop = soundDevices::stop;
    desktop.sound.takeRecording = soundDevices::takeRecording;
    desktop.sound.progress = soundDevices::progress;

    desktop.paper.printerNames = printerNames;
    desktop.paper.defaultPrinterName = defaultPrinterName;
    desktop.paper.askPrinter = askPrinter;
    desktop.paper.print = printOn;

    desktop.clipboard.clear = [] { QGuiApplication::clipboard()->clear(); };
    desktop.clipboard.copyText = [](const QString& text) { QGuiApplication::clipboard()->setText(text); };
    desktop.clipboard.copyPicture = [](const QImage& image) {
        QGuiApplication::clipboard()->setImage(image);
    };

    desktop.programs.openDocument = openDocument;
    desktop.programs.openLink = openLink;
    desktop.programs.start = startProgram;
    desktop.programs.startCommand = startCommand;

    desktop.screen.setBusyPointer = setBusyPointer;
    desktop.screen.reducedMotion = desktopWantsLessMotion;
    desktop.screen.pixelRatio = [] { return qGuiApp->devicePixelRatio(); };
    desktop.screen.size = [] { return QGuiApplication::primaryScreen()->size(); };
    desktop.screen.twipsPerPixelX = [] {
        return twipsPerPixel(QGuiApplication::primaryScreen()->logicalDotsPerInchX());
    };
    desktop.screen.twipsPerPixelY = [] {
        return twipsPerPixel(QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    };

    desktop.runProgram = [] { return QApplication::exec(); };
    desktop.endProgram = [] { QApplication::exit(); };
    desktop.yield = letARoundPass;
    desktop.waitForEvents = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); };
    desktop.random = [] { return QRandomGenerator::global()->generateDouble(); };
    desktop.now = [] { return QDateTime::currentDateTime(); };
}
