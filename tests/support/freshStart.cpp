#include "support/freshStart.h"

#include "board/refresh.h"
#include "core/screen.h"
#include "core/session.h"
#include "platform/forms.h"
#include "store/loading.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QTimer>

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

QString chosenOrNone()
{
    if (recorded.chosen.empty())
        ADD_FAILURE() << "an unexpected chooser";
    return nextOf(recorded.chosen, QString());
}

Desktop recordingDesktop()
{
    Desktop d;
    d.beep = [] { ++recorded.beeps; };
    d.showMessage = [](MessageIcon, const QString& title, const QString& text) {
        recorded.messages.append(title + QLatin1Char('|') + text);
    };
    d.ask = [](const QString& title, const QString& text) {
        if (recorded.answers.empty())
            ADD_FAILURE() << "an unexpected question: " << text.toStdString();
        recorded.messages.append(title + QLatin1Char('|') + text);
        return nextOf(recorded.answers, false);
    };
    d.chooseFolder = [](const QString&, const QString&) { return chosenOrNone(); };
    d.chooseFile = [](const QString&, const QString&, const QString&) { return chosenOrNone(); };
    d.yield = [] {
        ++recorded.rounds;
        if (recorded.inYield)
            recorded.inYield(recorded.rounds);
    };
    d.waitForEvents = d.yield;
    d.random = [] { return nextOf(recorded.randoms, 0.5); };
    d.today = [] { return QDate(2026, 3, 9); };
    d.openDocument = [](const QString& path) { recorded.started.append(path); };
    d.startProgram = [](const QString& path, const QStringList& arguments) {
        recorded.started.append((QStringList(path) + arguments).join(QLatin1Char(' ')));
    };
    d.playSound = [](const QString& path) { recorded.played.append(path); };
    d.clearClipboard = [] {};
    d.copyText = [](const QString&) {};
    d.copyPicture = [](const QImage&) {};
    d.printerNames = [] { return QStringList(); };
    d.defaultPrinterName = [] { return QString(); };
    d.setBusyPointer = [](bool) {};
    d.screenSize = [] { return QSize(1280, 800); };
    d.twipsPerPixelX = [] { return 15.0; };
    d.twipsPerPixelY = [] { return 15.0; };
    d.pixelRatio = [] { return 1.0; };
    d.programFolder = [] { return testFolder().chopped(1); };
    d.documentsFolder = []() -> QString { return testFolder() + QStringLiteral("Documents"); };
    d.volumes = [] { return QList<Volume>(); };
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
    step(dialog);
    dialog.hide();
}

} // namespace

void freshStart()
{
    unloadAllForms();
    session = {};
    screen = blankScreen();
    recorded = {};
    forgetLoadedFaces();
    refreshTimer().stop();
    refreshTimer().setInterval(2000);
    folder = std::make_unique<QTemporaryDir>();
    desktop = recordingDesktop();
    modalLoop = answerPrepared;
    session.boardWidth = 1000;
    session.boardHeight = 700;
    screen.redrawCard = [](int card) { recorded.redrawnCards.push_back(card); };
    screen.measureLabel = [](const QString& text, double& width, double& height) {
        width = 8.0 * double(text.size());
        height = 16;
    };
    resetFieldTable();
}

QString testFolder() { return folder->path() + QLatin1Char('/'); }

Fresh::~Fresh()
{
    EXPECT_TRUE(recorded.dialogSteps.empty()) << "fewer dialogs came than were expected";
    unloadAllForms();
}
