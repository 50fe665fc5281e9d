#include "editing/cardEditor.h"

#include "board/faces.h"
#include "board/mode.h"
#include "board/places.h"
#include "board/tableView.h"
#include "core/screen.h"
#include "core/session.h"
#include "core/title.h"
#include "platform/desktop.h"
#include "platform/fonts.h"
#include "store/cardFiles.h"
#include "store/loading.h"

#include <QFontMetricsF>

namespace {

constexpr int stripSize = 2;
constexpr double boxWidth = 161; // of a box, in pixels of the form's design
constexpr int formFontSize = 11; // pixels: 8.25 points
constexpr int idLength = 8;

double widthInForm(const QString& text)
{
    QFont font = namedFont(QStringLiteral("Arial"), 8.25);
    font.setPixelSize(formFontSize);
    return QFontMetricsF(font).horizontalAdvance(text);
}

QString newCardId()
{
    QString id;
    for (int i = 0; i < idLength; ++i)
        id += QChar(int(desktop.random() * 26) + 'A');
    return id;
}

void beginCard(int card)
{
    session.numCards = card;
    session.selectedCard = qint16(card);
    clearCardValues(card);
    session.cardId[card] = newCardId();
    session.Picture1.image = {};
    saveCardPicture(card);
    drawCardFace(card);
    session.box[card].visible = true;
    placeCardAtRandom(card);
    saveCardPosition(card);
    markCard(card);
}

/// The table stayed because the view could not be changed: the new card's row comes into view.
void showNewRow()
{
    ++session.gridScroll.max;
    scrollTableTo(session.gridScroll.max - 1);
    session.gridEditRow = session.selectedCard - session.gridScroll.value;
    session.gridEditCol = 2;
    screen.redrawTable();
}

void takeBackCard(int card)
{
    session.numCards = card - 1;
    session.box[card].visible = false;
    session.selectedCard = qint16(session.numCards);
    session.SelectBox.visible = false; // it framed the card that is gone
    if (session.selectedCard > 0)
        markCard(session.selectedCard);
    screen.redrawBoard();
}

} // namespace

void fillEditor(int card)
{
    session.cardSoundFound = cardHasSound(card) ? session.cardId[card] + QStringLiteral(".snd") : QString();
    session.selectedCard = qint16(card);
    session.shrinkdummy.width = int(session.box[1].width);
    session.shrinkdummy.height = int(session.box[1].height);
    session.shrinkdummy.image = {};
    session.Picture1.image = {};
    session.Picture1.visible = session.cardSize != stripSize;
    if (session.Picture1.visible)
        loadCardPicture(card);
    for (int f = 1; f <= session.numFields; ++f) {
        session.DataBox[f] = session.cardValue[card][f];
        session.editorFieldName[f] = session.fieldName[f];
    }
    session.dialogResult.clear();
}

QString fittingValue(const QString& text)
{
    QString fitting = text;
    while (!fitting.isEmpty() && widthInForm(fitting) >= boxWidth)
        fitting.chop(fitting.back().isLowSurrogate() ? 2 : 1); // never half a character
    if (fitting != text)
        desktop.beep();
    return fitting;
}

QString allowedValue(int f, const QString& text)
{
    if (session.fieldType[f] != QLatin1String("123"))
        return text;
    QString allowed;
    std::copy_if(text.begin(), text.end(), std::back_inserter(allowed),
                 [](QChar c) { return QStringLiteral("0123456789.").contains(c); });
    return allowed;
}

void keepCard()
{
    const int card = session.selectedCard;
    ignoringErrors({
        [card] { writeCardValues(card); },
        [card] { writeCardPicture(card); },
        [card] { drawCardFace(card); },
        [] { session.dialogResult = QStringLiteral("OK"); },
        [] { loadAllCards(); },
    });
}

void addCard()
{
    withErrorBox([] {
        showCardMode();
        if (session.numCards >= session.maxCards)
            return;
        if (session.tablePanel.visible && session.editBox.visible)
            storeCell();
        const int card = session.numCards + 1;
        beginCard(card);
        if (session.tablePanel.visible) {
            showNewRow();
        } else {
            screen.openCard(card);
            if (session.dialogResult == QLatin1String("Cancel"))
                takeBackCard(card);
        }
        updateTitle();
    });
}
