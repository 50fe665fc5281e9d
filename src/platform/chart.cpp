#include "platform/chart.h"

#include "platform/errors.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

void Chart::setCounts(int rows, int columns)
{
    std::vector<double> kept(std::size_t(rows) * std::size_t(columns));
    for (int row = 1; row <= std::min(rows, rowCount()); ++row) {
        for (int column = 1; column <= std::min(columns, columnCount()); ++column)
            kept[std::size_t((row - 1) * columns + column - 1)] = data(row, column);
    }
    numbers = std::move(kept);
    rowLabels.resize(std::size_t(rows));
    columnLabels.resize(std::size_t(columns));
}

void Chart::setData(int row, int column, const QString& number)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    if (!isNumber)
        throw RuntimeError(typeMismatch);
    numbers[cell(row, column)] = value;
}

void Chart::setScale(int axisNumber, const ValueScale& scale)
{
    if (!scale.automatic && scale.majorDivision == 0)
        throw RuntimeError(invalidProperty);
    axis.at(std::size_t(axisNumber)).scale = scale;
}

std::size_t Chart::checked(int index, int count)
{
    if (index < 1 || index > count)
        throw RuntimeError(outOfRange);
    return std::size_t(index - 1);
}

std::size_t Chart::cell(int row, int column) const
{
    return checked(row, rowCount()) * columnLabels.size() + checked(column, columnCount());
}

QString chartNumber(double number)
{
    constexpr double mostWithoutExponent = 1e15;
    const QString text = QString::number(number == 0 ? 0.0 : number, 'G', 7);
    if (!text.contains(u'E') || std::abs(number) >= mostWithoutExponent || std::abs(number) < 1)
        return text;
    return QString::number(text.toDouble(), 'f', 0);
}
