#include "options/TeacherOps.h"

#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "controls/forms.h"
#include "controls/pucTextTip.h"
#include "core/mainView.h"
#include "core/menu.h"
#include "database/FileForm.h"
#include "options/aboutPage.h"
#include "options/hiddenParts.h"
#include "options/swatchRow.h"
#include "platform/colour.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "store/settings.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize clientArea(569, 434);
constexpr QSize keysPicture(120, 44);
constexpr QSize tipSize(250, 44);
const QString restartTip = u"This option requires you to re-start Tallymoor"_s;

constexpr const char* pageCaptions[] = {"Folder Settings", "Reporting",         "Colours", "Misc.",
                                        "Printer",         " Database Options", "About..."};

void watchVideo()
{
    ignoringErrors({[] { startTutorial(u"Topts"_s); }});
}

void viewGuide()
{
    const QString guide = desktop.files.programFolder() + u"/Help/Topts.pdf"_s;
    if (QFileInfo::exists(guide))
        desktop.programs.openDocument(guide);
    else
        desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s,
                                  u"User Guide not found! Please Re-install Tallymoor."_s);
}

/// How far changes reach where they don't reach everybody.
QString reachOfChanges()
{
    switch (settingsPlace()) {
    case SettingsPlace::programFolder:
        return {};
    case SettingsPlace::usersOwn:
        return u"Installed by an administrator: changes are for you alone. They go to "_s + ownSettingsFile();
    case SettingsPlace::nowhere:
        break;
    }
    return u"Settings can't be written on this computer: changes last until Tallymoor is closed."_s;
}

QString keyOf(Page page, const QString& caption) { return QString::number(int(page)) + caption; }

} // namespace

TeacherOps::TeacherOps()
    : AnswerDialog(new AnswerButtons)
    , Tab1(named(new QTabWidget, "Tab1"))
    , Opt1(named(new QRadioButton(u"\"My Documents\" Folder of this Computer"_s), "Opt1"))
    , Opt2(named(new QRadioButton(u"Custom Folder"_s), "Opt2"))
    , FrmMyDoc(named(new QWidget, "FrmMyDoc"))
    , WorkingDirTxt(named(new QLineEdit, "WorkingDirTxt"))
    , BtnSetPath(named(new QPushButton(u"Set Path..."_s), "BtnSetPath"))
    , btnColSel(named(new QPushButton(u"Background Colour..."_s), "btnColSel"))
    , colsBord(new SwatchRow("colsBord", u"Card border"_s))
    , cols(new SwatchRow("cols", u"Card caption"_s))
    , KeyCombo(named(new DropDown, "KeyCombo"))
    , TipBox1(new pucTextTip(u"TipBox1"_s))
    , Printercombo(named(new DropDown, "Printercombo"))
    , about(new AboutPage)
    , hidden(new HiddenParts)
    , lblKept(named(words(QString()), "lblKept"))
    , lblPrinters(named(words(QString()), "lblPrinters"))
{
    setObjectName(u"TeacherOps"_s);
    setWindowTitle(u"Teacher Options"_s);
    for (const char* caption : pageCaptions) {
        auto* page = new QWidget;
        new QGridLayout(page);
        Tab1->addTab(page, QLatin1StringView(caption));
    }
    Tab1->setUsesScrollButtons(false);
    Tab1->widget(int(Page::about))->layout()->addWidget(about);
    hidden->setParent(this);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 6, 6, 6);
    rows->setMenuBar(menus());
    rows->addWidget(Tab1, 1);
    rows->addLayout(lowestRow());
    fillFolders();
    fillColours();
    fillMisc();
    fillPrinter();
    for (const Tick& tick : ticks())
        addTick(tick);
    footnote(Page::folders, u"* =  Requires you to re-start Tallymoor"_s);
    footnote(Page::misc, u"* =  Requires you to re-start Tallymoor"_s);
    footnote(Page::database, u"* =  Recommend you to re-start Tallymoor"_s);
    for (const Page page : {Page::reporting, Page::colours, Page::printer})
        footnote(page, QString());
    connectFolders();
    connectColours();
    connectOthers();
    orderKeys();
}

