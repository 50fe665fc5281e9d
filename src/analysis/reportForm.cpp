#include "analysis/reportForm.h"

#include "analysis/copying.h"
#include "analysis/report.h"
#include "analysis/thinkPrint.h"
#include "controls/dialogParts.h"
#include "controls/plainText.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"
#include "store/options.h"
#include "store/questionFiles.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int reportTab = 1;
constexpr QSize leastPage(720, 320);
constexpr int fieldListWidth = 230;

QPlainTextEdit* textBox(const char* name)
{
    auto* box = named(new QPlainTextEdit, name);
    box->setProperty("role", u"writing"_s);
    box->setTabChangesFocus(true);
    return box;
}

QPushButton* hintedButton(const char* name, const QString& picture, const QString& meaning,
                          const QString& hint)
{
    return named(iconButton(picture, meaning, hint), name);
}

/// Shows the text; a CR alone breaks the line and is there again in reportText().
void showReportText(QPlainTextEdit& box, QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    box.setPlainText(text.replace(u'\r', QChar(QChar::LineSeparator)));
}

QString reportText(const QPlainTextEdit& box) { return typedText(box, u"\r"_s); }

/// Refuses to copy a single blank, as a report without words is on a single card.
void copyUnlessBlank(const QString& text)
{
    if (text == " "_L1)
        showErrorBox(u"You have nothing to copy"_s);
    else
        copyText(text);
}

/// A label above the control, whose name for assistive technology is the text without its colon.
QLabel* labelOf(const QString& text, QWidget* control)
{
    auto* label = words(text);
    label->setBuddy(control);
    control->setAccessibleName(text.chopped(1));
    return label;
}

/// The box below its label, with a column of buttons on its right.
QWidget* pageWithButtons(QLabel* label, QPlainTextEdit* box, std::initializer_list<QWidget*> buttons)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    for (QWidget* button : buttons)
        column->addWidget(button);
    column->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(box, 1);
    row->addLayout(column);
    auto* page = new QWidget;
    auto* whole = new QVBoxLayout(page);
    whole->addWidget(label);
    whole->addLayout(row, 1);
    return page;
}

void disableIfChosen(const Option& option, QWidget* button) { button->setEnabled(read(option) != "1"_L1); }

} // namespace

reportForm::reportForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , repTab(named(new QTabWidget, "repTab"))
    , design(textBox("design"))
    , fieldCombo(named(new QListWidget, "fieldCombo"))
    , insertBut(named(new QPushButton(u"Insert"_s), "insertBut"))
    , RepBox(textBox("RepBox"))
    , PrintCommand(hintedButton("PrintCommand", u"menuPrint"_s, u"Print Report"_s,
                                u"Open in Questions and Answers in NotePad"_s))
    , copyBut(hintedButton("copyBut", u"copy"_s, u"Copy Report"_s, u"Copy Report"_s))
    , RTF1(textBox("RTF1"))
    , BtnSave(hintedButton("BtnSave", u"saveNotes"_s, u"Save Questions"_s, u"Save Questions"_s))
    , BtnPrt(hintedButton("BtnPrt", u"viewNotes"_s, u"View Questions"_s, u"View Questions"_s))
    , BtnCopy1(hintedButton("BtnCopy1", u"copy"_s, u"Copy Questions"_s, u"Copy Questions"_s))
{
    setObjectName(u"reportForm"_s);
    setWindowTitle(u"Reports"_s);
    repTab->addTab(designPage(), u"Design Report"_s);
    repTab->addTab(reportPage(), u"View Report"_s);
    repTab->addTab(jotterPage(), u"Jotter"_s);
    for (int tab = 0; tab < repTab->count(); ++tab)
        repTab->widget(tab)->setMinimumSize(leastPage);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(12);
    column->addWidget(repTab, 1);
    auto* video = videoButton();
    column->addLayout(answerRow(answers, video));
    chainTabs({repTab->tabBar(), design, fieldCombo, insertBut, RepBox, PrintCommand, copyBut, RTF1, BtnSave,
               BtnPrt, BtnCopy1, answers->ok, answers->cancel, video});
    repTab->tabBar()->installEventFilter(this);
    design->setFocus();
    connectControls();
}

QWidget* reportForm::designPage()
{
    fieldCombo->setFixedWidth(fieldListWidth);
    fieldCombo->installEventFilter(this);
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setHorizontalSpacing(12);
    grid->addWidget(labelOf(u"Sentence about a card:"_s, design), 0, 0);
    grid->addWidget(design, 1, 0, 2, 1);
    grid->addWidget(labelOf(u"Fields:"_s, fieldCombo), 0, 1);
    grid->addWidget(fieldCombo, 1, 1);
    grid->addWidget(insertBut, 2, 1);
    return page;
}

