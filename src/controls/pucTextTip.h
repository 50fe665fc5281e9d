// The tip balloon: a pale rounded panel with an optional picture on the left and advice on the right.
#pragma once

#include <QFont>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

#include <optional>

/// The properties of a balloon. Without a font it uses its parent's; without a text it shows its object name.
struct TipProperties {
    std::optional<QFont> font;
    QImage picture;
    std::optional<QString> text;
};

class pucTextTip : public QWidget {
    Q_OBJECT
public:
    explicit pucTextTip(const QString& name, QWidget* parent = nullptr, const TipProperties& kept = {});

    QImage picture() const { return shownPicture; }
    void setPicture(const QImage& picture);

    QFont tipFont() const;
    /// Raises 380 for an empty font.
    void setTipFont(const std::optional<QFont>& font);

    /// The text with "<B>" for every line break. setText() accepts "<CR>" as well.
    QString text() const { return shownText; }
    void setText(const QString& text);

    /// Redraws the panel and masks the balloon to its rounded outline.
    void Refresh();

    QLabel* const imgPicture;
    QLabel* const lblTip;         // while the text fits
    QPlainTextEdit* const txtTip; // with a scroll bar, when it doesn't

Q_SIGNALS:
    /// "Font", "Picture" or "Text" was set.
    void changed(const QString& property);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    int textLeft() const;
    int textWidth() const;

    QImage shownPicture;
    QString shownText;
};
