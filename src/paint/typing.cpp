#include "paint/typing.h"

#include "paint/painting.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int narrowestText = 102;  // pixels of Text1
constexpr QPointF textMargin(2, 2); // of the text in its box

} // namespace

void openText(Painting& painting, QPoint at)
{
    TextBox& box = painting.Text1;
    box.foreColour = painting.Picture1.foreColour;
    if (box.text.isEmpty()) {
        box.width = narrowestText;
        box.height = painting.Picture1.textHeight();
    }
    box.left = at.x();
    box.top = at.y() - box.height / 2;
    box.visible = true;
}

void changeText(Painting& painting, const QString& text)
{
    TextBox& box = painting.Text1;
    box.text = text;
    box.width = std::max(
        {box.width, painting.Picture1.textWidth(QStringLiteral("WW") + text), double(narrowestText)});
}

void stampText(Painting& painting)
{
    TextBox& box = painting.Text1;
    painting.Picture1.pen = QPointF(box.left, box.top) + textMargin;
    if (!box.text.isEmpty())
        painting.Picture1.print(box.text);
    box.visible = false;
    changeText(painting, {});
}
