// A label that may be too small for its text.
#pragma once

#include <QLabel>

/// Shows as many lines as fit its height. If the text is still too long, the middle of the last line is
/// elided; pointing at the label or touching it shows the whole text. Assistive technology always reads the
/// whole text.
class FittedLabel : public QLabel {
    Q_OBJECT
public:
    FittedLabel();

    /// The text as displayed, with "…" where it is elided.
    QString textInView() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QSize minimumSizeHint() const override;

private:
    int lineHeight() const;
};
