// The tip balloon: a pale rounded panel with an optional picture on the left and advice on the right.
#pragma once

#include <QFont>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

#include <optional>

/// What a form keeps of a balloon. Without a font it has its host's, without a text it shows its own name.
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
    /// Raises 380 for no font.
    void setTipFont(const std::optional<QFont>& font);

    /// With "<B>" at every line break. In a text that is set, "<CR>" means the same.
    QString text() const { return shownText; }
    void setText(const QString& text);

    /// Draws the panel anew and cuts the balloon out along its rounded edge.
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
