// A chart for assistive technology: a list of its values, each with its name, its number and its place.
#pragma once

#include "platform/chartParts.h"

#include <QAccessible>

#include <vector>

class QWidget;

class ChartVoice {
public:
    /// `chosenMark` is the number of the value that has the keyboard, -1 for none.
    ChartVoice(QWidget& chartView, const ChartLayout& laidOut, const int& chosenMark);
    ~ChartVoice();
    ChartVoice(const ChartVoice&) = delete;
    ChartVoice& operator=(const ChartVoice&) = delete;

    /// The values that were read out so far are gone.
    void forgetMarks();
    /// There are new values.
    void tellMarks();
    void tellFocus(int mark);

    /// Null for a number that no value has.
    QAccessibleInterface* markInterface(int mark);
    int indexOf(const QAccessibleInterface* mark) const;

    QWidget& view;
    const ChartLayout& layout;
    const int& chosen;

private:
    std::vector<QAccessible::Id> ids; // 0 until somebody asks for the value
};
