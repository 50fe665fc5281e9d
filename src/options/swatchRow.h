// Four colours to choose from, told apart by their names, with the present one marked and named.
#pragma once

#include <QWidget>

#include <functional>

class QButtonGroup;
class QLabel;

class SwatchRow : public QWidget {
    Q_OBJECT
public:
    /// The buttons are called `group`0 to 3; `meaning` says what has the colour.
    SwatchRow(const char* group, const QString& meaning);

    /// Marks and names the colour, given as in the settings.
    void showColour(const QString& value);

    std::function<void(const QString& value)> picked; // by a click

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QButtonGroup* const buttons;
    QLabel* const present;
};
