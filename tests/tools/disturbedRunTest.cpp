// Disturbed runs: while a card flies, the pupil uses the rest of the program at random. Each seed is another
// pupil; a failure prints what that pupil did.
#include "tools/FrmSpeed.h"

#include "board/boardWidget.h"
#include "board/hand.h"
#include "controls/chartView.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "core/session.h"
#include "database/opening.h"
#include "database/refresh.h"
#include "support/files.h"
#include "tools/bin.h"
#include "tools/findForm.h"
#include "window/Form1.h"
#include "window/assembly.h"
#include "window/dispatch.h"
#include "window/shutDown.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>

#include <cmath>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int seeds = 300;
constexpr int mostActions = 6;           // of one pupil
constexpr int roundsBetweenActions = 40; // on average
constexpr int roundsBetweenEvents = 16;
constexpr int mostRounds = 30000; // a run with all its disturbances needs far fewer
constexpr double farthest = 5000; // pixels; no tool moves a card as far from the board

/// A database of strips, which need no pictures: a text and a number for each card.
QString writeStrips(const QString& name, int cards)
{
    const QString folder = inTestFolder(name);
    QDir().mkpath(folder);
    putFile(folder + u"/db-info.tdb"_s,
            " 2 \r\n 2 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\n\"Legs\"\r\n\"123\"\r\nFalse\r\nRW\r\n"
            "VER=\"1.1.0\"\r\n");
    for (int card = 1; card <= cards; ++card)
        putFile(folder + u"/CARD%1.tcd"_s.arg(card, 4, 10, '0'_L1),
                u"\"01000200\"\r\n\"%1\"\r\n\"%2\"\r\n"_s.arg(QChar(char16_t(u'a' + card % 3)))
                    .arg(card % 4)
                    .toLatin1());
    return folder;
}

class Pupil {
public:
    explicit Pupil(unsigned seed);

    /// Runs one of the tools to the end.
    void useATool();

    void expectADefinedState() const;

    struct Action {
        const char* name;
        void (*take)(Pupil&);
    };
    static const std::vector<Action> actions;
    static std::map<QString, int> timesDone; // by all pupils

private:
    int upTo(int end) { return int(chance() % unsigned(end)); }
    bool oneIn(int many) { return upTo(many) == 0; }
    QPointF somewhere() { return {double(upTo(640)), double(40 + upTo(360))}; }
    int someCard() { return oneIn(2) || session.numCards == 0 ? flying : 1 + upTo(session.numCards); }

    void round();
    void wait();
    void act();
    void answer(QDialog& dialog);
    void fillIn(QDialog& dialog);
    void mouse(QEvent::Type type, QPointF point);

    void dragACard();
    void pressACard();
    void moveTheMouse();
    void letGo();

    std::mt19937 chance;
    QStringList folders;
    QStringList done;
    int rounds = 0;
    int actionsLeft = mostActions;
    int flying = 1;
    qsizetype messagesAtEnd = -1; // when the window was closed
};

std::map<QString, int> Pupil::timesDone;

