#include "paint/picEdit.h"

#include "controls/balloon.h"
#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "core/session.h"
#include "paint/canvasWidget.h"
#include "paint/paintButton.h"
#include "paint/painter.h"
#include "paint/typing.h"
#include "platform/desktop.h"
#include "platform/picture.h"
#include "platform/pictureFile.h"
#include "store/settings.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(545, 339);
constexpr QPoint canvasPlace(84, 16);
constexpr QRect paletteArea(84, 272, 321, 57); // Shape1
constexpr QRect answerArea(416, 16, 121, 153);
constexpr int answerGap = 7; // between OK and Cancel
constexpr QRect hintArea(412, 172, 129, 82);
constexpr QRect importArea(416, 256, 121, 73);
constexpr QRect undoArea(8, 200, 32, 32);
constexpr QSize toolSize(32, 32);
constexpr QSize swatchSize(24, 24);
constexpr int pickerTool = 12;

/// The tools in the order of the keys 1, 2, … 9, 0: as their buttons stand in the window.
constexpr int toolsByKey[] = {0, 1, 2, 3, 4, 5, 6, 7, 11, 9};

const QString firstHint = u"First click a tool, then draw."_s;

QPushButton* placedButton(const char* name, const QString& text, const QRect& place, QWidget* parent)
{
    auto* button = named(new QPushButton(text, parent), name);
    button->setGeometry(place);
    return button;
}

QPushButton* hiddenButton(const char* name, const QString& text, QWidget* parent)
{
    auto* button = placedButton(name, text, importArea, parent);
    button->hide();
    return button;
}

bool isBright(QRgb colour) { return qGray(colour) > 140; }

} // namespace

picEdit::picEdit()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , Picture1(new CanvasWidget(painting))
    , Text1(named(new QLineEdit(Picture1), "Text1"))
    , UndoBut(placedButton("UndoBut", {}, undoArea, this))
    , BtnImport(placedButton("BtnImport", u"Import\nImage..."_s, importArea, this))
    , BtnClipart(hiddenButton("BtnClipart", u"Clipart..."_s, this))
    , hint(words(firstHint))
{
    setObjectName(u"picEdit"_s);
    setWindowTitle(u"Tallymoor Image Editor"_s);
    setFixedSize(windowSize);
    Picture1->setParent(this);
    Picture1->move(canvasPlace);
    Text1->setFrame(false);
    Text1->setMaxLength(longestText);
    Text1->setAccessibleName(u"Text"_s);
    addTools();
    addColours();
    addAnswers();
    addShadows();
    orderTabs();
    connectControls();
}

void picEdit::addTools()
{
    auto* group = new QButtonGroup(this);
    for (int index = 0; index < numTools; ++index) {
        const Tool& tool = toolAt(index);
        const QRect place(tool.place.value_or(QPoint(0, windowSize.height())), toolSize);
        ToolPic[index] =
            element(new PaintButton(QLatin1String(tool.name), QLatin1String(tool.icon), place, this),
                    "ToolPic", index);
        ToolPic[index]->setVisible(tool.place.has_value());
        ToolPic[index]->setToolTip(QLatin1String(tool.name));
        ToolPic[index]->setAccessibleDescription(QLatin1String(tool.hint));
        ToolPic[index]->installEventFilter(this);
        if (index == pickerTool)
            ToolPic[index]->setAutoExclusive(false); // once framed, it stays so
        else
            group->addButton(ToolPic[index], index);
    }
    UndoBut->setIcon(QIcon(picturePath(u"undo"_s)));
    UndoBut->setAccessibleName(u"Undo"_s);
    UndoBut->setToolTip(u"Undo"_s);
    UndoBut->setCursor(Qt::PointingHandCursor);
    UndoBut->installEventFilter(this);
}

void picEdit::addColours()
{
    auto* Shape1 = named(new QFrame(this), "Shape1");
    Shape1->setGeometry(paletteArea);
    auto* group = new QButtonGroup(this);
    for (int index = 0; index < numColours; ++index) {
        const PaletteColour& entry = paletteColours[std::size_t(index)];
        const QRect place(entry.place, swatchSize);
        colourSwatch[index] =
            element(new PaintButton(QLatin1String(entry.name), {}, place, this), "colourSwatch", index);
        colourSwatch[index]->setToolTip(QLatin1String(entry.name));
        group->addButton(colourSwatch[index], index);
    }
}

