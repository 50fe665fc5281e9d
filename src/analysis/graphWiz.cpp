#include "analysis/graphWiz.h"

#include "choices/fieldChoice.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "controls/selectOnFocus.h"
#include "controls/singleTab.h"
#include "controls/wizardPages.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/errors.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(160, 120);
constexpr QSize pageSize(720, 250);
constexpr int lastOfGraphTab = 3; // kinds 0..3 belong to the first tab, the scattergrams to another

const QString untitled = u"Title"_s;
const QString untitledAxis = u"Axis"_s;

struct Kind {
    QString caption;
    bool inView; // when the form is loaded
};

const std::array<Kind, 6>& kinds()
{
    static const std::array<Kind, 6> table{{
        {u"&Bar Chart"_s, true},
        {u"&3D Bar Chart"_s, false},
        {u"&Line Chart"_s, true},
        {u"&Pie Chart"_s, true},
        {u"&Scattergram"_s, false},
        {u"Scattergram &with Line"_s, false},
    }};
    return table;
}

/// A list of fields that puts the number of the one picked into the axis' place.
QComboBox* axisChoice(const char* name, int axis)
{
    auto* choice = named(new DropDown, name);
    QObject::connect(choice, &QComboBox::currentIndexChanged, choice, [axis](int index) {
        if (index >= 0)
            session.graph.graphAxisField[axis] = index + 1;
    });
    choice->hide();
    return choice;
}

QLineEdit* titleBox(const char* name, QString& answer)
{
    auto* box = named(new QLineEdit, name);
    selectOnFocus(box);
    QObject::connect(box, &QLineEdit::textChanged, box, [&answer](const QString& text) { answer = text; });
    return box;
}

QVBoxLayout* pageWithHeading(QWidget& page, const char* name, const QString& heading)
{
    auto* column = new QVBoxLayout(&page);
    column->setContentsMargins({});
    column->setSpacing(16);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(pictureLabel(u"menuMakeGraph"_s, {48, 48}));
    top->addWidget(named(words(heading, "heading"), name), 1);
    column->addLayout(top);
    return column;
}

bool chosenFieldIsText() { return session.fieldType[session.chosenField] == "Abc"_L1; }

} // namespace

graphWiz::graphWiz()
    : AnswerDialog(new AnswerButtons({"OKbut", u"OK"_s}, {"Btncancel", u"Cancel"_s}))
    , graphTab(named(new SingleTab, "graphTab"))
    , fieldCombo(fieldChoice("fieldCombo"))
    , field1combo(axisChoice("field1combo", 1))
    , field2combo(axisChoice("field2combo", 2))
    , graphTitle(titleBox("graphTitle", session.graph.graphTitle))
    , graphXTitle(titleBox("graphXTitle", session.graph.graphXTitle))
    , graphYTitle(titleBox("graphYTitle", session.graph.graphYTitle))
    , prevBut(named(new QPushButton(u"< Bac&k"_s), "prevBut"))
    , nextBut(named(new QPushButton(u"&Next >"_s), "nextBut"))
    , pages(new WizardPages(*this))
{
    setObjectName(u"graphWiz"_s);
    setWindowTitle(u"Make Graph"_s);
    for (std::size_t i = 0; i < Frame.size(); ++i) {
        Frame[i] = element(new QWidget, "Frame", int(i));
    }
    fillFieldPage();
    fillKindPage();
    fillGroupPage();
    fillTitlePage();
    pages->setMinimumSize(pageSize);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(16);
    column->addWidget(pages, 1);
    column->addLayout(buttonRow());
    connectControls();
    connectPages();
}

void graphWiz::fillFieldPage()
{
    auto* tab = new QWidget;
    auto* inTab = new QVBoxLayout(tab);
    inTab->setContentsMargins(24, 24, 24, 24);
    inTab->addWidget(fieldCombo);
    inTab->addStretch(1);
    graphTab->addTab(tab, u"Graph"_s);
    graphTab->tabBar()->installEventFilter(this);
    fieldCombo->setAccessibleName(u"Make a graph about"_s);

    QVBoxLayout* column = pageWithHeading(*Frame[0], "Label1", u"1. Make a graph about:"_s);
    column->addWidget(graphTab, 1);
    for (QWidget* scattergrams : {field1combo, field2combo})
        scattergrams->setParent(Frame[0]);
}

void graphWiz::fillKindPage()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addStretch(1);
    for (std::size_t i = 0; i < graphOpt.size(); ++i) {
        graphPic[i] = element(pictureLabel(u"graphKind%1"_s.arg(i), pictureSize), "graphPic", int(i));
        graphPic[i]->setProperty("role", u"sample"_s);
        graphPic[i]->installEventFilter(this);
        graphOpt[i] = element(new QRadioButton(kinds()[i].caption, Frame[1]), "graphOpt", int(i));
        auto* column = new QVBoxLayout;
        column->addWidget(graphPic[i], 0, Qt::AlignHCenter);
        column->addWidget(graphOpt[i], 0, Qt::AlignHCenter);
        row->addLayout(column);
        graphOpt[i]->setVisible(kinds()[i].inView);
        graphPic[i]->setVisible(kinds()[i].inView);
    }
    row->addStretch(1);
    QVBoxLayout* column = pageWithHeading(*Frame[1], "Label2", u"2. What sort of Graph?"_s);
    column->addLayout(row);
    column->addStretch(1);
}

