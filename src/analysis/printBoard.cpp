#include "analysis/printBoard.h"

#include "analysis/printLayout.h"
#include "board/faces.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"
#include "store/cardFiles.h"
#include "store/fileStates.h"

#include <QFontInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double shareOfBoard = 0.88;
constexpr double groupFontScale = 1.3; // of captions under groups, against the screen
constexpr double twipsPerInch = 1440;
constexpr double dotsPerInch = 300; // of the faces

class BoardOnPaper {
public:
    explicit BoardOnPaper(Page& onPage)
        : page(onPage)
        , place(printLayout(page, shareOfBoard))
        , board(boardSize())
    {
    }

    void drawMap();
    void drawVenn();
    void drawCards();
    void drawCaptions();

private:
    double twipsPerPixel() const { return place.printWidth / board.width(); }
    double across(double pixels) const { return place.printWidth * pixels / board.width(); }
    double down(double pixels) const { return place.printHeight * pixels / board.height(); }
    QRectF onPaper(double left, double top, double width, double height) const
    {
        return {place.printMargin + across(left), place.printMargin + down(top), across(width), down(height)};
    }
    template <class Part>
    QRectF onPaper(const Part& part) const
    {
        return onPaper(part.left, part.top, part.width, part.height);
    }
    QImage face(int card) const;
    void drawCircle(const BoardShape& circle);
    void drawCaption(const BoardLabel& label, double fontScale, double room);

    Page& page;
    const PrintLayout place;
    const QSizeF board;
};

/// It lies in the window's corner in its own pixels; the menu band covers its upper edge.
void BoardOnPaper::drawMap()
{
    const QImage& map = session.backgroundImage;
    if (map.isNull())
        return;
    page.clipTo(onPaper(0, menuGreyLine, board.width(), board.height()));
    page.picture(onPaper(0, 0, map.width(), map.height()), map);
    page.clipToSheet();
}

void BoardOnPaper::drawVenn()
{
    if (!session.board.VennBox.visible)
        return;
    page.frame(onPaper(session.board.VennBox));
    drawCircle(session.board.VennLeftCircle);
    drawCircle(session.board.VennRightCircle);
}

void BoardOnPaper::drawCircle(const BoardShape& circle)
{
    const QRectF around = onPaper(circle);
    const double radius = around.width() / 2;
    if (circle.visible)
        page.circle(around.topLeft() + QPointF(radius, radius), radius);
}

void BoardOnPaper::drawCards()
{
    for (const int card : session.cardStack.fromBelow()) {
        if (card == 0 || card > session.numCards || !session.box[card].visible)
            continue;
        const QRectF around = onPaper(session.box[card]);
        page.picture(around, face(card));
        page.frame(around);
    }
}

/// A card whose picture can't be drawn anew keeps the face that it has on the screen.
QImage BoardOnPaper::face(int card) const
{
    const CardImage& image = session.box[card];
    FaceLook look = boardFaceLook();
    look.size = QSizeF(image.width, image.height).toSize();
    look.pixelRatio = twipsPerPixel() * dotsPerInch / twipsPerInch;
    const QString& label = session.cardValue[card][1];
    if (look.strip)
        return cardFace({}, label, look);
    const FileState known = knownState(cardPicturePath(card));
    WorkPicture picture = session.editor.Picture1;
    picture.image = {};
    if (known.error == 0)
        ignoringErrors({[&] { picture.image = decodePicture(known.bytes); }});
    return picture.image.isNull() ? image.picture : cardFace(picture.shown(), label, look);
}

void BoardOnPaper::drawCaptions()
{
    const double anyRoom = page.width();
    drawCaption(session.board.searchTitle, 1, anyRoom);
    drawCaption(session.board.otherTitle, 1, anyRoom);
    const int last = std::min(session.groupTable.numGroups, lastField);
    for (int g = 1; g <= last; ++g) {
        const BoardLabel& label = session.board.groupTitle[g];
        if (label.text != "Other"_L1)
            drawCaption(label, groupFontScale, across(label.width));
    }
}

/// A caption that has less room than it takes becomes smaller, as far as it can still be read.
void BoardOnPaper::drawCaption(const BoardLabel& label, double fontScale, double room)
{
    if (!label.visible)
        return;
    const QFont font = mainView.captionFont();
    const double points = QFontInfo(font).pointSizeF() * fontScale;
    const QString text = label.text.trimmed();
    page.setFont(font, points);
    const double tooWide = page.textWidth(text) / room;
    if (tooWide > 1)
        page.setFont(font, std::max(points / tooWide, points / 2));
    const QString shown = page.textWithin(text, room);
    const QRectF around = onPaper(label);
    page.moveTo(around.center().x() - page.textWidth(shown) / 2, around.top());
    page.print(shown);
}

} // namespace

void drawBoard(Page& page)
{
    BoardOnPaper board(page);
    board.drawMap();
    board.drawVenn();
    board.drawCards();
    board.drawCaptions();
}