void picEdit::addAnswers()
{
    answers->setGeometry(answerArea);
    answers->ok->setDefault(false); // Return stamps a text; it must not end the drawing
    auto* column = static_cast<QBoxLayout*>(answers->layout());
    column->setDirection(QBoxLayout::TopToBottom);
    column->setSpacing(answerGap);
    for (QPushButton* button : {answers->ok, answers->cancel})
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    named(hint, "hint")->setParent(this);
    hint->setGeometry(hintArea);
    hint->setAlignment(Qt::AlignCenter);
    BtnImport->setAccessibleName(u"Import Image"_s);
    giveHint(*BtnImport, u"Click here to import external images into Tallymoor"_s);
    giveHint(*BtnClipart, u"Click here to import Clipart into Tallymoor"_s);
    auto* video = videoButton(u"Entering Data"_s);
    video->setParent(this);
    video->hide();
}

void picEdit::addShadows()
{
    constexpr const char* names[] = {"ShadowLeft", "ShadowTop", "ShadowRight", "ShadowBot"};
    for (std::size_t side = 0; side < std::size(names); ++side) {
        shadows[side] = named(new QFrame(this), names[side]);
        shadows[side]->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

/// From the tools over the canvas to the colours and the answers. Of each group Tab finds the chosen one.
void picEdit::orderTabs()
{
    std::vector<QWidget*> order(ToolPic.begin(), ToolPic.end());
    order.insert(order.end(), {UndoBut, Picture1, Text1});
    order.insert(order.end(), colourSwatch.begin(), colourSwatch.end());
    order.insert(order.end(), {answers->ok, answers->cancel, BtnImport});
    for (std::size_t next = 1; next < order.size(); ++next)
        setTabOrder(order[next - 1], order[next]);
}

void picEdit::connectControls()
{
    for (int index = 0; index < numTools; ++index)
        onClick(ToolPic[index], [this, index] { clickTool(index); });
    for (int index = 0; index < numColours; ++index)
        onClick(colourSwatch[index], [this, index] {
            selectColour(painting, index);
            showPainting();
        });
    onClick(UndoBut, [this] {
        undo(painting);
        Picture1->update();
    });
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, UndoBut,
            [this] { UndoBut->click(); });
    connect(Picture1, &CanvasWidget::painted, this, [this] { guarded([this] { showText(); }); });
    connect(Picture1, &CanvasWidget::fileDropped, this, [this](const QString& file) {
        guarded([&] { dropPicture(painting, readPicture(file, canvasOuterSize)); });
        Picture1->update();
    });
    connect(Text1, &QLineEdit::textEdited, this, [this](const QString& text) {
        changeText(painting, text);
        showText();
    });
    connect(Text1, &QLineEdit::returnPressed, this, [this] { guarded([this] { stamp(); }); });
    onClickLater(BtnImport, [this] { importImage(); });
    onClick(BtnClipart, [this] { startClipart(); });
    onClick(answers->ok, [this] {
        stamp();
        answer(u"OK"_s);
    });
    onClick(answers->cancel, [] { unload<picEdit>(); });
}

void picEdit::load()
{
    frame(ToolPic[0]->geometry());
    lblBPath = readSetting(settingsFile(), u"Clipart"_s, u"Browserpath"_s, u"Not specified"_s);
}

void picEdit::showPainting()
{
    for (int index = 0; index < numTools; ++index)
        ToolPic[index]->setColour(painting.Picture1.foreColour);
    for (int index = 0; index < numColours; ++index)
        colourSwatch[index]->setColour(painting.colourSwatch[index]);
    ToolPic[painting.currentTool]->setChecked(true);
    colourSwatch[painting.selectedColour]->setChecked(true);
    for (PaintButton* swatch : colourSwatch)
        letTabFindTheChosen({swatch});
    Picture1->setEnabled(painting.enabled);
    Picture1->showCursor();
    Picture1->update();
    const Tool& tool = toolAt(painting.currentTool);
    hint->setText(painting.enabled ? QLatin1String(tool.name) + u":\n"_s + QLatin1String(tool.hint)
                                   : firstHint);
    showText();
}

void picEdit::frame(const QRect& place)
{
    const QRect around = place.adjusted(-1, -1, 1, 1);
    shadows[0]->setGeometry(around.left(), around.top(), 1, around.height());
    shadows[1]->setGeometry(around.left(), around.top(), around.width(), 1);
    shadows[2]->setGeometry(around.right(), around.top(), 1, around.height());
    shadows[3]->setGeometry(around.left(), around.bottom(), around.width(), 1);
}

void picEdit::clickTool(int index)
{
    Picture1->liftKeys(); // with the tool that began
    ::clickTool(painting, index);
    showPainting();
}

/// The text box lies where the painting has it. A text in a bright colour is typed on a dark ground.
void picEdit::showText()
{
    const TextBox& box = painting.Text1;
    if (Text1->text() != box.text)
        Text1->setText(box.text);
    const bool opens = box.visible && Text1->isHidden();
    Text1->setGeometry(QRectF(box.left + 1, box.top + 1, box.width, box.height).toRect());
    const QString colour = u"color: %1"_s.arg(QColor(box.foreColour).name());
    if (Text1->styleSheet() != colour) {
        Text1->setProperty("bright", isBright(box.foreColour));
        Text1->setStyleSheet(colour);
    }
    Text1->setVisible(box.visible);
    if (opens)
        Text1->setFocus();
}

void picEdit::stamp()
{
    if (!painting.Text1.visible)
        return;
    stampText(painting);
    showText();
    Picture1->update();
    Picture1->setFocus();
}

/// A file that can't be read paints the last import once more.
void picEdit::importImage()
{
    const QString file = desktop.files.choosePicture(u"Import Image"_s, desktop.files.programFolder(),
                                                     u"All Supported Images (*.bmp *.gif *.jpg *.wmf)"_s);
    if (file.isEmpty())
        return;
    QImage read;
    ignoringErrors({[&] { read = readPicture(file, canvasOuterSize); }});
    importPicture(painting, read);
    Picture1->update();
}

void picEdit::startClipart()
{
    try {
        desktop.programs.startCommand(lblBPath);
    } catch (const RuntimeError& failure) {
        desktop.boxes.showMessage(
            MessageIcon::exclamation, u"Warning"_s,
            failure.description() +
                u". You may need to specify the path for Clipart browser in (Teacher's Options).\n"
                "You can still use the clipart on the CD-ROM. You will find under the [Clipart] folder."_s);
    }
}

/// Escape does nothing: a drawing is not thrown away by one key. Digits take up the tools.
void picEdit::keyPressEvent(QKeyEvent* event)
{
    const int digit = event->key() - Qt::Key_0;
    if (digit < 0 || digit > 9 || event->modifiers().testFlag(Qt::ControlModifier))
        return;
    guarded([&] { clickTool(toolsByKey[(digit + 9) % 10]); });
    Picture1->setFocus(Qt::ShortcutFocusReason);
}

void picEdit::mousePressEvent(QMouseEvent* event)
{
    if (!painting.enabled && Picture1->geometry().contains(event->pos()))
        showHint(*this, firstHint);
}

bool picEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::HoverMove)
        frame(static_cast<QWidget*>(watched)->geometry());
    return false;
}

void openPictureEditor()
{
    WorkPicture& card = session.editor.Picture1;
    auto& editor = form<picEdit>();
    openPainting(editor.painting, card.shown());
    editor.showPainting();
    editor.ToolPic[0]->setFocus();
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false); // or brushes cut corners
    const bool taken = saysOk(editor);
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, true);
    if (!taken || !isLoaded<picEdit>())
        return;
    Painting& painting = form<picEdit>().painting;
    const QImage painted = paintedCard(painting, {card.width, card.height});
    if (painted != card.shown())
        card.image = painted; // else it is the very picture of its file
    clearPainting(painting);
}
