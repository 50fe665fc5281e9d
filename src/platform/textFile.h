// The text of database and settings files: their code page, and items between quotes and commas.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The text as bytes of code page 1252; as UTF-8 when the page lacks one of its characters, or when its 1252
/// bytes would be valid UTF-8. decodeText() gives back every text unchanged.
QByteArray encodeText(const QString& text);

/// Bytes that are valid UTF-8 with a character beyond ASCII are read as UTF-8, all others as code page 1252.
QString decodeText(const QByteArray& bytes);

/// The text with a typographic pair in place of double quotes, which would end an item in a file: an opening
/// one at the beginning and after a blank, a bracket or a dash, else a closing one.
QString withTypographicQuotes(QString text);

/// Reads items that end at a comma or a line end. Blanks before an item are skipped. An item that begins with
/// a double quote ends at the next double quote, commas and line ends included; text after that is a further
/// item.
class ItemReader {
public:
    explicit ItemReader(const QString& itemText);
    explicit ItemReader(const QByteArray& fileBytes);

    bool atEnd() const { return at >= text.size(); }
    /// The next item; an unquoted one loses the blanks at its end. Raises 62 at the end of the file.
    QString next();
    /// The next item as a number. Raises 62 at the end of the file, 13 when it is no number, 6 outside 16
    /// bits.
    qint16 nextInteger();
    /// The next item as a Boolean: True or False in any case, or a number. Raises 62 at the end of the file,
    /// 13 for anything else.
    bool nextTruth();

private:
    void skipBlanks();
    bool skipSeparator();
    QString quotedItem();
    QString bareItem();

    QString text;
    qsizetype at = 0;
    bool restFollows = false; // text after a closing quote, up to the next separator, is an item
};

/// All items of a file.
QStringList itemsIn(const QByteArray& fileBytes);

/// Builds the text of a file, one item to a line.
class ItemWriter {
public:
    /// Between double quotes, without escaping: a text with a double quote is not read back whole.
    void quoted(const QString& item);
    void bare(const QString& item);
    /// With one blank in place of the sign and one after it.
    void number(int item);

    QByteArray bytes() const { return encodeText(text); }

private:
    QString text;
};
