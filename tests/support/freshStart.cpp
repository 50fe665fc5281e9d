#include "support/freshStart.h"

#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/loading.h"
#include "database/refresh.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QPointer>
#include <QTimer>

using namespace Qt::StringLiterals;

Recorded recorded;

namespace {

std::unique_ptr<QTemporaryDir> folder;

template <class T>
T nextOf(std::deque<T>& prepared, T otherwise)
{
    if (prepared.empty())
        return otherwise;
    const T value = prepared.front();
    prepared.pop_front();
    return value;
}

void become(SoundActivity activity) { recorded.soundProgress.activity = activity; }

QString chosenOrNone()
{
    if (recorded.chosen.empty())
        ADD_FAILURE() << "an unexpected chooser";
    return nextOf(recorded.chosen, QString());
}

Desktop recordingDesktop()
{
    Desktop d;
    d.boxes.showMessage = [](MessageIcon, const QString& title, const QString& text) {
        recorded.messages.append(title + u'|' + text);
    };
    d.boxes.ask = [](const QString& title, const QString& text) {
        if (recorded.answers.empty())
            ADD_FAILURE() << "an unexpected question: " << text.toStdString();
        recorded.messages.append(title + u'|' + text);
        return nextOf(recorded.answers, false);
    };
    d.boxes.chooseColour = [](const QString&, const QColor&) { return QColor(chosenOrNone()); };
    d.files.chooseFolder = [](const QString&, const QString&) { return chosenOrNone(); };
    d.files.chooseFile = [](const QString&, const QString&, const QString&) { return chosenOrNone(); };
    d.files.choosePicture = d.files.chooseFile;
    d.files.chooseNewFile = d.files.chooseFile;
    d.files.programFolder = [] { return testFolder().chopped(1); };
    d.files.documentsFolder = []() -> QString { return testFolder() + u"Documents"_s; };
    d.files.desktopFolder = [] { return testFolder() + u"Desktop"_s; };
    d.files.ownFolder = [] {
        QDir().mkpath(testFolder() + u"Own"_s);
        return testFolder() + u"Own"_s;
    };
    d.files.volumes = [] { return QList<Volume>(); };
    d.sound.beep = [] { ++recorded.beeps; };
    d.sound.play = [](const QString& path) { recorded.played.append(path); };
    d.sound.playBack = [](const QByteArray&) { become(SoundActivity::playing); };
    d.sound.record = [] {
        become(SoundActivity::recording);
        return true;
    };
    d.sound.pause = [](bool) {};
    d.sound.stop = [] { become(SoundActivity::none); };
    d.sound.takeRecording = [] {
        const bool records = recorded.soundProgress.activity == SoundActivity::recording;
        become(SoundActivity::none);
        return records ? recorded.recording : QByteArray();
    };
    d.sound.progress = [] { return recorded.soundProgress; };
    d.paper.printerNames = [] { return QStringList(); };
    d.paper.defaultPrinterName = [] { return QString(); };
    d.paper.askPrinter = [](const QString& printer) { return PrinterAnswer{!printer.isEmpty(), {}}; };
    d.paper.print = [](const QString& printer, const QString& title, const QByteArray& pdf) {
        recorded.printed.append(printer + u'|' + title);
        recorded.pdf = pdf;
        return true;
    };
    d.clipboard.clear = [] {};
    d.clipboard.copyText = [](const QString&) {};
    d.clipboard.copyPicture = [](const QImage&) {};
    d.programs.openDocument = [](const QString& path) { recorded.started.append(path); };
    d.programs.openLink = d.programs.openDocument;
    d.programs.start = [](const QString& path, const QStringList& arguments) {
        recorded.started.append((QStringList(path) + arguments).join(u' '));
    };
    d.programs.startCommand = [](const QString& commandLine) { recorded.started.append(commandLine); };
    d.screen.setBusyPointer = [](bool busy) { recorded.busy = busy; };
    d.screen.reducedMotion = [] { return false; };
    d.screen.size = [] { return QSize(1280, 800); };
    d.screen.twipsPerPixelX = [] { return 15.0; };
    d.screen.twipsPerPixelY = [] { return 15.0; };
    d.screen.pixelRatio = [] { return 1.0; };
    d.yield = [] {
        ++recorded.rounds;
        if (recorded.inYield)
            recorded.inYield(recorded.rounds);
    };
    d.waitForEvents = d.yield;
    d.runProgram = [] { return 0; };
    d.endProgram = [] { ++recorded.ends; };
    d.random = [] { return nextOf(recorded.randoms, 0.5); };
    d.now = [] { return QDateTime({2026, 3, 9}, {10, 30, 5}); };
    return d;
}

void answerPrepared(QDialog& dialog)
{
    if (recorded.dialogSteps.empty()) {
        ADD_FAILURE() << "an unexpected dialog: " << dialog.windowTitle().toStdString();
        return;
    }
    const auto step = recorded.dialogSteps.front();
    recorded.dialogSteps.pop_front();
    dialog.show();
    QCoreApplication::processEvents();
    const QPointer<QDialog> shown(&dialog); // the step may run the events that delete it
    step(dialog);
    if (shown)
        shown->hide();
}

} // namespace

void freshStart()
{
    unloadAllForms();
    session = {};
    mainView = blankMainView();
    recorded = {};
    forgetLoadedFaces();
    delete &refreshTimer(); // the next one has its usual interval
    folder = std::make_unique<QTemporaryDir>();
    desktop = recordingDesktop();
    modalLoop = answerPrepared;
    session.board.width = 1000;
    session.board.height = 700;
    mainView.redrawCard = [](int card) { recorded.redrawnCards.push_back(card); };
    mainView.measureLabel = [](const QString& text, double& width, double& height) {
        width = 8.0 * double(text.size());
        height = 16;
    };
    resetFieldTable();
}

QString testFolder() { return folder->path() + u'/'; }

Fresh::~Fresh()
{
    EXPECT_TRUE(recorded.dialogSteps.empty()) << "fewer dialogs came than were expected";
    unloadAllForms();
}
