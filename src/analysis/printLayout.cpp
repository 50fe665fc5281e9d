#include "analysis/printLayout.h"

#include "core/session.h"
#include "platform/errors.h"

#include <algorithm>

QSizeF boardSize()
{
    const QSizeF board(session.board.width, session.board.height - menuGreyLine);
    if (board.isEmpty())
        throw RuntimeError(invalidProperty);
    return board;
}

PrintLayout printLayout(const Page& page, double share)
{
    const QSizeF board = boardSize();
    PrintLayout place;
    place.printMargin = session.paper.printScale * page.height();
    place.printHeight = (page.height() - 2 * place.printMargin) * share;
    place.printWidth = place.printHeight * board.width() / board.height();
    const double room = page.width() - 2 * place.printMargin;
    const double fit = std::min(1.0, room / place.printWidth);
    place.printWidth *= fit;
    place.printHeight *= fit;
    return place;
}
