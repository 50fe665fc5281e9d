#include "faults/writers.h"

#include "core/session.h"
#include "platform/wholeFile.h"
#include "store/cardFiles.h"
#include "store/cardSaving.h"
#include "store/descriptionFile.h"
#include "store/fileStates.h"
#include "store/options.h"
#include "support/files.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// Texts of different lengths, up to 3000 characters.
QString textOf(int version) { return QString(1 + version * 977 % 3000, QChar('a' + version % 26)); }

/// A program has read what it writes over.
void see(const QString& path)
{
    ignoringErrors({[&path] { readAndRemember(path, largestFile); }});
}

bool writeRecord(int version)
{
    see(cardRecordPath(1));
    session.cardValue[1][0] = u"00010002"_s;
    for (int f = 1; f <= session.numFields; ++f)
        session.editor.DataBox[f] = textOf(version);
    saveCardValues(1);
    return true;
}

bool writePicture(int version)
{
    see(cardPicturePath(1));
    session.editor.Picture1.image = QImage(159, 120, QImage::Format_RGB32);
    session.editor.Picture1.image.fill(uint(version) * 0x010307u);
    saveCardPicture(1);
    return true;
}

bool writeDescription(int version)
{
    see(filePathIn(session.dbPath, descriptionName));
    for (int f = 1; f <= session.numFields; ++f)
        session.fieldName[f] = textOf(version);
    writeDbInfo();
    return true;
}

bool writeTwoSettings(int version)
{
    writeSettings({{option::lastDatabase, textOf(version)}, {option::savingFolder, textOf(version)}});
    return true;
}

} // namespace

const std::array<Writer, 4> writers = {{
    {"saveCardValues", "CARDAAAA.tcd", "Error|Disk full", writeRecord},
    {"saveCardPicture", "CARDAAAA.bmp", "Error|Disk full", writePicture},
    {"writeDbInfo", "db-info.tdb", "Error|Disk full", writeDescription},
    {"writeSettings", "tallymoor.ini", "", writeTwoSettings},
}};

void useFolder(const QString& folder)
{
    session.dbPath = folder;
    session.cardId[1] = u"CARDAAAA"_s;
    desktop.files.programFolder = [folder] { return folder; };
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
    return QDir(folder).entryList({u".tallymoor~*"_s}, QDir::Files | QDir::Hidden);
}
