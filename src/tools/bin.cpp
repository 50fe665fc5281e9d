#include "tools/bin.h"

#include "board/mode.h"
#include "board/places.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/title.h"
#include "platform/errors.h"
#include "store/loading.h"
#include "store/paths.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace {

void removeFile(const QString& name)
{
    const QString path = filePathIn(session.dbPath, name);
    if (!path.isEmpty())
        QFile::remove(path);
}

/// The card that has the identity now; 0 when none has: another workstation may have been quicker.
int cardWithId(const QString& cardId)
{
    for (int card = 1; card <= session.numCards; ++card) {
        if (session.cardId[card] == cardId)
            return card;
    }
    return 0;
}

void scatterCards()
{
    for (int card = 1; card <= session.numCards; ++card) {
        placeCardAtRandom(card);
        saveCardPosition(card);
    }
    screen.redrawBoard();
}

} // namespace

void showBin()
{
    showCardMode();
    Bin& bin = session.BigBin;
    bin.left = std::clamp(bin.left, 0.0, std::max(0.0, session.boardWidth - bin.width));
    bin.top = std::clamp(bin.top, 0.0, std::max(0.0, session.boardHeight - bin.height));
    bin.visible = true;
    screen.redrawBoard();
}

bool liesOnBin(int card)
{
    const Bin& bin = session.BigBin;
    const CardImage& image = session.box[card];
    const double dx = std::abs((image.left + image.width / 2) - (bin.left + bin.width / 2));
    const double dy = std::abs((image.top + image.height / 2) - (bin.top + bin.height / 2));
    return bin.visible && dx < bin.width / 2 && dy < bin.height / 2;
}

void deleteCard(const QString& cardId)
{
    ignoringErrors({
        [&] { removeFile(cardId + QStringLiteral(".tcd")); },
        [&] { removeFile(cardId + QStringLiteral(".bmp")); },
        [&] { removeFile(cardId + QStringLiteral(".snd")); },
        [&] {
            if (const int card = cardWithId(cardId); card != 0)
                clearCardValues(card);
        },
        loadAllCards,
        [] {
            if (session.txtDelRandomCard == QLatin1String("1"))
                scatterCards();
        },
        updateTitle,
    });
}
