#include "faults/writers.h"

#include "core/session.h"
#include "store/cardFiles.h"
#include "store/descriptionFile.h"
#include "store/settings.h"
#include "support/files.h"

#include <QDir>

namespace {

/// Texts of many lengths, the longest first but one.
QString textOf(int version) { return QString(1 + version * 977 % 3000, QChar('a' + version % 26)); }

bool writeRecord(int version)
{
    session.cardValue[1][0] = QStringLiteral("00010002");
    for (int f = 1; f <= session.numFields; ++f)
        session.DataBox[f] = textOf(version);
    saveCardValues(1);
    return true;
}

bool writePicture(int version)
{
    session.Picture1.image = QImage(159, 120, QImage::Format_RGB32);
    session.Picture1.image.fill(uint(version) * 0x010307u);
    saveCardPicture(1);
    return true;
}

bool writeDescription(int version)
{
    for (int f = 1; f <= session.numFields; ++f)
        session.fieldName[f] = textOf(version);
    writeDbInfo();
    return true;
}

bool writeOneSetting(int version)
{
    return writeSetting(settingsFile(), QStringLiteral("Last DB"), QStringLiteral("Path"), textOf(version));
}

} // namespace

const std::array<Writer, 4> writers = {{
    {"saveCardValues", "CARDAAAA.tcd", "Error|Disk full", writeRecord},
    {"saveCardPicture", "CARDAAAA.bmp", "Error|Disk full", writePicture},
    {"writeDbInfo", "db-info.tdb", "Error|Disk full", writeDescription},
    {"writeSetting", "tallymoor.ini", "", writeOneSetting},
}};

void useFolder(const QString& folder)
{
    session.dbPath = folder;
    session.cardId[1] = QStringLiteral("CARDAAAA");
    desktop.programFolder = [folder] { return folder; };
}

QByteArray contentOf(const Writer& writer, int version)
{
    const QString former = session.dbPath;
    const QTemporaryDir scratch;
    useFolder(scratch.path());
    writer.write(0);
    writer.write(version);
    useFolder(former);
    return bytesOf(scratch.filePath(QString::fromLatin1(writer.file)));
}

QStringList leftoversIn(const QString& folder)
{
    return QDir(folder).entryList({QStringLiteral(".tallymoor~*")}, QDir::Files | QDir::Hidden);
}
