// A label that may be too small for its text.
#pragma once

#include <QLabel>

/// Shows as many lines as its height has room for. Of a text that is still too long the middle of the last
/// line is left out; pointing at the label or touching it shows the whole. Assistive technology always reads
/// the whole.
class FittedLabel : public QLabel {
    Q_OBJECT
public:
    FittedLabel();

    /// The text as it can be seen, with "…" where something is left out.
    QString textInView() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QSize minimumSizeHint() const override;

private:
    int lineHeight() const;
};