/// Tab goes from the pages' names through the controls of the page in view to the answers.
void TeacherOps::orderKeys()
{
    QWidget* before = Tab1;
    const auto append = [&before](QWidget* control) {
        setTabOrder(before, control);
        before = control;
    };
    for (int page = 0; page < Tab1->count(); ++page) {
        for (QWidget* control : Tab1->widget(page)->findChildren<QWidget*>()) {
            // neither the lists of drop-downs nor what passes the focus on
            if (control->focusPolicy() != Qt::NoFocus && !control->focusProxy() && control->window() == this)
                append(control);
        }
    }
    append(answers->ok);
    append(answers->cancel);
}

QMenuBar* TeacherOps::menus()
{
    auto* bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    QMenu* mnuFFile = named(bar->addMenu(u"&File"_s), "mnuFFile");
    const auto line = [this](QAction* action, const char* name, void (*act)()) {
        action->setObjectName(QLatin1StringView(name));
        connect(
            action, &QAction::triggered, this, [act] { guarded(act); }, Qt::QueuedConnection);
    };
    line(mnuFFile->addAction(u"&Watch a video..."_s), "mnuFVid", watchVideo);
    mnuFFile->addSeparator()->setObjectName(u"Sep1"_s);
    line(mnuFFile->addAction(u"&View Help file..."_s), "mnuFHelp", viewGuide);
    return bar;
}

QLayout* TeacherOps::lowestRow()
{
    lblKept->setProperty("role", u"explanation"_s);
    auto* row = new QHBoxLayout;
    row->addWidget(lblKept, 1);
    row->addSpacing(12);
    row->addWidget(answers);
    return row;
}

/// The frame of that caption on the page, made when it is first asked for. On the fullest page the small ones
/// stand side by side.
QGroupBox* TeacherOps::frame(Page page, const QString& caption)
{
    QGroupBox*& found = frames[keyOf(page, caption)];
    if (!found) {
        found = new QGroupBox(caption);
        new QVBoxLayout(found);
        found->layout()->setContentsMargins(6, 2, 6, 2);
        auto* grid = static_cast<QGridLayout*>(Tab1->widget(int(page))->layout());
        const int number = grid->count(); // of the frames before it
        if (page == Page::misc && number > 0)
            grid->addWidget(found, (number + 1) / 2, (number - 1) % 2);
        else
            grid->addWidget(found, number, 0, 1, 2);
    }
    return found;
}

void TeacherOps::addTick(const Tick& tick)
{
    QCheckBox* box = nullptr;
    if (tick.page == Page::hidden) {
        box = hidden->findChild<QCheckBox*>(QLatin1StringView(tick.name));
    } else {
        box = named(new QCheckBox, tick.name);
        frame(tick.page, QLatin1StringView(tick.frame))->layout()->addWidget(box);
    }
    box->setText(QLatin1StringView(tick.caption));
    tickBoxes.insert(QLatin1StringView(tick.name), box);
    onToggle(box, [this, &tick](bool ticked) { turn(tick, ticked); });
}

void TeacherOps::footnote(Page page, const QString& text)
{
    auto* grid = static_cast<QGridLayout*>(Tab1->widget(int(page))->layout());
    grid->setRowStretch(grid->rowCount(), 1);
    if (!text.isEmpty())
        grid->addWidget(words(text, "explanation"), grid->rowCount() + 1, 0, 1, 2);
}

void TeacherOps::fillFolders()
{
    QLayout* rows = frame(Page::folders, u"Working Directory *"_s)->layout();
    rows->addWidget(Opt1);
    rows->addWidget(Opt2);
    rows->addWidget(FrmMyDoc);
    auto* row = new QHBoxLayout(FrmMyDoc);
    row->setContentsMargins(28, 0, 0, 4);
    row->addWidget(WorkingDirTxt, 1);
    row->addWidget(BtnSetPath);
    WorkingDirTxt->setAccessibleName(u"Working Directory"_s);
}

