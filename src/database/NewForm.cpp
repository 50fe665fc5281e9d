#include "database/NewForm.h"

#include "controls/dialogParts.h"
#include "controls/fittedLabel.h"
#include "controls/pucTextTip.h"
#include "controls/selectOnFocus.h"
#include "controls/wizardPages.h"
#include "core/mainView.h"
#include "core/session.h"
#include "database/newDatabase.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "store/options.h"

#include <QAction>
#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageWidth = 640;
constexpr int pageHeight = 336;
constexpr int directoryHeight = 72; // three lines
constexpr int tipHeight = 104;
constexpr int underOption = 46; // indent of the text under an option

enum Page { welcomePage, namePage };

const QString tutorial = u"Newdb"_s;

QAction* entry(const char* name, const QString& caption, const std::function<void()>& routine)
{
    auto* action = named(new QAction(caption), name);
    QObject::connect(
        action, &QAction::triggered, action, [routine] { guarded(routine); }, Qt::QueuedConnection);
    return action;
}

void openGuide() { desktop.programs.openDocument(desktop.files.programFolder() + u"/Help/Newdb.pdf"_s); }
void watchVideo() { mainView.watchTutorial(tutorial); }

} // namespace

NewForm::NewForm()
    : AnswerDialog(new AnswerButtons({"BtnOK", u"&Finish"_s}, {"Btncancel", u"Cancel"_s}))
    , lblCap(named(words(QString(), "heading"), "lblCap"))
    , lblSubCap(named(words(QString(), "subHeading"), "lblSubCap"))
    , F1(named(new QWidget, "F1"))
    , F2(named(new QWidget, "F2"))
    , F3(named(new QWidget, "F3"))
    , DBName(named(new QLineEdit, "DBName"))
    , Option1(named(new QRadioButton(u"&Custom Directory"_s), "Option1"))
    , Option2(named(new QRadioButton(u"&On the Network"_s), "Option2"))
    , LblCustDir(named(new FittedLabel, "LblCustDir"))
    , Label3(named(words(u"This could be a shared drive or another computer or another folder "
                         "on this computer"_s,
                         "explanation"),
                   "Label3"))
    , Tip2(new pucTextTip(u"Tip2"_s))
    , N1(named(new QPushButton(u"&Next >>"_s), "N1"))
    , N2(named(new QPushButton(u"&Next >>"_s), "N2"))
    , B2(named(new QPushButton(u"<< &Back"_s), "B2"))
    , BtnVid(named(new QToolButton, "BtnVid"))
    , mnuFHelp(entry("mnuFHelp", u"&Read the guide"_s, openGuide))
    , mnuFVid(entry("mnuFVid", u"&Watch a video"_s, watchVideo))
    , pages(new WizardPages(*this))
{
    setObjectName(u"NewForm"_s);
    setWindowTitle(u"New Database Wizard"_s);
    fillWelcomePage();
    fillNamePage();
    fillLocationPage();
    pages->setPages({{F1, nullptr, N1, nullptr}, {F2, DBName, N2, nullptr}, {F3, Option1, answers->ok, B2}});
    pages->setMinimumSize(pageWidth, pageHeight);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 12, 20, 12);
    column->addWidget(lblCap);
    column->addWidget(lblSubCap);
    column->addWidget(pages, 1);
    column->addLayout(buttonRow());
    connectControls();
}

void NewForm::fillWelcomePage()
{
    auto* row = new QHBoxLayout(F1);
    row->setSpacing(24);
    row->addWidget(pictureLabel(u"welcomeNew"_s, {144, 144}));
    row->addWidget(words(u"A database is a box of cards about one thing: pets, books, minibeasts.\n\n"
                         "First you give your database a name. Then you choose where it will be kept. "
                         "After that you can design its cards."_s),
                   1);
}

void NewForm::fillNamePage()
{
    auto* row = new QHBoxLayout(F2);
    row->setContentsMargins({});
    auto* label = new QLabel(u"&Database Name:"_s);
    label->setBuddy(DBName);
    row->addWidget(label);
    row->addWidget(DBName, 1);
    selectOnFocus(DBName);
}

