#include "controls/pucTextTip.h"

#include "platform/errors.h"

#include <QBitmap>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int leftMargin = 8;
constexpr int afterPicture = 8;
constexpr int topMargin = 6;
constexpr int rightMargin = 8;
constexpr int bothMargins = 12; // above and below the text
constexpr double cornerRadius = 10;

const QString lineBreak = u"<B>"_s;

QRectF panelOf(const QWidget& balloon) { return QRectF(balloon.rect()).adjusted(0.5, 0.5, -0.5, -0.5); }

/// Set by a style sheet: the application's sheet would override a font set in any other way.
QString asStyle(const QFont& font)
{
    return u"pucTextTip QWidget { font: %1 %2 %3pt \"%4\"; }"_s.arg(font.italic() ? u"italic"_s : u"normal"_s)
        .arg(font.weight())
        .arg(font.pointSizeF())
        .arg(font.family());
}

} // namespace

pucTextTip::pucTextTip(const QString& name, QWidget* parent, const TipProperties& kept)
    : QWidget(parent)
    , imgPicture(new QLabel(this))
    , lblTip(new QLabel(this))
    , txtTip(new QPlainTextEdit(this))
{
    setObjectName(name);
    imgPicture->setObjectName(u"imgPicture"_s);
    lblTip->setObjectName(u"lblTip"_s);
    txtTip->setObjectName(u"txtTip"_s);
    lblTip->setWordWrap(true);
    lblTip->setTextFormat(Qt::PlainText);
    lblTip->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    txtTip->setReadOnly(true);
    txtTip->setTabChangesFocus(true);
    txtTip->document()->setDocumentMargin(0);
    txtTip->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    txtTip->hide();

    if (kept.font)
        setTipFont(kept.font);
    setPicture(kept.picture);
    setText(kept.text.value_or(name));
    Refresh();
}

void pucTextTip::setPicture(const QImage& picture)
{
    shownPicture = picture;
    imgPicture->setPixmap(QPixmap::fromImage(picture));
    layOut();
    Q_EMIT changed(u"Picture"_s);
}

QFont pucTextTip::tipFont() const
{
    lblTip->ensurePolished();
    return lblTip->font();
}

void pucTextTip::setTipFont(const std::optional<QFont>& font)
{
    if (!font)
        throw RuntimeError(invalidProperty, u"Cannot set Font to Nothing"_s);
    setStyleSheet(asStyle(*font));
    Q_EMIT changed(u"Font"_s);
    setText(shownText);
    Refresh();
}

void pucTextTip::setText(const QString& text)
{
    shownText = QString(text).replace(u"<CR>"_s, lineBreak);
    const QString lines = QString(shownText).replace(lineBreak, u"\n"_s);
    lblTip->setText(lines);
    txtTip->setPlainText(lines);

    lblTip->ensurePolished();
    const int height = lblTip->heightForWidth(textWidth());
    lblTip->resize(textWidth(), height);
    txtTip->resize(textWidth(), txtTip->height());
    const bool fits = this->height() - bothMargins >= height;
    lblTip->setVisible(fits);
    txtTip->setVisible(!fits);
    Q_EMIT changed(u"Text"_s);
}

void pucTextTip::Refresh()
{
    QBitmap panel(size());
    panel.fill(Qt::color0);
    QPainter painter(&panel);
    painter.setPen(Qt::color1);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(panelOf(*this), cornerRadius, cornerRadius);
    painter.end();
    setMask(panel);
    update();
}

void pucTextTip::resizeEvent(QResizeEvent*) { layOut(); }

void pucTextTip::showEvent(QShowEvent*) { Refresh(); }

void pucTextTip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(foregroundRole()));
    painter.setBrush(palette().color(backgroundRole()));
    painter.drawRoundedRect(panelOf(*this), cornerRadius, cornerRadius);
}

void pucTextTip::layOut()
{
    imgPicture->adjustSize();
    imgPicture->move(leftMargin, topMargin);
    const QRect place(textLeft(), topMargin, textWidth(), height() - bothMargins);
    lblTip->setGeometry(place);
    txtTip->setGeometry(place);
    setText(shownText);
    Refresh();
}

int pucTextTip::textLeft() const
{
    if (shownPicture.isNull())
        return leftMargin;
    return leftMargin + int(shownPicture.deviceIndependentSize().width()) + afterPicture;
}

int pucTextTip::textWidth() const { return std::max(0, width() - (textLeft() + rightMargin)); }