void TeacherOps::fillColours()
{
    frame(Page::colours, u"Background Colour"_s)->layout()->addWidget(btnColSel);
    frame(Page::colours, u"Select Card Border Colour"_s)->layout()->addWidget(colsBord);
    QGroupBox* captions = frame(Page::colours, u"Card Caption Colour *"_s);
    captions->layout()->addWidget(cols);
    captions->layout()->addWidget(words(u"* =  "_s + restartTip, "explanation"));
    captions->setToolTip(restartTip);
}

void TeacherOps::fillMisc()
{
    QGroupBox* keys = frame(Page::misc, u"Teacher Options Keys *"_s);
    keys->setToolTip(restartTip);
    auto* row = new QHBoxLayout;
    row->addWidget(named(pictureLabel(u"teacherKeys"_s, keysPicture), "Keys"));
    row->addWidget(KeyCombo);
    row->addStretch(1);
    row->addWidget(TipBox1);
    static_cast<QVBoxLayout*>(keys->layout())->addLayout(row);
    KeyCombo->setMeaning(u"Letter pressed together with Ctrl and Shift"_s);
    KeyCombo->setEditable(true);
    KeyCombo->setInsertPolicy(QComboBox::NoInsert);
    KeyCombo->setCompleter(nullptr);
    KeyCombo->lineEdit()->setAccessibleName(KeyCombo->accessibleName());
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        KeyCombo->addItem(QString(QChar(letter)));
    TipBox1->setObjectName(u"TipBox1"_s);
    TipBox1->setText(restartTip);
    TipBox1->setFixedSize(tipSize);
}

void TeacherOps::fillPrinter()
{
    QLayout* rows = frame(Page::printer, u"Printer"_s)->layout();
    rows->addWidget(Printercombo);
    rows->addWidget(lblPrinters);
    Printercombo->setMeaning(u"Printer"_s);
}

void TeacherOps::connectFolders()
{
    onToggle(Opt1, [this](bool chosen) {
        if (!chosen)
            return;
        FrmMyDoc->setEnabled(false);
        WorkingDirTxt->setText(documentsWord);
    });
    onToggle(Opt2, [this](bool chosen) {
        if (!chosen)
            return;
        FrmMyDoc->setEnabled(true);
        WorkingDirTxt->clear();
    });
    connect(WorkingDirTxt, &QLineEdit::textChanged, this,
            [this](const QString& text) { values.WorkingDirTxt = text; });
    onClickLater(BtnSetPath, [this] { chooseFolder(); });
}

void TeacherOps::connectColours()
{
    onClickLater(btnColSel, [this] { chooseBackground(); });
    cols->picked = [this](const QString& value) { values.ColText = value; };
    colsBord->picked = [this](const QString& value) { values.ColText2 = value; };
}

void TeacherOps::connectOthers()
{
    connect(KeyCombo, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { values.KeyCombo = text; });
    connect(Printercombo, &QComboBox::currentIndexChanged, this, &TeacherOps::takePrinter);
    connect(Tab1, &QTabWidget::currentChanged, this, [this](int page) {
        if (Tab1->widget(page)->isAncestorOf(about))
            guarded([this] { about->Pic3->begin(); });
    });
    connect(hidden->txtSaveDir, &QLineEdit::textChanged, this,
            [this](const QString& text) { values.txtSaveDir = text; });
    onClick(answers->ok, [this] { keep(); });
    onClick(answers->cancel, [] { answerAndUnload<TeacherOps>(u"Cancel"_s); });
}

void TeacherOps::turn(const Tick& tick, bool ticked)
{
    values.*tick.box = QLatin1StringView(ticked ? tick.ticked : tick.unticked);
    if (tick.atOnce)
        tick.atOnce(ticked);
    if (isLoaded<FileForm>())
        form<FileForm>().followUpLevel();
}

