#include "core/frmNewDoc.h"

#include "core/screen.h"
#include "core/shutDown.h"
#include "core/tutorial.h"
#include "platform/dialogParts.h"
#include "platform/fittedLabel.h"
#include "platform/forms.h"
#include "platform/picture.h"
#include "store/opening.h"
#include "store/settings.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

constexpr auto overview = "Oview";
constexpr int pictureGap = 16;
constexpr int textIndent = 84; // of an option's words: its circle and its picture come first

QRadioButton* choice(const char* name, const QString& caption)
{
    return named(new QRadioButton(caption), name);
}

} // namespace

frmNewDoc::frmNewDoc()
    : AnswerDialog(
          new AnswerButtons({"BtnOK", QStringLiteral("OK")}, {"Btncancel", QStringLiteral("Cancel")}))
    , Option1(choice("Option1", QStringLiteral("Start a new Database")))
    , Option2(choice("Option2", QStringLiteral("Open an existing Database")))
    , Option3(choice("Option3", QStringLiteral("Watch a video on how to make a Database")))
    , Option4(choice("Option4", QStringLiteral("Open last Database")))
    , lblPath(named(new FittedLabel, "lblPath"))
{
    setWindowTitle(QStringLiteral("Welcome to Tallymoor"));
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(pictureGap);
    grid->addWidget(pictureLabel(QStringLiteral("welcome"), {176, 220}), 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(words(QStringLiteral("Welcome To Tallymoor"), "heading"), 0, 1);
    grid->addWidget(words(QStringLiteral("Please make a selection from the list below..."), "subHeading"), 1,
                    1);
    grid->addWidget(choices(), 2, 1);
    auto* video = videoButton(QLatin1String(overview));
    auto* lowest = new QHBoxLayout;
    lowest->addWidget(video);
    lowest->addStretch();
    lowest->addWidget(answers);
    grid->addLayout(lowest, 3, 0, 1, 2);
    grid->setRowStretch(2, 1);
    orderKeys(video);
    answers->ok->setEnabled(false); // until something is chosen

    lblPath->setProperty("role", QStringLiteral("explanation"));
    onClick(answers->cancel, [] { unload<frmNewDoc>(); });
    onClickLater(answers->ok, [this] { begin(); });
}

QGroupBox* frmNewDoc::choices()
{
    auto* frame = new QGroupBox(QStringLiteral("Please select to..."));
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
    for (QWidget* part : std::initializer_list<QWidget*>{option, explanation}) {
        choiceAt.insert(part, option);
        part->installEventFilter(this);
    }
    connect(option, &QRadioButton::toggled, this, [this] { answers->ok->setEnabled(true); });
}

void frmNewDoc::orderKeys(QWidget* video)
{
    QWidget* before = Option1;
    for (QWidget* next :
         std::initializer_list<QWidget*>{Option2, Option3, Option4, answers->ok, answers->cancel, video}) {
        setTabOrder(before, next);
        before = next;
    }
    Option1->setFocus();
}

void frmNewDoc::load()
{
    TxtPath = readSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"), QString());
    const bool known = !TxtPath.isEmpty();
    lblPath->setText(known ? TxtPath : QStringLiteral("No last Database"));
    lblPath->setEnabled(known);
    Option4->setEnabled(known);
    Option4->setAccessibleDescription(lblPath->text());
}

bool frmNewDoc::eventFilter(QObject* watched, QEvent* event)
{
    QRadioButton* option = choiceAt.value(watched);
    if (!option || !option->isEnabled())
        return false;
    if (event->type() == QEvent::MouseButtonPress && watched != option)
        option->click();
    else if (event->type() == QEvent::MouseButtonDblClick)
        answers->ok->click();
    else if (event->type() == QEvent::KeyPress &&
             static_cast<QKeyEvent*>(event)->matches(QKeySequence::InsertParagraphSeparator))
        option->click(); // Return, which presses OK next, means the option that the arrows have framed
    return false;
}

void frmNewDoc::begin()
{
    if (Option1->isChecked()) {
        unload<frmNewDoc>();
        ::screen.newDatabase();
    } else if (Option2->isChecked()) {
        unload<frmNewDoc>();
        endingOnError(::screen.openDatabase);
    } else if (Option3->isChecked()) {
        watchTutorial(QLatin1String(overview));
    } else if (Option4->isChecked()) {
        openLastDatabase();
        unload<frmNewDoc>();
    }
}
