#include "platform/values.h"

#include "platform/errors.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// A position in a text. Each take...() advances past what it accepts.
class Scanner {
public:
    explicit Scanner(QStringView scanned)
        : text(scanned)
    {
    }

    qsizetype place() const { return at; }
    void goBackTo(qsizetype earlier) { at = earlier; }

    bool takeOneOf(QStringView characters)
    {
        const bool found = at < text.size() && characters.contains(text[at]);
        at += found;
        return found;
    }

    /// Returns the number of digits.
    qsizetype takeDigits()
    {
        const qsizetype start = at;
        while (takeOneOf(u"0123456789")) {
        }
        return at - start;
    }

private:
    QStringView text;
    qsizetype at = 0;
};

/// The end of the number at the scanner's position; the position itself when there is none.
qsizetype endOfNumber(Scanner scanner)
{
    const qsizetype start = scanner.place();
    scanner.takeOneOf(u"+-");
    qsizetype digits = scanner.takeDigits();
    if (scanner.takeOneOf(u"."))
        digits += scanner.takeDigits();
    if (digits == 0)
        return start;

    const qsizetype mantissaEnd = scanner.place();
    if (scanner.takeOneOf(u"eE")) {
        scanner.takeOneOf(u"+-");
        if (scanner.takeDigits() == 0)
            scanner.goBackTo(mantissaEnd);
    }
    return scanner.place();
}

} // namespace

double leadingNumber(const QString& text)
{
    Scanner scanner(text);
    while (scanner.takeOneOf(u" \t")) {
    }
    const qsizetype start = scanner.place();
    const double number = QStringView(text).sliced(start, endOfNumber(scanner) - start).toDouble();
    constexpr double largest = std::numeric_limits<double>::max();
    return std::clamp(number, -largest, largest);
}

QString withDecimalPoints(const QString& text)
{
    return QLocale().decimalPoint() == ","_L1 ? QString(text).replace(u',', u'.') : text;
}

qint16 toInteger(double number)
{
    const double rounded = std::nearbyint(number); // the default rounding mode rounds halves to even
    if (!(rounded >= std::numeric_limits<qint16>::min() && rounded <= std::numeric_limits<qint16>::max()))
        throw RuntimeError(overflow);
    return static_cast<qint16>(rounded);
}

QString numberText(double number)
{
    constexpr int significantDigits = 15;
    return number == 0 ? u"0"_s : QString::number(number, 'G', significantDigits);
}

QString positionText(double coordinate)
{
    const double whole = std::floor(coordinate);
    const QString digits = QString::number(std::abs(whole), 'f', 0).rightJustified(4, u'0');
    return whole < 0 ? u'-' + digits : digits;
}

float toSingle(double number)
{
    const auto single = static_cast<float>(number);
    if (!std::isfinite(single))
        throw RuntimeError(overflow);
    return single;
}

QString singleText(float number)
{
    return number == 0 ? u"0"_s
                       : QString::number(double(number), 'G', std::numeric_limits<float>::digits10 + 1);
}

double roundedTo(double number, int places)
{
    const double power = std::pow(10, places);
    const double rounded = std::floor(numberText(number * power).toDouble() + 0.5) / power;
    return std::isfinite(rounded) ? rounded : number; // so large that it has no places to round
}

QString shortDateText(const QDate& date) { return QLocale::system().toString(date, QLocale::ShortFormat); }
