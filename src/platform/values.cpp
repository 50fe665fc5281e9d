#include "platform/values.h"

#include "platform/errors.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Walks along a text; every take...() moves on only over what it takes.
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

    /// Tells how many digits there were.
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

/// Where the number ends that begins at the scanner's place; its start when there is none.
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

qint16 toInteger(double number)
{
    const double rounded = std::nearbyint(number); // the default rounding mode takes halves to even
    if (!(rounded >= std::numeric_limits<qint16>::min() && rounded <= std::numeric_limits<qint16>::max()))
        throw RuntimeError(overflow);
    return static_cast<qint16>(rounded);
}

QString numberText(double number)
{
    constexpr int significantDigits = 15;
    return number == 0 ? QStringLiteral("0") : QString::number(number, 'G', significantDigits);
}

QString positionText(double coordinate)
{
    const double whole = std::floor(coordinate);
    const QString digits = QString::number(std::abs(whole), 'f', 0).rightJustified(4, QLatin1Char('0'));
    return whole < 0 ? QLatin1Char('-') + digits : digits;
}