const std::vector<Pupil::Action> Pupil::actions = {
    {"menu",
     [](Pupil& p) {
         openMenu(p.upTo(lastHeading + 1));
         dispatchLine(p.upTo(session.menu.menuLastItem[session.menu.openMenuIndex] + 1));
     }},
    {"drag", [](Pupil& p) { p.dragACard(); }},
    {"press", [](Pupil& p) { p.pressACard(); }},
    {"move", [](Pupil& p) { p.moveTheMouse(); }},
    {"let go", [](Pupil& p) { p.letGo(); }},
    {"another tool", [](Pupil& p) { p.useATool(); }},
    {"another database", [](Pupil& p) { openChosenFolder(p.folders[p.upTo(int(p.folders.size()))]); }},
    {"close",
     [](Pupil& p) {
         form<Form1>().close();
         p.messagesAtEnd = recorded.messages.size();
     }},
    {"delete", [](Pupil& p) { deleteCard(session.cardId[p.flying]); }},
    {"bin",
     [](Pupil& p) {
         session.board.BigBin.visible = true;
         dropOnBin(p.flying);
     }},
    {"refresh",
     [](Pupil& p) {
         // Another workstation has added a card, which comes first.
         putFile(session.dbPath + u"/AAAA%1.tcd"_s.arg(p.rounds % 10000, 4, 10, '0'_L1),
                 "\"03000100\"\r\n\"b\"\r\n\"1\"\r\n");
         setRefresh(u"On"_s);
         refreshTimer().setInterval(1); // from now on ticks arrive with the events
     }},
    {"pace",
     [](Pupil& p) {
         if (!isLoaded<FrmSpeed>())
             return;
         auto& speed = form<FrmSpeed>();
         speed.findChild<QSlider*>()->setValue(7 + p.upTo(3));
         if (auto* button = speed.findChild<QPushButton*>(u"BtnPause"_s); button->isVisible())
             button->click();
     }},
    {"stop",
     [](Pupil& p) {
         if (isLoaded<FrmSpeed>())
             p.oneIn(2) ? form<FrmSpeed>().reject() : void(form<FrmSpeed>().close());
     }},
    {"mode", [](Pupil& p) { (p.oneIn(2) ? form<Form1>().btnTable : form<Form1>().btnCards)->click(); }},
    {"resize", [](Pupil& p) { form<Form1>().resize(640 + p.upTo(300), 400 + p.upTo(200)); }},
    {"editor", [](Pupil& p) { openInEditor(p.someCard()); }},
    {"graph", [](Pupil&) { runCommand(u"Make Graph..."_s); }},
    {"statistics", [](Pupil&) { runCommand(u"Statistics..."_s); }},
    {"report", [](Pupil&) { runCommand(u"Report..."_s); }},
    {"copy graph",
     [](Pupil&) { // a graph that was made in mid-flight is copied there as well
         runCommand(u"Make Graph..."_s);
         if (isLoaded<Form1>() && form<Form1>().cmdCopyGraph->isVisible()) {
             EXPECT_TRUE(form<Form1>().MSChart->isVisible());
             form<Form1>().cmdCopyGraph->click();
         }
     }},
};

Pupil::Pupil(unsigned seed)
    : chance(seed)
{
    connectHooks();
    auto& window = form<Form1>();
    window.resize(640, 400);
    window.show();
    fillMenuTables();
    folders = {writeStrips(u"five"_s, 5), writeStrips(u"two"_s, 2), writeStrips(u"none"_s, 0),
               writeStrips(u"nine"_s, 9)};
    openChosenFolder(folders[0]);

    desktop.yield = [this] { round(); };
    desktop.waitForEvents = [this] { wait(); };
    desktop.boxes.ask = [this](const QString&, const QString&) { return oneIn(2); };
    desktop.files.chooseFile = [](const QString&, const QString&, const QString&) { return QString(); };
    desktop.files.choosePicture = desktop.files.chooseFile;
    desktop.files.chooseNewFile = desktop.files.chooseFile;
    desktop.files.chooseFolder = [](const QString&, const QString&) { return QString(); };
    modalLoop = [this](QDialog& dialog) { answer(dialog); };
    mainView.redrawCard = [this, redraw = mainView.redrawCard](int card) {
        flying = card;
        redraw(card);
    };
    mainView.showSpeedWindow = [show = mainView.showSpeedWindow] {
        show();
        form<FrmSpeed>().findChild<QSlider*>()->setValue(9);
    };
}

void Pupil::useATool()
{
    const char* const words[] = {"Sort...", "Group...", "Find...", "Find...", "Arrange Cards..."};
    runCommand(QLatin1String(words[upTo(std::size(words))]));
}

void Pupil::round()
{
    if (++rounds > mostRounds)
        shutDown();
    if (rounds % roundsBetweenEvents == 0)
        QCoreApplication::processEvents();
    if (oneIn(roundsBetweenActions))
        act();
}

/// A pupil who has paused the run acts sooner or later, and resumes it in the end.
void Pupil::wait()
{
    round();
    if (oneIn(8) && isLoaded<FrmSpeed>())
        form<FrmSpeed>().findChild<QPushButton*>(u"BtnResume"_s)->click();
}

