// A small database in the test's folder.
#pragma once

#include "core/session.h"
#include "support/files.h"

#include <QDir>

/// Names of the cards that writeDatabase() makes: AAAAAAAA, BBBBBBBB, …
inline QString cardName(int card) { return QString(8, QChar(char16_t(u'A' + card - 1))); }

inline void writeCard(const QString& folder, const QString& name, const QString& label, const QString& place,
                      QRgb colour)
{
    putFile(folder + QLatin1Char('/') + name + QStringLiteral(".tcd"),
            (QLatin1Char('"') + place + QStringLiteral("\"\r\n\"") + label + QStringLiteral("\"\r\n"))
                .toLatin1());
    ASSERT_TRUE(plain({159, 120}, colour).save(folder + QLatin1Char('/') + name + QStringLiteral(".bmp")));
}

/// A database of one text field, in a new folder `name`; card i is labelled "card i". Returns the folder.
inline QString writeDatabase(const QString& name, int cards)
{
    const QString folder = inTestFolder(name);
    QDir().mkpath(folder);
    putFile(folder + QStringLiteral("/db-info.tdb"),
            " 1 \r\n 1 \r\n\"none\"\r\n\"Name\"\r\n\"Abc\"\r\nFalse\r\nRW\r\nVER=\"1.1.0\"\r\n");
    for (int card = 1; card <= cards; ++card)
        writeCard(folder, cardName(card), QStringLiteral("card %1").arg(card), QStringLiteral("00000000"),
                  qRgb(card, 0, 0));
    return folder;
}
