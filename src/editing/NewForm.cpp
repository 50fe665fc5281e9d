#include "editing/NewForm.h"

#include "core/session.h"
#include "core/tutorial.h"
#include "editing/newDatabase.h"
#include "guidance/pucTextTip.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "platform/selectOnFocus.h"
#include "store/settings.h"

#include <QAction>
#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QStackedWidget>
#include <QToolButton>

namespace {

constexpr int pageWidth = 640;
constexpr int pageHeight = 336;
constexpr int directoryHeight = 72; // three lines
constexpr int tipHeight = 104;
constexpr int underOption = 46; // where the text of an option begins

const QString tutorial = QStringLiteral("Newdb");

QPushButton* stepButton(const char* name, const QString& caption)
{
    return named(new QPushButton(caption), name);
}

QAction* entry(const char* name, const QString& caption, const std::function<void()>& routine)
{
    auto* action = named(new QAction(caption), name);
    QObject::connect(
        action, &QAction::triggered, action, [routine] { guarded(routine); }, Qt::QueuedConnection);
    return action;
}

void openGuide() { desktop.openDocument(desktop.programFolder() + QStringLiteral("/Help/Newdb.pdf")); }
void watchVideo() { watchTutorial(tutorial); }

} // namespace

NewForm::NewForm()
    : AnswerDialog(
          new AnswerButtons({"BtnOK", QStringLiteral("&Finish")}, {"Btncancel", QStringLiteral("Cancel")}))
    , lblCap(named(words(QString(), "heading"), "lblCap"))
    , lblSubCap(named(words(QString(), "subHeading"), "lblSubCap"))
    , F1(named(new QWidget, "F1"))
    , F2(named(new QWidget, "F2"))
    , F3(named(new QWidget, "F3"))
    , DBName(named(new QLineEdit, "DBName"))
    , Option1(named(new QRadioButton(QStringLiteral("&Custom Directory")), "Option1"))
    , Option2(named(new QRadioButton(QStringLiteral("&On the Network")), "Option2"))
    , LblCustDir(named(new FittedLabel, "LblCustDir"))
    , Label3(named(words(QStringLiteral("This could be a shared drive or another computer or another folder "
                                        "on this computer"),
                         "explanation"),
                   "Label3"))
    , Tip2(new pucTextTip(QStringLiteral("Tip2")))
    , N1(stepButton("N1", QStringLiteral("&Next >>")))
    , N2(stepButton("N2", QStringLiteral("&Next >>")))
    , B2(stepButton("B2", QStringLiteral("<< &Back")))
    , BtnVid(named(new QToolButton, "BtnVid"))
    , mnuFHelp(entry("mnuFHelp", QStringLiteral("&Read the guide"), openGuide))
    , mnuFVid(entry("mnuFVid", QStringLiteral("&Watch a video"), watchVideo))
    , pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("NewForm"));
    setWindowTitle(QStringLiteral("New Database Wizard"));
    fillWelcomePage();
    fillNamePage();
    fillLocationPage();
    for (QWidget* page : {F1, F2, F3})
        pages->addWidget(page);
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
    row->addWidget(pictureLabel(QStringLiteral("welcomeNew"), {144, 144}));
    row->addWidget(
        words(QStringLiteral("A database is a box of cards about one thing: pets, books, minibeasts.\n\n"
                             "First you give your database a name. Then you choose where it will be kept. "
                             "After that you can design its cards.")),
        1);
}

void NewForm::fillNamePage()
{
    auto* row = new QHBoxLayout(F2);
    row->setContentsMargins({});
    auto* label = new QLabel(QStringLiteral("&Database Name:"));
    label->setBuddy(DBName);
    row->addWidget(label);
    row->addWidget(DBName, 1);
    selectOnFocus(DBName);
}

void NewForm::fillLocationPage()
{
    Tip2->setText(
        QStringLiteral("If your custom directory is My Documents folder of this computer, Under Windows "
                       "2000/XP, it will be created in My Documents folder based on your settings and "
                       "logging names."));
    Tip2->setFixedHeight(tipHeight);
    keepPlaceWhenHidden(*Tip2);
    LblCustDir->setProperty("role", QStringLiteral("explanation"));
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
            row->addStretch(); // as wide as it can be clicked
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
    BtnVid->setText(QStringLiteral("&Help"));
    BtnVid->setIcon(QIcon(picturePath(QStringLiteral("video"))));
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
    onClick(N1, [this] { showPage(F2); });
    onClick(B2, [this] { showPage(F2); });
    onClickLater(N2, [this] { leaveNamePage(); });
    onClickLater(answers->ok, [this] { finish(); });
    onClick(answers->cancel, [] {
        session.dialogResult = QStringLiteral("Cancel");
        unload<NewForm>();
    });
    onToggle(Option1, [this](bool chosen) { Tip2->setVisible(chosen); });
    onClickLater(BtnVid, watchVideo);
}

void NewForm::load()
{
    WKDPathTxt =
        readSetting(settingsFile(), QStringLiteral("Working Dir"), QStringLiteral("Path"), QString());
    LblCustDir->setText(customDirectoryText(WKDPathTxt));
    Option1->setAccessibleDescription(LblCustDir->text());
    showPage(F1);
}

void NewForm::showPage(QWidget* page)
{
    const struct {
        QWidget* page;
        QString heading;
        QString subHeading;
        QPushButton* next;
        QWidget* first; // to have the focus
    } looks[] = {
        {F1, QStringLiteral("New Database Wizard"), QStringLiteral("Let's make a new database!"), N1, N1},
        {F2, QStringLiteral("New Database Name"), QStringLiteral("Please enter a name for your database:"),
         N2, DBName},
        {F3, QStringLiteral("New Database Location"),
         QStringLiteral("Please select a location for your database:"), answers->ok,
         Option1->isChecked() ? Option1 : Option2},
    };
    N1->setVisible(page == F1);
    N2->setVisible(page == F2);
    B2->setVisible(page == F3);
    answers->ok->setEnabled(page == F3);
    pages->setCurrentWidget(page);
    for (const auto& look : looks) {
        if (look.page != page)
            continue;
        lblCap->setText(look.heading);
        lblSubCap->setText(look.subHeading);
        look.next->setDefault(true);
        look.first->setFocus();
    }
}

void NewForm::leaveNamePage()
{
    if (DBName->text().isEmpty()) {
        showErrorBox(QStringLiteral("You must enter a name for your database."));
        DBName->setFocus();
        return;
    }
    showPage(F3);
}

void NewForm::finish()
{
    const QString folder = chosenFolder();
    if (folder.isEmpty()) {
        desktop.showMessage(MessageIcon::exclamation, QStringLiteral("Warning"),
                            QStringLiteral("You have not selected a directory. "
                                           "Click on Finish or select another option."));
        return;
    }
    const QString path = newDatabasePath(folder, DBName->text());
    if (QFileInfo::exists(path)) {
        refuseExisting(path);
        return;
    }
    beginDatabase(path);
    session.dialogResult = QStringLiteral("OK");
    unload<NewForm>();
}

QString NewForm::chosenFolder()
{
    const QString own = customDirectory(WKDPathTxt);
    return Option1->isChecked()
               ? own
               : desktop.chooseFolder(QStringLiteral("Browse to Set Working Directory"), own);
}

void NewForm::refuseExisting(const QString& path)
{
    desktop.beep();
    desktop.showMessage(MessageIcon::exclamation, QStringLiteral("Warning"), folderExistsText(path));
    if (Option1->isChecked())
        showPage(F2);
    DBName->setFocus();
}
