// The drop-down list used in all windows, with rows large enough for a finger.
#pragma once

#include <QComboBox>

class DropDown : public QComboBox {
    Q_OBJECT
public:
    explicit DropDown(QWidget* parent = nullptr);

    /// Describes the list to assistive technology when it has no label. A list with a choice reports that
    /// choice as its name, so this is set as description too.
    void setMeaning(const QString& meaning);

    /// Shows all entries, as far as they fit on the screen.
    void showPopup() override;

protected:
    /// A blank choice shows the placeholder, as no choice does.
    void paintEvent(QPaintEvent* event) override;
    /// Keeps a Return that has picked an entry from also pressing the dialog's OK.
    void keyPressEvent(QKeyEvent* event) override;
};
