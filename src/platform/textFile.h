// The text of database and settings files: their code page, and items between quotes and commas.
#pragma once

#include <QByteArray>
#include <QString>

/// The text as bytes of code page 1252; as UTF-8 when it holds a character that the page lacks, or when its
/// bytes would be taken for UTF-8 on reading. Every text comes back from decodeText() as it was.
QByteArray encodeText(const QString& text);

/// Bytes that are valid UTF-8 with a character beyond ASCII are read as that, all others as code page 1252.
QString decodeText(const QByteArray& bytes);

/// Reads items that end at a comma or a line end. Blanks before an item are skipped. One that begins with a
/// double quote runs to the next double quote, whatever lies between; what follows that is a further item.
class ItemReader {
public:
    explicit ItemReader(const QString& itemText);
    explicit ItemReader(const QByteArray& fileBytes);

    bool atEnd() const { return at >= text.size(); }
    /// The next item; a bare one loses the blanks at its end. Raises 62 when there is none left.
    QString next();
    /// The next item as a number. Raises 62, 13 when it is none, 6 outside 16 bits.
    qint16 nextInteger();
    /// The next item as a truth value: True or False in any case, or a number. Raises 62, or 13 when it is
    /// neither.
    bool nextTruth();

private:
    void skipBlanks();
    bool skipSeparator();
    QString quotedItem();
    QString bareItem();

    QString text;
    qsizetype at = 0;
    bool restFollows = false; // what stands behind a closing quote is an item up to the next separator
};

/// Collects items as the print statement writes them, one to a line.
class ItemWriter {
public:
    /// Between double quotes, with nothing escaped: a text with a double quote won't come back whole.
    void quoted(const QString& item);
    void bare(const QString& item);
    /// With the blank that is the place of the sign, and one behind.
    void number(int item);

    QByteArray bytes() const { return encodeText(text); }

private:
    QString text;
};
