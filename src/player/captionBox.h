// The caption of a scene, for the eye and for a screen reader.
#pragma once

#include <QStackedWidget>

class FittedLabel;

/// Shows the text in the largest letters in which two lines are enough.
///
/// Screen readers read what gets the focus; a focused label whose text changes they pass over. So each new
/// text comes in another label, and while the box has the focus, that label gets it.
class CaptionBox : public QStackedWidget {
    Q_OBJECT
public:
    CaptionBox();

    /// `state` is a remark for assistive technology, such as "Paused.".
    void say(const QString& text, const QString& state = {});
    QString text() const;
    /// As it is displayed, with "…" where it doesn't fit.
    QString textInView() const;
    void takeFocus();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    FittedLabel& label() const;
    void fit();
};