QWidget* reportForm::reportPage()
{
    auto* Label3 = named(labelOf(u"Report:"_s, RepBox), "Label3");
    return pageWithButtons(Label3, RepBox, {PrintCommand, copyBut});
}

QWidget* reportForm::jotterPage()
{
    auto* Label1 = named(labelOf(u"Questions / Comments:"_s, RTF1), "Label1");
    return pageWithButtons(Label1, RTF1, {BtnSave, BtnPrt, BtnCopy1});
}

void reportForm::connectControls()
{
    connect(repTab, &QTabWidget::currentChanged, this, &reportForm::enterTab);
    connect(repTab, &QTabWidget::tabBarClicked, this, [this](int tab) {
        if (tab == repTab->currentIndex()) // else the tab changes now
            enterTab(tab);
    });
    connect(fieldCombo, &QListWidget::itemDoubleClicked, this,
            [this] { guarded([this] { insertField(); }); });
    onClick(insertBut, [this] { insertField(); });
    connect(RepBox, &QPlainTextEdit::textChanged, this,
            [this] { copyBut->setEnabled(!RepBox->document()->isEmpty()); });
    onClickLater(PrintCommand, [this] { printReport(); });
    onClickLater(copyBut, [this] { copyUnlessBlank(reportText(*RepBox)); });
    onClickLater(BtnSave, [this] { saveJotter(); });
    onClickLater(BtnPrt, [] {
        const QString notes = questionsForPrograms();
        if (notes.isEmpty())
            refuse(u"Warning"_s, u"Please re-save your work first and then try again."_s);
        else
            desktop.programs.openDocument(notes);
    });
    onClickLater(BtnCopy1, [this] { copyUnlessBlank(jotterText()); });
    onClick(answers->ok, [] { answerAndUnload<reportForm>(u"OK"_s); });
    onClick(answers->cancel, [] { answerAndUnload<reportForm>(u"Cancel"_s); });
}

void reportForm::load()
{
    loadedNotes = openQuestions();
    RTF1->setPlainText(loadedNotes);
    TxtDate = shortDateText(desktop.now().date());
    disableIfChosen(option::jotterView, BtnPrt);
    disableIfChosen(option::jotterSave, BtnSave);
    lockNotes(!BtnSave->isEnabled());
    disableIfChosen(option::jotterCopy, BtnCopy1);
    disableIfChosen(option::reportPrint, PrintCommand);
}

void reportForm::lockNotes(bool locked)
{
    RTF1->setReadOnly(locked);
    if (locked) // the caret stays, for the keyboard and screen readers
        RTF1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void reportForm::offerFieldNames()
{
    fieldCombo->clear();
    for (int f = 1; f <= session.numFields; ++f)
        fieldCombo->addItem(session.fieldName[f]);
    fieldCombo->setCurrentRow(0);
}

/// Return in the list of fields inserts one, on a tab it does nothing, instead of pressing the dialog's OK.
bool reportForm::eventFilter(QObject* watched, QEvent* event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return AnswerDialog::eventFilter(watched, event);
    if (watched == fieldCombo)
        insertBut->click();
    return true;
}

void reportForm::enterTab(int tab)
{
    if (tab == reportTab)
        guarded([this] { showReport(); });
}

/// Puts the field's tag at the caret. What is selected stays.
void reportForm::insertField()
{
    const QListWidgetItem* field = fieldCombo->currentItem();
    QTextCursor caret = design->textCursor();
    caret.setPosition(caret.selectionStart());
    caret.insertText(fieldTag(field ? field->text() : QString()));
    design->setTextCursor(caret);
    design->setFocus();
}

void reportForm::showReport()
{
    QString report;
    const auto show =
        qScopeGuard([&] { showReportText(*RepBox, report); }); // after an error as far as it got
    appendReport(typedText(*design), report);
}

/// The heading stays, so that a second printout has two, until the report is made again.
void reportForm::printReport()
{
    showReportText(*RepBox, reportToPrint(TxtDate, reportText(*RepBox)));
    // RTF1 is as wide, but has no width yet when its tab has never been shown.
    thinkPrint(reportText(*RepBox), RepBox->width() * session.twipsPerPixelX);
}

/// Notes that haven't been changed are those of the file, to the character.
QString reportForm::jotterText() const
{
    return RTF1->document()->isModified() ? typedText(*RTF1) : loadedNotes;
}

void reportForm::saveJotter()
{
    const QString notes = jotterText();
    if (notes.isEmpty()) {
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s, u"You have nothing to save"_s);
        return;
    }
    const bool othersKept = saveQuestions(notes);
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::information, u"Information"_s,
                              u"Your notes have been saved in your Database."_s);
    if (othersKept)
        desktop.boxes.showMessage(
            MessageIcon::information, u"Jotter"_s,
            u"Somebody else has changed these notes too. Yours are saved, and theirs are kept."_s);
}
