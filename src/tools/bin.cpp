#include "tools/bin.h"

#include "board/mode.h"
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "core/title.h"
#include "database/loading.h"
#include "platform/errors.h"
#include "store/cardFiles.h"
#include "store/keptVersions.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

void scatterCards()
{
    for (int card = 1; card <= session.numCards; ++card) {
        placeCardAtRandom(card);
        saveCardPosition(card);
    }
    mainView.redrawBoard();
}

} // namespace

void showBin()
{
    showCardMode();
    Bin& bin = session.board.BigBin;
    bin.left = std::clamp(bin.left, 0.0, std::max(0.0, session.board.width - bin.width));
    bin.top = std::clamp(bin.top, 0.0, std::max(0.0, session.board.height - bin.height));
    bin.visible = true;
    mainView.redrawBoard();
}

bool liesOnBin(int card)
{
    const Bin& bin = session.board.BigBin;
    const CardImage& image = session.box[card];
    const double dx = std::abs((image.left + image.width / 2) - (bin.left + bin.width / 2));
    const double dy = std::abs((image.top + image.height / 2) - (bin.top + bin.height / 2));
    return bin.visible && session.databaseStatus != "RO"_L1 && dx < bin.width / 2 && dy < bin.height / 2;
}

void deleteCard(const QString& cardId, const QString& recordName)
{
    ignoringErrors({
        [&] { moveToKept(cardFilesOfOneRecord(cardId, recordName)); },
        [&] {
            if (const int card = cardWithId(cardId); card != 0)
                clearCardValues(card);
        },
        loadAllCards,
        [] {
            if (session.options.txtDelRandomCard == "1"_L1)
                scatterCards();
        },
        updateTitle,
    });
}
