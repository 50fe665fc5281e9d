#include "database/loading.h"

#include "board/faces.h"
#include "board/places.h"
#include "core/mainView.h"
#include "core/session.h"
#include "core/title.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"
#include "platform/wholeFile.h"
#include "store/cardFiles.h"
#include "store/descriptionFile.h"
#include "store/fileStates.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Whether the entry is a file. One that was deleted meanwhile is not, nor is a link that leads nowhere or in
/// a circle; any other failure is the whole folder's, since a failing share must not look like deleted cards.
bool isFile(const std::filesystem::directory_entry& entry, std::error_code& failed)
{
    const bool file = entry.is_regular_file(failed);
    std::error_code unknown;
    if (failed == std::errc::no_such_file_or_directory || (failed && entry.is_symlink(unknown)))
        failed.clear();
    return file;
}

bool namesRecord(const QString& name)
{
    return name.endsWith(recordEnding, Qt::CaseInsensitive) && !name.startsWith(u'.');
}

/// The names of the record files in the order of the cards. Raises 76 when the folder can't be listed, 9 when
/// there are more than the tables hold.
QStringList recordFiles(const QString& folder)
{
    namespace fs = std::filesystem;
    std::error_code failed;
    fs::directory_iterator entries(QFile::encodeName(folder).constData(), failed);
    QStringList names;
    while (!failed && entries != fs::directory_iterator()) {
        const QString name = QFile::decodeName(entries->path().filename().c_str());
        if (namesRecord(name) && isFile(*entries, failed))
            names.append(name);
        if (!failed)
            entries.increment(failed);
    }
    if (failed)
        throw RuntimeError(pathNotFound);
    if (names.size() > lastCard)
        throw RuntimeError(outOfRange);
    std::sort(names.begin(), names.end(),
              [](const QString& one, const QString& other) { return one.toUpper() < other.toUpper(); });
    return names;
}

/// A face and everything that it depends on.
struct LoadedFace {
    QByteArray picture;
    QString label;
    FaceLook look;
    QImage face;

    bool madeAs(const LoadedFace& other) const
    {
        return label == other.label && look == other.look && picture == other.picture;
    }
};

QHash<QString, LoadedFace> lastFaces; // by cardId

/// Loads the pictures of all cards in one pass, and draws the faces that have changed.
class FaceLoader {
public:
    void load(int card);
    void finish();
    bool anyDrawn() const { return drawn; }

private:
    bool readPictureBytes(int card);
    void takeFace(int card, const LoadedFace& known);
    void decodePassedOver();

    QHash<QString, LoadedFace> faces;
    QByteArray bytes;      // of the picture being loaded
    QByteArray passedOver; // of the last picture that wasn't decoded although Picture1 should show it
    bool drawn = false;
};

/// Runs a routine that reads the card's picture or shows it. False when it fails, after an error box unless
/// there was one already for this very state of the file.
bool usePicture(int card, const std::function<void()>& routine)
{
    QString problem;
    try {
        routine();
        return true;
    } catch (...) {
        problem = currentErrorDescription();
    }
    const QString path = cardPicturePath(card);
    if (!alreadyTold(path)) {
        rememberTold(path);
        showErrorBox(problem);
    }
    return false;
}

void FaceLoader::load(int card)
{
    const bool read = readPictureBytes(card);
    const LoadedFace wanted{bytes, session.cardValue[card][1], boardFaceLook(), {}};
    const QString& id = session.cardId[card];
    const auto known = lastFaces.constFind(id);
    if (read && known != lastFaces.constEnd() && known->madeAs(wanted)) {
        if (session.cardSize == stripSize)
            session.editor.Picture1.image = {};
        passedOver = bytes;
        takeFace(card, *known);
        faces.insert(id, *known);
        return;
    }
    bool shown = read;
    if (session.cardSize == stripSize) {
        loadCardPicture(card);
    } else if (read) {
        decodePassedOver(); // a picture that can't be decoded leaves Picture1 as it was
        shown = usePicture(card, [this] { session.editor.Picture1.image = decodePicture(bytes); });
    }
    drawCardFace(card);
    drawn = true;
    if (shown) {
        session.toldStates.remove(cardPicturePath(card));
        LoadedFace made = wanted;
        made.face = session.box[card].picture;
        faces.insert(id, made);
    }
}

/// False when the file can't be read.
bool FaceLoader::readPictureBytes(int card)
{
    bytes.clear();
    if (session.cardSize == stripSize)
        return true;
    const bool read = usePicture(card, [&] { bytes = readCardPicture(card); });
    if (!read)
        decodePassedOver();
    return read;
}

void FaceLoader::takeFace(int card, const LoadedFace& known)
{
    CardImage& image = session.box[card];
    image.tooltip = known.label;
    if (image.picture.cacheKey() == known.face.cacheKey() && image.width == known.look.size.width() &&
        image.height == known.look.size.height())
        return;
    image.picture = known.face;
    image.width = known.look.size.width();
    image.height = known.look.size.height();
    session.editor.shrinkdummy.image = known.face;
    drawn = true;
}

void FaceLoader::decodePassedOver()
{
    if (!passedOver.isEmpty())
        showCardPicture(passedOver);
    passedOver.clear();
}

void FaceLoader::finish()
{
    decodePassedOver();
    lastFaces = faces;
}

/// True when the card was moved.
bool placeWhenHidden(int card)
{
    CardImage& image = session.box[card];
    if (image.visible)
        return false;
    placeCard(card);
    image.visible = true;
    return true;
}

/// No card of a read-only database is thrown away. True when the bin was shown.
bool hideBinWhenReadOnly()
{
    return session.databaseStatus == "RO"_L1 && std::exchange(session.board.BigBin.visible, false);
}

void placeWhenWithoutPlace(int card)
{
    const CardImage& image = session.box[card];
    if (image.left < 1 && image.top < menuGreyLine) {
        placeCardAtRandom(card);
        markCard(card);
    }
}

void hideUnusedCards()
{
    for (int card = session.numCards + 1; card <= session.maxCards; ++card) {
        session.box[card].visible = false;
        clearCardValues(card);
        session.cardId[card].clear();
        session.recordName[card].clear();
    }
}

} // namespace

void forgetLoadedFaces() { lastFaces.clear(); }

void loadAllCards()
{
    const QStringList files = recordFiles(session.dbPath);
    if (files.size() > lastCard)
        throw RuntimeError(outOfRange);
    const int before = session.numCards;
    const qint64 background = session.backgroundImage.cacheKey();
    session.fileStates.clear();
    readDbInfo();
    session.numCards = int(files.size());
    if (session.selectedCard > session.numCards)
        session.board.SelectBox.visible = false; // the card in the frame has gone
    FaceLoader faces;
    bool changed = hideBinWhenReadOnly() || before != session.numCards ||
                   background != session.backgroundImage.cacheKey();
    for (int card = 1; card <= session.numCards; ++card) {
        session.cardId[card] = cardIdOf(files[card - 1]);
        session.recordName[card] = files[card - 1];
        loadCardValues(card);
        changed |= placeWhenHidden(card);
        faces.load(card);
        placeWhenWithoutPlace(card);
    }
    faces.finish();
    hideUnusedCards();
    if (changed || faces.anyDrawn())
        mainView.redrawBoard();
    updateTitle();
}
