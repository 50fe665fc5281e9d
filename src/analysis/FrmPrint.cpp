#include "analysis/FrmPrint.h"

#include "analysis/printBoard.h"
#include "analysis/printGraph.h"
#include "analysis/printJob.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/values.h"
#include "store/options.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QRadioButton>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize previewSize(226, 160);
constexpr QSize cardPreviewSize(160, 120);
constexpr int columnWidth = 290;

QLabel* preview(const char* name)
{
    auto* label = named(new QLabel, name);
    label->setProperty("role", u"sheet"_s);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

/// A small picture of the page. What can't be drawn leaves an empty sheet.
QPixmap pagePicture(const PageDrawing& draw)
{
    const double ratio = desktop.screen.pixelRatio();
    const QSizeF sheet = usualSheetFor(PaperShape::landscape);
    const QSize pixels = previewSize * ratio;
    QImage picture = pictureOf(sheet, pixels, [](Page&) {});
    ignoringErrors({[&] { picture = pictureOf(sheet, pixels, draw); }});
    picture.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(picture);
}

/// The face that the card has on the board.
QPixmap cardPicture(int card)
{
    const QImage& onBoard = session.box[card].picture;
    if (onBoard.isNull())
        return {};
    const double ratio = desktop.screen.pixelRatio();
    const QImage face =
        onBoard.scaled(cardPreviewSize * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap picture = QPixmap::fromImage(face);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

bool isCard(int card) { return card >= 1 && card <= session.numCards; }

/// The printer whose index is stored, else the computer's own. "Save as PDF" stands in for none.
int printerToSelect(const QStringList& printers)
{
    int index = -1;
    ignoringErrors({[&] { index = toInteger(leadingNumber(read(option::printer))); }});
    if (printers.isEmpty())
        return 0;
    if (index < 0 || index >= printers.size())
        index = int(printers.indexOf(desktop.paper.defaultPrinterName()));
    return std::max(index, 0);
}

} // namespace

FrmPrint::FrmPrint()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , Option1(named(new QRadioButton(u"Print &Screen"_s), "Option1"))
    , Option2(named(new QRadioButton(u"Print &Card"_s), "Option2"))
    , Option3(named(new QRadioButton(u"Print &Graph"_s), "Option3"))
    , Option4(named(new QRadioButton(u"Print Table (Not available in this version)"_s), "Option4"))
    , lblScr(named(
          words(u"This option allows you to print the cards as they are on the screen"_s, "explanation"),
          "lblScr"))
    , lblCard(named(words(u"This option allows you to print a selected card"_s, "explanation"), "lblCard"))
    , lblgraph(named(words(u"This option allows you to print a selected Graph"_s, "explanation"), "lblgraph"))
    , ScrPrev(preview("ScrPrev"))
    , CardPrev(preview("CardPrev"))
    , GrafPrev(preview("GrafPrev"))
    , Printercombo(named(new DropDown, "Printercombo"))
    , choices{{{Option1, lblScr, ScrPrev, "Screen"},
               {Option2, lblCard, CardPrev, "Card"},
               {Option3, lblgraph, GrafPrev, "Graph"}}}
{
    setObjectName(u"FrmPrint"_s);
    setWindowTitle(u"Print"_s);
    Option4->setEnabled(false);

    auto* top = new QHBoxLayout;
    top->addWidget(pictureLabel(u"menuPrint"_s, {48, 48}));
    top->addWidget(named(words(u"Print"_s, "heading"), "lblPrint"), 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 12, 20, 12);
    column->setSpacing(10);
    column->addLayout(top);
    column->addLayout(choiceRow());
    column->addWidget(Option4, 0, Qt::AlignLeft);
    column->addLayout(printerRow());
    column->addStretch(1);
    column->addLayout(answerRow(answers));
    connectControls();
}

QLayout* FrmPrint::choiceRow()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    int column = 0;
    for (const Choice& choice : choices) {
        choice.preview->setFixedSize(columnWidth, previewSize.height() + 20);
        choice.preview->installEventFilter(this);
        choice.option->setAccessibleDescription(choice.words->text());
        choice.words->setFixedWidth(columnWidth);
        choice.words->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        grid->addWidget(choice.preview, 0, column);
        grid->addWidget(choice.option, 1, column);
        grid->addWidget(choice.words, 2, column, Qt::AlignTop);
        ++column;
    }
    return grid;
}

QLayout* FrmPrint::printerRow()
{
    auto* label = words(u"&Printer:"_s);
    label->setWordWrap(false);
    label->setBuddy(Printercombo);
    Printercombo->setMeaning(u"Printer"_s);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(Printercombo, 1);
    return row;
}

void FrmPrint::connectControls()
{
    for (const Choice& choice : choices)
        onToggle(choice.option, [this, word = choice.word](bool chosen) {
            if (chosen)
                session.paper.printChoice = QLatin1String(word);
            markChosen();
        });
    onClick(answers->ok, [this] { confirm(); });
    onClick(answers->cancel, [] { answerAndUnload<FrmPrint>(u"Cancel"_s); });
}

void FrmPrint::load()
{
    Option1->setChecked(true);
    const bool card = isCard(session.selectedCard);
    const bool graph = session.graph.graphOnScreen == 1;
    for (const auto& [choice, possible] : {std::pair(choices[1], card), {choices[2], graph}}) {
        choice.option->setEnabled(possible);
        choice.words->setEnabled(possible);
        choice.preview->setEnabled(possible);
    }
    for (const Choice& choice : choices) {
        choice.words->ensurePolished(); // its lines are as high as the style sheet's font
        choice.words->setMinimumHeight(choice.words->heightForWidth(columnWidth));
    }
    letTabFindTheChosen({Option1, Option2, Option3});
    showPreviews();
    loadPrinters();
    Option1->setFocus();
}

void FrmPrint::showPreviews()
{
    ScrPrev->setPixmap(pagePicture(drawBoard));
    if (Option2->isEnabled())
        CardPrev->setPixmap(cardPicture(session.selectedCard));
    if (Option3->isEnabled())
        GrafPrev->setPixmap(pagePicture(drawGraphPage));
}

void FrmPrint::markChosen()
{
    for (const Choice& choice : choices) {
        choice.preview->setProperty("lit", choice.option->isChecked());
        style()->polish(choice.preview);
    }
}

void FrmPrint::loadPrinters()
{
    offered = desktop.paper.printerNames();
    Printercombo->clear();
    Printercombo->addItems(offered);
    Printercombo->addItem(u"Save as PDF"_s);
    Printercombo->setCurrentIndex(session.paper.saveAsPdf ? int(offered.size()) : printerToSelect(offered));
}

/// "Save as PDF" isn't stored: after the next start the class's printer is offered again.
void FrmPrint::confirm()
{
    const int index = Printercombo->currentIndex();
    session.paper.saveAsPdf = index >= offered.size();
    if (!session.paper.saveAsPdf) {
        session.paper.Printercombo = {offered, index};
        write(option::printer, QString::number(index));
    }
    answerAndUnload<FrmPrint>(u"OK"_s);
}

bool FrmPrint::eventFilter(QObject* watched, QEvent* event)
{
    for (const Choice& choice : choices) {
        if (event->type() == QEvent::MouseButtonRelease && watched == choice.preview &&
            choice.option->isEnabled())
            choice.option->setChecked(true);
    }
    return AnswerDialog::eventFilter(watched, event);
}
