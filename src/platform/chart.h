// A chart as plain data: a grid of numbers with labels, titles, scales and a legend. chartLayout.h
// places its parts, chartPainter.h draws them.
#pragma once

#include <QString>

#include <array>
#include <vector>

enum class ChartType { bars3d = 0, bars = 1, line = 3, pie = 14, scatter = 16 };

/// How an axis is marked. A scale that isn't automatic has `majorDivision` parts of one size from 0 (or from
/// its minimum, where that is larger) to its maximum, and goes on in such parts below 0 down to its minimum.
struct ValueScale {
    bool automatic = true;
    double minimum = 0;
    double maximum = 0;
    int majorDivision = 0;
    int minorDivision = 1; // parts of each part
    bool operator==(const ValueScale&) const = default;
};

struct ChartAxis {
    QString title;
    ValueScale scale;
    bool operator==(const ChartAxis&) const = default;
};

/// The first series of a scattergram.
struct ChartSeries {
    bool markerAuto = true;
    bool showLine = true;
    bool operator==(const ChartSeries&) const = default;
};

class Chart {
public:
    ChartType chartType = ChartType::bars;
    QString titleText;
    std::array<ChartAxis, 2> axis; // X, Y
    ChartSeries series;
    bool legendVisible = false;

    int rowCount() const { return int(rowLabels.size()); }
    int columnCount() const { return int(columnLabels.size()); }
    /// Gives the grid its size. Labels and numbers that are in the old grid and in the new one stay.
    void setCounts(int rows, int columns);

    // Rows and columns are counted from 1. Outside the grid all of these raise 9.
    QString rowLabel(int row) const { return rowLabels[checked(row, rowCount())]; }
    void setRowLabel(int row, const QString& text) { rowLabels[checked(row, rowCount())] = text; }
    QString columnLabel(int column) const { return columnLabels[checked(column, columnCount())]; }
    void setColumnLabel(int column, const QString& text)
    {
        columnLabels[checked(column, columnCount())] = text;
    }
    double data(int row, int column) const { return numbers[cell(row, column)]; }
    /// Raises 13 when the text is no number.
    void setData(int row, int column, const QString& number);

    /// Raises 380 for a fixed scale of no divisions. Any other scale that can't be drawn is drawn as
    /// automatic.
    void setScale(int axisNumber, const ValueScale& scale);

    bool operator==(const Chart&) const = default;

private:
    static std::size_t checked(int index, int count);
    std::size_t cell(int row, int column) const;

    std::vector<QString> rowLabels;
    std::vector<QString> columnLabels;
    std::vector<double> numbers; // row by row
};

/// A figure as a pupil reads it: seven significant digits, no exponent where fifteen digits do.
QString chartNumber(double number);
