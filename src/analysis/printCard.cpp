#include "analysis/printCard.h"

#include "analysis/printLayout.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"
#include "platform/wholeFile.h"
#include "store/cardFiles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double shareOfCard = 0.88;
constexpr double fontSize = 8 * 1.3;  // points
constexpr double shareOfPicture = 4;  // pictures side by side in the drawing area
constexpr double pictureShape = 0.75; // height to width
constexpr double lineSpacing = 1.5;

} // namespace

void drawCard(Page& page, int card)
{
    if (card < 1 || card > session.numCards)
        throw RuntimeError(fileNotFound);
    QImage picture;
    if (session.cardSize != stripSize)
        picture = decodePicture(readWholeFile(cardPicturePath(card)));

    const PrintLayout place = printLayout(page, shareOfCard);
    const double margin = place.printMargin;
    const double right = page.width() - 0.75 * margin; // the outer frame
    const QSizeF size(place.printWidth / shareOfPicture, place.printWidth / shareOfPicture * pictureShape);
    const QRectF around(QPointF(margin, margin), size);
    if (!picture.isNull())
        page.picture(around, picture);
    page.frame(around);

    page.setFont(u"Arial"_s, fontSize, true);
    for (int f = 1; f <= session.numFields; ++f) {
        const double y = margin + size.height() + lineSpacing * f * page.textHeight();
        const std::pair<double, QString> columns[] = {
            {margin, session.fieldName[f]}, {margin + size.width() / 2, session.cardValue[card][f]}};
        for (const auto& [x, text] : columns) {
            page.moveTo(x, y);
            page.print(page.textWithin(text, right - x));
        }
    }
    const double end = page.currentY();
    page.frame({0.75 * margin, 0.75 * margin, page.width() - 1.5 * margin, end - 0.5 * margin});
}