void Pupil::act()
{
    if (actionsLeft == 0 || !isLoaded<Form1>())
        return;
    --actionsLeft;
    const Action& action = actions[upTo(int(actions.size()))];
    done.append(QLatin1String(action.name));
    ++timesDone[done.back()];
    action.take(*this);
}

void Pupil::answer(QDialog& dialog)
{
    dialog.show();
    fillIn(dialog);
    if (auto* equals = dialog.findChild<QPushButton*>(u"equalsBut"_s)) // of the statistics
        equals->click();
    const bool agrees = !oneIn(5);
    auto* next = dialog.findChild<QPushButton*>(u"nextBut"_s); // of the graph wizard
    while (agrees && next && next->isEnabled())
        next->click();
    for (const char* name : agrees ? std::array{"ok_but", next ? "OKbut" : "YesBut"}
                                   : std::array{"cancel_but", next ? "Btncancel" : "NoBut"}) {
        if (auto* button = dialog.findChild<QPushButton*>(QLatin1String(name)))
            button->click();
    }
    if (dialog.isVisible())
        dialog.reject();
}

void Pupil::fillIn(QDialog& dialog)
{
    for (auto* box : dialog.findChildren<QComboBox*>()) {
        if (box->count() > 0)
            box->setCurrentIndex(upTo(box->count()));
    }
    const char* const values[] = {"", "a", "2"};
    for (auto* edit : dialog.findChildren<QLineEdit*>())
        edit->setText(QLatin1String(values[upTo(std::size(values))]));
    if (auto* venn = dialog.findChild<QCheckBox*>(u"vennTick"_s))
        venn->setChecked(oneIn(2));
}

void Pupil::mouse(QEvent::Type type, QPointF point)
{
    if (!isLoaded<Form1>())
        return;
    const bool pressed = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, point, point, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      pressed ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(form<Form1>().board, &event);
}

void Pupil::dragACard()
{
    pressACard();
    moveTheMouse();
    letGo();
}

void Pupil::pressACard()
{
    const CardImage& card = session.box[someCard()];
    mouse(QEvent::MouseButtonPress, {card.left + card.width / 2, card.top + card.height / 2});
}

void Pupil::moveTheMouse() { mouse(QEvent::MouseMove, somewhere()); }
void Pupil::letGo() { mouse(QEvent::MouseButtonRelease, somewhere()); }
/// The run is over, its windows are closed, and the cards are on or near the board.
void Pupil::expectADefinedState() const
{
    const std::string did = done.join(u", "_s).toStdString();
    const bool closed = !isLoaded<Form1>();
    EXPECT_LE(rounds, mostRounds) << "no end after " << did;
    const QString emptyGraph = u"Error|You need to have values in the fields to make graphs."_s;
    const QString emptySort = u"Error|Division by zero"_s; // leaves the speed window on purpose
    for (const QString& message : recorded.messages)
        EXPECT_TRUE(message == emptySort || message == emptyGraph || !message.startsWith("Error"_L1))
            << message.toStdString() << " after " << did;
    EXPECT_TRUE(!isLoaded<FrmSpeed>() || (!closed && recorded.messages.contains(emptySort))) << did;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const bool mayStay =
            (!closed && window == &form<Form1>()) || qobject_cast<const FrmSpeed*>(window) != nullptr;
        EXPECT_TRUE(!window->isVisible() || window->windowType() == Qt::ToolTip || mayStay)
            << window->objectName().toStdString() << " after " << did;
    }
    EXPECT_TRUE(messagesAtEnd < 0 || recorded.messages.size() == messagesAtEnd)
        << "said after the end: " << did;
    for (int card = 1; card <= session.numCards; ++card)
        EXPECT_TRUE(std::abs(session.box[card].left) < farthest && std::abs(session.box[card].top) < farthest)
            << card << " after " << did;
}

} // namespace

TEST(DisturbedRuns, EndInADefinedStateWhateverThePupilDoesMeanwhile)
{
    for (unsigned seed = 1; seed <= seeds && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        freshStart();
        Pupil pupil(seed);
        pupil.useATool();
        pupil.expectADefinedState();
        unloadAllForms();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    freshStart();
    EXPECT_EQ(Pupil::timesDone.size(), Pupil::actions.size()) << "something was never tried";
}
