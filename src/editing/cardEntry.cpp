#include "editing/cardEntry.h"

#include "board/faces.h"
#include "board/mode.h"
#include "board/places.h"
#include "board/tableView.h"
#include "core/mainView.h"
#include "core/session.h"
#include "core/title.h"
#include "database/loading.h"
#include "editing/cardSound.h"
#include "platform/desktop.h"
#include "platform/fonts.h"
#include "platform/values.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"
#include "store/fileStates.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace {

constexpr double boxWidth = 161; // of a value box, in design pixels
constexpr int formFontSize = 11; // pixels: 8.25 points

double widthInForm(const QString& text)
{
    QFont font = namedFont(u"Arial"_s, 8.25);
    font.setPixelSize(formFontSize);
    return QFontMetricsF(font).horizontalAdvance(text);
}

void beginCard(int card)
{
    session.numCards = card;
    session.selectedCard = qint16(card);
    clearCardValues(card);
    session.cardId[card] = newCardId();
    session.recordName[card].clear();
    session.editor.Picture1.image = {};
    saveCardPicture(card);
    drawCardFace(card);
    session.box[card].visible = true;
    placeCardAtRandom(card);
    saveCardPosition(card);
    markCard(card);
}

/// When the view couldn't be changed and the table stays: scrolls to the new card's row.
void showNewRow()
{
    ++session.table.gridScroll.max;
    scrollTableTo(session.table.gridScroll.max - 1);
    session.table.gridEditRow = session.selectedCard - session.table.gridScroll.value;
    session.table.gridEditCol = 2;
    mainView.redrawTable();
}

void takeBackCard(int card)
{
    session.numCards = card - 1;
    session.box[card].visible = false;
    session.selectedCard = qint16(session.numCards);
    session.board.SelectBox.visible = false; // it was around the removed card
    if (session.selectedCard > 0)
        markCard(session.selectedCard);
    mainView.redrawBoard();
}

/// Loads the card's values again when its record has changed on the disk since. Its place on the board stays.
bool reloadValues(int card)
{
    const QString record = cardRecordPath(card);
    const FileState now = stateOnDisk(record);
    if (now.error || now == knownState(record))
        return false;
    const QString place = session.cardValue[card][0];
    loadCardValues(card);
    if (!place.isEmpty())
        session.cardValue[card][0] = place;
    return true;
}

/// Shows the card's picture in `Picture1`. True when it has changed on the disk since it was loaded.
bool reloadPicture(int card)
{
    const FileState before = knownState(cardPicturePath(card));
    loadCardPicture(card);
    return !session.editor.Picture1.image.isNull() && knownState(cardPicturePath(card)) != before;
}

} // namespace

void fillEditor(int card)
{
    bool changed = reloadValues(card);
    session.editor.cardSoundFound = cardHasSound(card) ? session.cardId[card] + soundEnding : QString();
    session.selectedCard = qint16(card);
    session.editor.shrinkdummy.width = int(session.box[1].width);
    session.editor.shrinkdummy.height = int(session.box[1].height);
    session.editor.shrinkdummy.image = {};
    session.editor.Picture1.image = {};
    session.editor.Picture1.visible = session.cardSize != stripSize;
    if (session.editor.Picture1.visible)
        changed |= reloadPicture(card);
    session.editor.openedPicture = session.editor.Picture1.shown();
    if (changed)
        drawCardFace(card);
    for (int f = 1; f <= session.numFields; ++f) {
        session.editor.DataBox[f] = session.cardValue[card][f];
        session.editor.fieldName[f] = session.fieldName[f];
    }
}

QString fittingValue(const QString& text)
{
    QString fitting = text;
    while (!fitting.isEmpty() && widthInForm(fitting) >= boxWidth)
        fitting.chop(fitting.back().isLowSurrogate() ? 2 : 1); // never half a surrogate pair
    if (fitting != text)
        desktop.sound.beep();
    return fitting;
}

QString allowedValue(int f, const QString& text)
{
    if (session.fieldType[f] != "123"_L1)
        return text;
    const QString typed = withDecimalPoints(text);
    QString allowed;
    std::copy_if(typed.begin(), typed.end(), std::back_inserter(allowed),
                 [](QChar c) { return u"0123456789."_s.contains(c); });
    return allowed;
}

bool keepCard(bool withRecording)
{
    const int card = session.selectedCard;
    const QByteArray sound = withRecording ? lastRecording() : QByteArray();
    bool othersWereKept = false;
    if (!withErrorBox([&] { othersWereKept = writeEditedCard(card, sound); }))
        return false;
    ignoringErrors({
        [card] { drawCardFace(card); },
        [] { session.dialogResult = u"OK"_s; },
        [] { loadAllCards(); },
    });
    if (othersWereKept)
        desktop.boxes.showMessage(
            MessageIcon::information, u"Edit Card"_s,
            u"Somebody else has changed this card too. Your card is saved, and theirs is kept."_s);
    return true;
}

void addCard()
{
    withErrorBox([] {
        showCardMode();
        if (session.numCards >= session.maxCards)
            return;
        if (session.table.panel.visible && session.table.editBox.visible)
            storeCell();
        const int card = session.numCards + 1;
        beginCard(card);
        if (session.table.panel.visible) {
            showNewRow();
        } else {
            mainView.openCard(card);
            if (session.dialogResult == "Cancel"_L1)
                takeBackCard(card);
        }
        updateTitle();
    });
}
