#include "window/frmNewDoc.h"

#include "controls/dialogParts.h"
#include "controls/fittedLabel.h"
#include "controls/forms.h"
#include "controls/quickChoice.h"
#include "core/mainView.h"
#include "database/opening.h"
#include "guidance/tutorial.h"
#include "platform/picture.h"
#include "store/options.h"
#include "window/shutDown.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr auto overview = "Oview";
constexpr int pictureGap = 16;
constexpr int textIndent = 84; // of an option's text, after its circle and picture

QRadioButton* choice(const char* name, const QString& caption)
{
    return named(new QRadioButton(caption), name);
}

} // namespace

frmNewDoc::frmNewDoc()
    : AnswerDialog(new AnswerButtons({"BtnOK", u"OK"_s}, {"Btncancel", u"Cancel"_s}))
    , Option1(choice("Option1", u"Start a new Database"_s))
    , Option2(choice("Option2", u"Open an existing Database"_s))
    , Option3(choice("Option3", u"Watch a video on how to make a Database"_s))
    , Option4(choice("Option4", u"Open last Database"_s))
    , lblPath(named(new FittedLabel, "lblPath"))
{
    setWindowTitle(u"Welcome to Tallymoor"_s);
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(pictureGap);
    grid->addWidget(pictureLabel(u"welcome"_s, {176, 220}), 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(words(u"Welcome To Tallymoor"_s, "heading"), 0, 1);
    grid->addWidget(words(u"Please make a selection from the list below..."_s, "subHeading"), 1, 1);
    grid->addWidget(choices(), 2, 1);
    auto* video = videoButton(QLatin1String(overview));
    grid->addLayout(answerRow(answers, video), 3, 0, 1, 2);
    grid->setRowStretch(2, 1);
    orderKeys(video);
    answers->ok->setEnabled(false); // until an option is chosen

    lblPath->setProperty("role", u"explanation"_s);
    onClick(answers->cancel, [] { unload<frmNewDoc>(); });
    onClickLater(answers->ok, [this] { begin(); });
}

QGroupBox* frmNewDoc::choices()
{
    auto* frame = new QGroupBox(u"Please select to..."_s);
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(0);
    grid->setColumnMinimumWidth(0, textIndent);
    const auto explain = [](const char* text) {
        QLabel* label = words(QLatin1String(text), "explanation");
        label->setWordWrap(false);
        return label;
    };
    addChoice(*grid, Option1, "welcomeNew",
              explain("Create a new database on this machine or over the network."));
    addChoice(*grid, Option2, "welcomeOpen",
              explain("Open an existing database on this machine or over the network."));
    addChoice(*grid, Option3, "welcomeVideo",
              explain("Watch a video on how to create or open a database. (Recommended)"));
    addChoice(*grid, Option4, "welcomeLast", lblPath);
    return frame;
}

void frmNewDoc::addChoice(QGridLayout& grid, QRadioButton* option, const char* pictureName,
                          QLabel* explanation)
{
    const int row = grid.rowCount();
    option->setIcon(QIcon(picturePath(QLatin1String(pictureName))));
    option->setAccessibleDescription(explanation->text());
    grid.addWidget(option, row, 0, 1, 2);
    grid.addWidget(explanation, row + 1, 1, Qt::AlignTop);
    chooseQuickly(option, answers->ok, explanation);
    connect(option, &QRadioButton::toggled, this, [this] { answers->ok->setEnabled(true); });
}

void frmNewDoc::orderKeys(QWidget* video)
{
    chainTabs({Option1, Option2, Option3, Option4, answers->ok, answers->cancel, video});
    Option1->setFocus();
}

void frmNewDoc::load()
{
    TxtPath = readFolder(option::lastDatabase);
    const bool known = !TxtPath.isEmpty();
    lblPath->setText(known ? TxtPath : u"No last Database"_s);
    lblPath->setEnabled(known);
    Option4->setEnabled(known);
    Option4->setAccessibleDescription(lblPath->text());
}

void frmNewDoc::begin()
{
    if (Option1->isChecked()) {
        unload<frmNewDoc>();
        mainView.newDatabase();
    } else if (Option2->isChecked()) {
        unload<frmNewDoc>();
        endingOnError(mainView.openDatabase);
    } else if (Option3->isChecked()) {
        watchTutorial(QLatin1String(overview));
    } else if (Option4->isChecked()) {
        openLastDatabase();
        unload<frmNewDoc>();
    }
}