void graphWiz::fillGroupPage()
{
    QVBoxLayout* column = pageWithHeading(*Frame[2], "Label4", u"Group Data ?"_s);
    const QString texts[][2] = {
        {u"Count in &Groups"_s, u"Shows each value once, and how many cards have it."_s},
        {u"Show &All Data"_s, u"Shows the value of every card."_s}};
    for (std::size_t i = 0; i < groupCount.size(); ++i) {
        groupCount[i] = element(new QRadioButton(texts[i][0], Frame[2]), "groupCount", int(i));
        groupCount[i]->setAccessibleDescription(texts[i][1]);
        auto* explanation = words(texts[i][1], "explanation");
        explanation->setIndent(46); // below the option's words
        column->setSpacing(4);
        column->addWidget(groupCount[i], 0, Qt::AlignLeft);
        column->addWidget(explanation);
    }
    column->addStretch(1);
}

void graphWiz::fillTitlePage()
{
    auto* rows = new QFormLayout;
    rows->setSpacing(12);
    rows->addRow(u"&Title"_s, graphTitle);
    rows->addRow(u"&X Axis"_s, graphXTitle);
    rows->addRow(u"&Y Axis"_s, graphYTitle);
    for (QLineEdit* box : {graphTitle, graphXTitle, graphYTitle})
        box->installEventFilter(this);
    QVBoxLayout* column = pageWithHeading(*Frame[3], "Label3", u"3. Axis and Titles"_s);
    column->addLayout(rows);
    column->addStretch(1);
}

QLayout* graphWiz::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(videoButton(u"Entering Data"_s));
    row->addStretch(1);
    for (QWidget* button : std::initializer_list<QWidget*>{prevBut, nextBut, answers})
        row->addWidget(button);
    return row;
}

void graphWiz::connectControls()
{
    connect(graphTab, &QTabWidget::tabBarClicked, this,
            [this](int tab) { guarded([this, tab] { showKindsOfTab(tab); }); });
    for (std::size_t i = 0; i < graphOpt.size(); ++i)
        onToggle(graphOpt[i], [this, i](bool chosen) {
            if (chosen)
                session.graph.graphKind = int(i);
            markChosenPicture();
        });
    onToggle(groupCount[1], [](bool chosen) { session.graph.showAllData = chosen; });
    onClick(answers->ok, [this] {
        session.window.cmdCopyGraph.visible = true;
        answer(u"OK"_s); // the form stays loaded
        mainView.showControls();
    });
    onClick(answers->cancel, [] { unload<graphWiz>(); });
}

void graphWiz::connectPages()
{
    pages->setPages({{Frame[0], fieldCombo, nextBut, nullptr},
                     {Frame[1], graphOpt[0], nextBut, prevBut},
                     {Frame[2], groupCount[0], nextBut, prevBut},
                     {Frame[3], graphTitle, answers->ok, prevBut}});
    onClick(nextBut, [this] { pages->goOn(); });
    onClick(prevBut, [this] { pages->goBack(); });
    pages->landing = [this](int number, int step) {
        if (number != 2 || !chosenFieldIsText())
            return number;
        groupCount[0]->setChecked(true); // a text field is always counted
        return number + step;
    };
}

void graphWiz::load()
{
    const std::size_t kind = std::size_t(session.graph.graphKind);
    graphOpt.at(kind)->setChecked(true);
    graphOpt[kind]->show();
    graphPic[kind]->show();
}

void graphWiz::prepare()
{
    for (QComboBox* choice : {fieldCombo, field1combo, field2combo})
        fillFieldChoice(*choice);
    groupCount[0]->setChecked(true);
    graphTitle->setText(untitled);
    graphXTitle->setText(untitledAxis);
    graphYTitle->setText(untitledAxis);
    pages->goTo(0);
}

/// The first tab offers bars, lines and pies, any other one the scattergrams.
void graphWiz::showKindsOfTab(int tab)
{
    for (int kind = 0; kind < int(graphOpt.size()); ++kind) {
        const bool inTab = (kind <= lastOfGraphTab) == (tab == 0);
        graphOpt[std::size_t(kind)]->setVisible(inTab);
        graphPic[std::size_t(kind)]->setVisible(inTab);
    }
    int& kind = session.graph.graphKind;
    kind = tab == 0 ? std::min(kind, lastOfGraphTab) : std::max(kind, lastOfGraphTab + 1);
    graphOpt.at(std::size_t(kind))->setChecked(true);
}

void graphWiz::markChosenPicture()
{
    for (std::size_t i = 0; i < graphPic.size(); ++i) {
        graphPic[i]->setProperty("lit", graphOpt[i]->isChecked());
        style()->polish(graphPic[i]);
    }
}

bool graphWiz::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched == graphTab->tabBar()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool presses = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
        if (presses)
            guarded([this] { showKindsOfTab(graphTab->currentIndex()); });
        return presses;
    }
    if (event->type() != QEvent::MouseButtonRelease)
        return AnswerDialog::eventFilter(watched, event);
    for (std::size_t i = 0; i < graphPic.size(); ++i) {
        if (watched == graphPic[i])
            graphOpt[i]->setChecked(true);
    }
    for (QLineEdit* box : {graphTitle, graphXTitle, graphYTitle}) {
        if (watched == box && box->text() == (box == graphTitle ? untitled : untitledAxis))
            box->clear();
    }
    return AnswerDialog::eventFilter(watched, event);
}
