#include "core/session.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

Session session;

Session::Session()
{
    box[0].left = 15; // the corner where every tool starts laying out cards
    box[0].top = 40;
    andOr[0] = andOr[1] = u" "_s;
}

QImage WorkPicture::shown() const
{
    const QRect area(0, 0, width, height);
    if (image.format() == QImage::Format_RGB32 && image.rect().contains(area)) // no background needed
        return image.copy(area);
    QImage surface(area.size(), QImage::Format_RGB32);
    surface.fill(Qt::white);
    QPainter(&surface).drawImage(QPoint(), image);
    return surface;
}

CardStack::CardStack() { std::iota(order.begin(), order.end(), 0); }

void CardStack::bringToFront(int card)
{
    const auto at = std::find(order.begin(), order.end(), card);
    if (at != order.end())
        std::rotate(at, at + 1, order.end());
}

void CardStack::sendToBack(int card)
{
    const auto at = std::find(order.begin(), order.end(), card);
    if (at != order.end())
        std::rotate(order.begin(), at, at + 1);
}

void resetCardTable()
{
    for (int i = 1; i <= session.maxCards; ++i) {
        session.cardValue[i] = {};
        session.cardId[i].clear();
        session.recordName[i].clear();
        CardImage& card = session.box[i];
        card.picture = {};
        card.visible = false;
        card.width = session.cardWidth;
        card.height = session.cardHeight;
    }
    session.box[0].width = session.cardWidth;
    session.box[0].height = session.cardHeight;
}

void resetFieldTable()
{
    for (int f = 1; f <= session.maxFields; ++f) {
        session.fieldName[f] = u"fieldname"_s + QString::number(f);
        session.fieldType[f] = u"Abc"_s;
        session.fieldUseList[f] = false;
    }
}

void clearCardValues(int card)
{
    for (int f = 1; f <= session.maxFields; ++f)
        session.cardValue[card][f].clear();
}

int cardWithId(const QString& cardId)
{
    for (int card = 1; card <= session.numCards; ++card) {
        if (session.cardId[card] == cardId)
            return card;
    }
    return 0;
}