void NewForm::fillLocationPage()
{
    Tip2->setText(u"If your custom directory is My Documents folder of this computer, Under Windows "
                  "2000/XP, it will be created in My Documents folder based on your settings and "
                  "logging names."_s);
    Tip2->setFixedHeight(tipHeight);
    keepPlaceWhenHidden(*Tip2);
    LblCustDir->setProperty("role", u"explanation"_s);
    LblCustDir->setFixedHeight(directoryHeight);
    Option1->setChecked(true);

    auto* column = new QVBoxLayout(F3);
    column->setContentsMargins({});
    column->setSpacing(0);
    for (QWidget* part : std::initializer_list<QWidget*>{Option1, LblCustDir, Tip2, Option2, Label3}) {
        auto* row = new QHBoxLayout;
        const bool isOption = part == Option1 || part == Option2;
        row->setContentsMargins(isOption ? 0 : underOption, 0, 0, 0);
        row->addWidget(part);
        if (isOption)
            row->addStretch(); // keeps the option as narrow as its clickable text
        column->addLayout(row);
    }
    column->addStretch();
    Option2->setAccessibleDescription(Label3->text());
}

QLayout* NewForm::buttonRow()
{
    auto* menu = new QMenu(BtnVid);
    for (QAction* action : {mnuFHelp, mnuFVid}) {
        action->setParent(menu);
        menu->addAction(action);
    }
    BtnVid->setMenu(menu);
    BtnVid->setPopupMode(QToolButton::MenuButtonPopup);
    BtnVid->setText(u"&Help"_s);
    BtnVid->setIcon(QIcon(picturePath(u"welcomeVideo"_s)));
    BtnVid->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    BtnVid->setFocusPolicy(Qt::StrongFocus);

    auto* row = new QHBoxLayout;
    row->addWidget(BtnVid);
    row->addStretch();
    for (QPushButton* button : {B2, N1, N2})
        row->addWidget(button);
    row->addWidget(answers);
    return row;
}

void NewForm::connectControls()
{
    pages->shown = [this](int number) { pageShown(number); };
    onClick(N1, [this] { pages->goOn(); });
    onClick(B2, [this] { pages->goBack(); });
    onClickLater(N2, [this] { leaveNamePage(); });
    onClickLater(answers->ok, [this] { finish(); });
    onClick(answers->cancel, [] { answerAndUnload<NewForm>(u"Cancel"_s); });
    onToggle(Option1, [this](bool chosen) { Tip2->setVisible(chosen); });
    onClickLater(BtnVid, watchVideo);
}

void NewForm::load()
{
    WKDPathTxt = readFolder(option::workingFolder);
    LblCustDir->setText(customDirectoryText(WKDPathTxt));
    Option1->setAccessibleDescription(LblCustDir->text());
    pages->goTo(welcomePage);
}

void NewForm::pageShown(int number)
{
    const struct {
        QString heading;
        QString subHeading;
    } looks[] = {
        {u"New Database Wizard"_s, u"Let's make a new database!"_s},
        {u"New Database Name"_s, u"Please enter a name for your database:"_s},
        {u"New Database Location"_s, u"Please select a location for your database:"_s},
    };
    lblCap->setText(looks[number].heading);
    lblSubCap->setText(looks[number].subHeading);
    for (QPushButton* button : {N1, N2, B2})
        button->setVisible(button->isEnabled());
}

void NewForm::leaveNamePage()
{
    if (DBName->text().isEmpty()) {
        showErrorBox(u"You must enter a name for your database."_s);
        DBName->setFocus();
        return;
    }
    pages->goOn();
}

void NewForm::finish()
{
    const QString folder = chosenFolder();
    if (folder.isEmpty()) {
        desktop.boxes.showMessage(MessageIcon::exclamation, u"Warning"_s,
                                  u"You have not selected a directory. "
                                  "Click on Finish or select another option."_s);
        return;
    }
    const QString path = newDatabasePath(folder, DBName->text());
    if (QFileInfo::exists(path)) {
        refuseExisting(path);
        return;
    }
    beginDatabase(path);
    answerAndUnload<NewForm>(u"OK"_s);
}

QString NewForm::chosenFolder()
{
    const QString own = customDirectory(WKDPathTxt);
    return Option1->isChecked() ? own : desktop.files.chooseFolder(u"Browse to Set Working Directory"_s, own);
}

void NewForm::refuseExisting(const QString& path)
{
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::exclamation, u"Warning"_s, folderExistsText(path));
    if (Option1->isChecked())
        pages->goTo(namePage);
    DBName->setFocus();
}