void TeacherOps::load()
{
    values = loadTeacherValues();
    const TeacherValues read = values; // the controls change `values` while they are set
    for (const Tick& tick : ticks())
        tickBoxes[QLatin1StringView(tick.name)]->setChecked(read.*tick.box == QLatin1StringView(tick.ticked));
    cols->showColour(read.ColText);
    colsBord->showColour(read.ColText2);
    KeyCombo->setCurrentIndex(KeyCombo->findText(read.KeyCombo));
    KeyCombo->setEditText(read.KeyCombo); // which need not be in the list
    hidden->txtSaveDir->setText(read.txtSaveDir);
    (read.WKDPathTxt == documentsWord ? Opt1 : Opt2)->setChecked(true);
    WorkingDirTxt->setText(read.WKDPathTxt);
    letTabFindTheChosen({Opt1, Opt2});
    values = read; // a value that is no word of its tick stays as it was read
    showBackground();
    lblKept->setText(reachOfChanges());
    askForPrinters();
    ensurePolished(); // the style sheet's measures
    layout()->menuBar()->ensurePolished();
    setFixedSize(clientArea + QSize(0, layout()->menuBar()->sizeHint().height()));
    Tab1->setFocus();
}

void TeacherOps::showBackground()
{
    const QColor colour = colourOf(values.BCol);
    const bool bright = qGray(colour.rgb()) > 127;
    btnColSel->setStyleSheet(u"#btnColSel { background-color: %1; color: %2; }"_s.arg(
        colour.name(), bright ? u"black"_s : u"white"_s));
    btnColSel->setAccessibleDescription(colour.name());
}

void TeacherOps::chooseFolder()
{
    const QString start = resolvedFolder(fullFolder(WorkingDirTxt->text()));
    const QString folder =
        desktop.files.chooseFolder(u"Set Working Directory\nBrowse to Set Working Directory"_s, start);
    if (!folder.isEmpty() && isLoaded<TeacherOps>())
        WorkingDirTxt->setText(folder);
}

void TeacherOps::chooseBackground()
{
    const QColor colour = desktop.boxes.chooseColour(u"Background Colour"_s, colourOf(values.BCol));
    if (!colour.isValid() || !isLoaded<TeacherOps>())
        return;
    values.BCol = colourValue(colour);
    showBackground();
}

void TeacherOps::askForPrinters()
{
    Printercombo->setEnabled(false);
    lblPrinters->setText(u"One moment..."_s);
    errands.send(
        [paper = desktop.paper](const Errands::Forgotten&) {
            const QStringList names = paper.printerNames();
            return PrinterList{names, int(names.indexOf(paper.defaultPrinterName()))};
        },
        [this](const PrinterList& printers) { showPrinters(printers); });
}

/// `printers` has the desktop's own printer as its index. Until this comes OK writes the printer as it was
/// read.
void TeacherOps::showPrinters(const PrinterList& printers)
{
    const QSignalBlocker quiet(Printercombo); // a filled list chooses its first line by itself
    printerNames = printers.names;
    Printercombo->clear();
    if (printers.names
            .isEmpty()) { // or the printing system doesn't answer: OK writes the printer as it was read
        Printercombo->setEnabled(false);
        lblPrinters->setText(u"There is no printer on this computer."_s);
        return;
    }
    Printercombo->addItems(printers.names);
    Printercombo->setPlaceholderText(printers.names.value(printers.listIndex));
    const int index = printerIndexIn(values.printerIndex, printers.names.size());
    Printercombo->setCurrentIndex(index);
    takePrinter(index);
    Printercombo->setEnabled(true);
    lblPrinters->clear();
}

/// A chosen printer is the program's current one at once, also when Cancel follows.
void TeacherOps::takePrinter(int index)
{
    values.printerIndex = QString::number(index);
    values.printerDevice = printerNames.value(index);
    choosePrinter(values.printerDevice, printerNames);
}

void TeacherOps::keep()
{
    const bool foreseen = settingsPlace() == SettingsPlace::nowhere; // and said in the window
    if (!keepTeacherValues(values) && !foreseen)
        desktop.boxes.showMessage(MessageIcon::exclamation, windowTitle(),
                                  u"Your changes could not be saved. They last until Tallymoor is closed."_s);
    unload<TeacherOps>();
}

void openTeacherOptions()
{
    closeMenu();
    showModal(form<TeacherOps>());
}
