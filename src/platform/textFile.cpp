#include "platform/textFile.h"

#include "platform/errors.h"
#include "platform/values.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar byteOrderMark = QChar(0xFEFF);

// Code page 1252 differs from Latin-1 in these bytes only; its five unused bytes are kept as they are.
constexpr int firstSpecial = 0x80;
constexpr std::array<char16_t, 32> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::optional<char> codePageByte(QChar character)
{
    const char16_t code = character.unicode();
    if (code < firstSpecial || (code >= firstSpecial + specials.size() && code <= 0xFF))
        return static_cast<char>(code);
    const auto found = std::find(specials.begin(), specials.end(), code);
    if (found == specials.end())
        return std::nullopt;
    return static_cast<char>(firstSpecial + (found - specials.begin()));
}

std::optional<QByteArray> inCodePage(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const auto byte = codePageByte(character);
        if (!byte)
            return std::nullopt;
        bytes.append(*byte);
    }
    return bytes;
}

bool readsAsUtf8(const QByteArray& bytes)
{
    const bool onlyAscii =
        std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<uchar>(byte) < 0x80; });
    return !onlyAscii && bytes.isValidUtf8();
}

bool isBlank(QChar character) { return character == u' ' || character == u'\t'; }
bool isLineEnd(QChar character) { return character == u'\r' || character == u'\n'; }

} // namespace

QByteArray encodeText(const QString& text)
{
    if (const auto bytes = inCodePage(text); bytes && !readsAsUtf8(*bytes))
        return *bytes;
    // Reading drops one byte order mark, so a text that begins with that character is written with a second.
    return text.startsWith(byteOrderMark) ? (byteOrderMark + text).toUtf8() : text.toUtf8();
}

QString decodeText(const QByteArray& bytes)
{
    if (readsAsUtf8(bytes))
        return QString::fromUtf8(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char signedByte) {
        const auto byte = static_cast<uchar>(signedByte);
        const int special = byte - firstSpecial;
        return special >= 0 && special < int(specials.size()) ? QChar(specials[special]) : QChar(byte);
    });
    return text;
}

QString withTypographicQuotes(QString text)
{
    constexpr QChar opening(0x201C);
    constexpr QChar closing(0x201D);
    constexpr QStringView before = u"([{<-/=\u2013\u2014\u2018\u201C";
    for (qsizetype at = text.indexOf(u'"'); at >= 0; at = text.indexOf(u'"', at)) {
        const bool opens = at == 0 || text[at - 1].isSpace() || before.contains(text[at - 1]);
        text[at] = opens ? opening : closing;
    }
    return text;
}

ItemReader::ItemReader(const QString& itemText)
    : text(itemText)
{
}

ItemReader::ItemReader(const QByteArray& fileBytes)
    : text(decodeText(fileBytes))
{
}

QString ItemReader::next()
{
    if (atEnd())
        throw RuntimeError(pastEndOfFile);
    skipBlanks();
    const bool rest = std::exchange(restFollows, false);
    return !rest && !atEnd() && text[at] == u'"' ? quotedItem() : bareItem();
}

qint16 ItemReader::nextInteger()
{
    bool ok = false;
    const double number = next().toDouble(&ok);
    if (!ok)
        throw RuntimeError(typeMismatch);
    return toInteger(number);
}

bool ItemReader::nextTruth()
{
    const QString item = next();
    if (item.compare("True"_L1, Qt::CaseInsensitive) == 0)
        return true;
    if (item.compare("False"_L1, Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const double number = item.toDouble(&ok);
    if (!ok)
        throw RuntimeError(typeMismatch);
    return number != 0;
}

void ItemReader::skipBlanks()
{
    while (!atEnd() && isBlank(text[at]))
        ++at;
}

/// Skips one comma or one line end. False when neither comes next.
bool ItemReader::skipSeparator()
{
    if (atEnd() || (text[at] != u',' && !isLineEnd(text[at])))
        return false;
    const QChar separator = text[at++];
    if (separator == u'\r' && !atEnd() && text[at] == u'\n')
        ++at;
    return true;
}

QString ItemReader::quotedItem()
{
    const qsizetype start = at + 1;
    const qsizetype quote = text.indexOf(u'"', start);
    const qsizetype end = quote < 0 ? text.size() : quote;
    at = std::min(end + 1, text.size());
    skipBlanks();
    restFollows = !skipSeparator() && !atEnd();
    return text.sliced(start, end - start);
}

QString ItemReader::bareItem()
{
    const qsizetype start = at;
    while (!atEnd() && text[at] != u',' && !isLineEnd(text[at]))
        ++at;
    const QString item = text.sliced(start, at - start).trimmed();
    skipSeparator();
    return item;
}

QStringList itemsIn(const QByteArray& fileBytes)
{
    ItemReader reader(fileBytes);
    QStringList items;
    while (!reader.atEnd())
        items.append(reader.next());
    return items;
}

void ItemWriter::quoted(const QString& item) { bare(u'"' + item + u'"'); }

void ItemWriter::bare(const QString& item) { text += item + "\r\n"_L1; }

void ItemWriter::number(int item) { bare((item < 0 ? QString() : u" "_s) + QString::number(item) + u' '); }
