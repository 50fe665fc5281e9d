#include "guidance/FrmHelp.h"

#include "controls/dialogParts.h"
#include "controls/quickChoice.h"
#include "guidance/tutorial.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"

#include <QActionGroup>
#include <QFileInfo>
#include <QGridLayout>
#include <QIcon>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Choice {
    QString caption;
    QString tutorial; // its program; empty for the guide
    QString picture;
};

// Option1 to Option12.
const Choice choices[] = {
    {u"View User Guide (Acrobat® Acrobat® Format)..."_s, {}, u"helpGuide"_s},
    {u"An Overview on Tallymoor"_s, u"Oview"_s, u"tallymoor"_s},
    {u"Using Databases"_s, u"Using Databases"_s, u"database"_s},
    {u"Making New Databases"_s, u"Newdb"_s, u"menuNew"_s},
    {u"Starting a New Databases"_s, u"Start a Database"_s, u"menuOpen"_s},
    {u"Finding Cards"_s, u"Finding Cards"_s, u"menuFind"_s},
    {u"Grouping Cards"_s, u"Grouping Cards"_s, u"menuGroup"_s},
    {u"Looking At Statistics"_s, u"Looking at Statistics"_s, u"menuStatistics"_s},
    {u"Entering Data"_s, u"Entering Data"_s, u"menuAddCard"_s},
    {u"Making Reports"_s, u"Making a report"_s, u"menuReport"_s},
    {u"Making Graphs"_s, u"Making Graphs"_s, u"menuMakeGraph"_s},
    {u"Sorting Data"_s, u"Sorting Data"_s, u"menuSort"_s},
};

constexpr int columns = 2; // of videos
constexpr int videos = int(std::size(choices)) - 1;
constexpr int linesOfVideos = (videos + columns - 1) / columns;

QString guidePath() { return desktop.files.programFolder() + u"/Uguide/Usersguide.pdf"_s; }

void openGuide()
{
    if (QFileInfo::exists(guidePath()))
        desktop.programs.openDocument(guidePath());
    else
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s,
                                  u"User Guide not found! Please Re-install this software."_s);
}

/// Closes the window when the video has been started.
void playVideo(const Choice& choice)
{
    if (!QFileInfo::exists(tutorialProgram(choice.tutorial))) {
        offerTutorials();
        return;
    }
    bool started = false;
    ignoringErrors({[&] {
        startTutorial(choice.tutorial);
        started = true;
    }});
    if (started)
        unload<FrmHelp>();
    else
        refuse(u"Help"_s,
               u"Sorry! The video \"%1\" is here, but this computer can't start it."_s.arg(choice.caption));
}

} // namespace

FrmHelp::FrmHelp()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , TB1(named(new QToolBar, "TB1"))
    , helpPage(TB1->addAction(QIcon(picturePath(u"welcomeVideo"_s)), u"Help/Video Tutorials"_s))
    , newsPage(TB1->addAction(QIcon(picturePath(u"helpNews"_s)), u"What's New?"_s))
    , F1(named(new QWidget, "F1"))
    , Label1(named(words(u"Videos:"_s, "subHeading"), "Label1"))
    , RTFNew(named(new QPlainTextEdit, "RTFNew"))
{
    setObjectName(u"FrmHelp"_s);
    setWindowTitle(u"Help"_s);
    fillToolbar();
    fillChoices();
    keepPlaceWhenHidden(*F1); // the window keeps its size
    RTFNew->setReadOnly(true);
    RTFNew->setTabChangesFocus(true);
    RTFNew->setAccessibleName(newsPage->text());

    auto* pages = new QGridLayout; // both in one cell
    pages->addWidget(F1, 0, 0);
    pages->addWidget(RTFNew, 0, 0);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(TB1);
    rows->addLayout(pages, 1);
    rows->addLayout(answerRow(answers));
    turnToPage(helpPage);
    options.first()->setFocus();

    onClickLater(answers->ok, [this] { run(); });
    onClick(answers->cancel, [] { unload<FrmHelp>(); });
}

void FrmHelp::fillToolbar()
{
    auto* oneOf = new QActionGroup(this);
    TB1->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QAction* page : {helpPage, newsPage}) {
        page->setCheckable(true);
        oneOf->addAction(page);
        TB1->widgetForAction(page)->setFocusPolicy(Qt::StrongFocus);
        connect(page, &QAction::triggered, this, [this, page] { guarded([&] { turnToPage(page); }); });
    }
    helpPage->setChecked(true);
}

void FrmHelp::fillChoices()
{
    auto* grid = new QGridLayout(F1);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(2);
    for (const Choice& choice : choices) {
        const int number = int(options.size());
        auto* option = element(new QRadioButton(choice.caption), "Option", number + 1);
        option->setIcon(QIcon(picturePath(choice.picture)));
        chooseQuickly(option, answers->ok);
        connect(option, &QRadioButton::toggled, this, [this] { showAnswer(); });
        options.append(option);
        if (number == 0)
            grid->addWidget(option, 0, 0, 1, columns);
        else
            grid->addWidget(option, 2 + (number - 1) % linesOfVideos, (number - 1) / linesOfVideos);
    }
    grid->addWidget(Label1, 1, 0, 1, columns);
    grid->setRowStretch(2 + linesOfVideos, 1);
}

void FrmHelp::load()
{
    QString news = u"Version Info NOT Found!"_s;
    ignoringErrors({[&news] {
        news = decodeText(readWholeFile(desktop.files.programFolder() + u"/Version.txt"_s, largestTextFile));
    }});
    RTFNew->setPlainText(news);
}

void FrmHelp::turnToPage(const QAction* page)
{
    F1->setVisible(page == helpPage);
    RTFNew->setVisible(page == newsPage);
    showAnswer();
}

/// OK works while a chosen option is in view.
void FrmHelp::showAnswer()
{
    answers->ok->setEnabled(helpPage->isChecked() && std::any_of(options.begin(), options.end(),
                                                                 [](auto* o) { return o->isChecked(); }));
}

void FrmHelp::run()
{
    for (int number = 0; number < int(options.size()); ++number) {
        if (!options[number]->isChecked())
            continue;
        if (choices[number].tutorial.isEmpty())
            openGuide();
        else
            playVideo(choices[number]);
        return;
    }
}
