#include "database/FileForm.h"

#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/desktop.h"
#include "platform/picture.h"
#include "platform/textLines.h"
#include "store/options.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int slotWidth = 108;
constexpr int iconSide = 64;
constexpr int nameLines = 4;
constexpr int soon = 300; // ms of waiting for a slow folder before the dialog says so

/// Picture and name of each kind of item.
struct Kind {
    QLatin1String tag;
    const char* picture;
    const char* word;
};
constexpr Kind kinds[] = {
    {"Drive"_L1, "drive", "drive"},
    {"Dir"_L1, "closedFolder", "folder"},
    {"tdb"_L1, "database", "database"},
    {"File"_L1, "file", "picture"},
};

const Kind& kindOf(const WalkItem& item)
{
    return *std::find_if(std::begin(kinds), std::end(kinds),
                         [&](const Kind& kind) { return kind.tag == item.tag; });
}

QIcon iconOf(const WalkItem& item)
{
    if (!item.picture.isNull())
        return QIcon(QPixmap::fromImage(item.picture));
    QString name = QLatin1String(kindOf(item).picture);
    if (item.tag == "Drive"_L1)
        name += QString::number(item.driveKind);
    return QIcon(picturePath(name));
}

QLineEdit* shownText(const char* name, const QString& meaning)
{
    auto* box = named(new QLineEdit, name);
    box->setReadOnly(true);
    box->setAccessibleName(meaning);
    return box;
}

} // namespace

FileForm::FileForm()
    : AnswerDialog(new AnswerButtons({"OKbut", u"OK"_s}, {"CancelBut", u"Cancel"_s}))
    , FileLabel(named(new QLabel, "FileLabel"))
    , CurDirIcon(named(new QLabel, "CurDirIcon"))
    , CurDirBox(shownText("CurDirBox", u"Folder"_s))
    , upFoldBut(named(iconButton(u"upFolder"_s, u"Up a Level"_s, u"Up a Level"_s), "upFoldBut"))
    , StdDiBoxBut(
          named(iconButton(u"browseNetwork"_s, u"Browse Network"_s, u"Browse Network"_s), "StdDiBoxBut"))
    , Fslide(named(new QSlider(Qt::Horizontal), "Fslide"))
    , SelectedFnameBox(shownText("SelectedFnameBox", u"Chosen"_s))
{
    setObjectName(u"FileForm"_s);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(placeRow());
    rows->addWidget(iconRow());
    rows->addWidget(Fslide);
    rows->addWidget(answerRow());
    Fslide->setAccessibleName(u"First icon shown"_s);
    Fslide->setPageStep(FolderWalk::slotCount);

    onClick(upFoldBut, [this] {
        walk.up();
        showWaiting();
    });
    connect(new QShortcut(Qt::Key_Backspace, this), &QShortcut::activated, upFoldBut, &QPushButton::click);
    onClick(StdDiBoxBut, [this] { browse(); });
    onClick(answers->ok, [this] {
        if (SelectedFnameBox->text().isEmpty())
            return;
        chosenFile = SelectedFnameBox->text();
        leave(u"OK"_s);
    });
    onClick(answers->cancel, [this] { leave(u"Cancel"_s); });
    connect(SelectedFnameBox, &QLineEdit::textChanged, this,
            [this](const QString& name) { answers->ok->setEnabled(!name.isEmpty()); });
    answers->ok->setEnabled(false);
    connect(Fslide, &QSlider::valueChanged, this, [this](int first) {
        guarded([&] {
            walk.setFirst(first);
            showIcons();
        });
    });
    connect(&walk, &FolderWalk::moved, this, [this] { guarded([this] { showPlace(); }); });
    connect(&walk, &FolderWalk::itemChanged, this, [this](int slot) { guarded([&] { showSlot(slot); }); });
    connect(&walk, &FolderWalk::refused, this, [this](int error) { guarded([&] { placeRefused(error); }); });
}

QWidget* FileForm::placeRow()
{
    auto* place = new QWidget;
    auto* line = new QHBoxLayout(place);
    line->setContentsMargins({});
    line->addWidget(CurDirIcon);
    line->addWidget(CurDirBox, 1);
    line->addWidget(upFoldBut);
    line->addWidget(StdDiBoxBut);
    return place;
}

QWidget* FileForm::iconRow()
{
    row = named(new QFrame, "iconRow");
    auto* line = new QGridLayout(row);
    line->setHorizontalSpacing(6);
    for (int slot = 0; slot < FolderWalk::slotCount; ++slot) {
        auto* icon = element(new QToolButton, "iconBox", slot);
        icon->setProperty("role", u"slot"_s);
        icon->setIconSize(QSize(iconSide, iconSide));
        icon->setCheckable(true);
        icon->installEventFilter(this);
        onToggle(icon, [this, slot](bool checked) { // also by assistive technology, which gives no click
            if (checked != isChosen(slot))
                select(slot);
        });
        auto* name = element(new QLabel, "fileNameBox", slot);
        name->setTextFormat(Qt::PlainText);
        name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        name->setFixedWidth(slotWidth);
        name->installEventFilter(this);
        keepPlaceWhenHidden(*icon);
        keepPlaceWhenHidden(*name);
        line->addWidget(icon, 0, slot, Qt::AlignHCenter | Qt::AlignBottom);
        line->addWidget(name, 1, slot, Qt::AlignHCenter | Qt::AlignTop);
        line->setColumnMinimumWidth(slot, slotWidth);
        iconBox[slot] = icon;
        fileNameBox[slot] = name;
    }
    waitLabel = new QLabel(u"One moment..."_s);
    waitLabel->setAlignment(Qt::AlignCenter);
    waitLabel->hide();
    line->addWidget(waitLabel, 0, 0, 2, FolderWalk::slotCount);
    return row;
}

QWidget* FileForm::answerRow()
{
    auto* answerLine = new QWidget;
    auto* line = new QHBoxLayout(answerLine);
    line->setContentsMargins({});
    line->addWidget(named(pictureLabel(u"openPic"_s, QSize(40, 40)), "openPic"));
    line->addWidget(FileLabel);
    line->addWidget(SelectedFnameBox, 1);
    line->addWidget(answers);
    return answerLine;
}

void FileForm::load()
{
    for (QLabel* name : fileNameBox) {
        name->ensurePolished(); // applies the style sheet's font
        name->setFixedHeight(nameLines * name->fontMetrics().lineSpacing());
    }
    session.options.upLevelStatus = read(option::stayInFolder);
    followUpLevel();
    TLPath = resolvedFolder(readFolder(option::workingFolder));
}

void FileForm::followUpLevel()
{
    const bool free = session.options.upLevelStatus == "False"_L1;
    upFoldBut->setEnabled(free);
    StdDiBoxBut->setEnabled(free);
}

void FileForm::takeWorkingFolder()
{
    TLPath = resolvedFolder(readFolder(option::workingFolder));
    walk.setFolder(TLPath);
}

void FileForm::choose(const FileChoice& choice, const QString& startFolder)
{
    setWindowTitle(choice.caption);
    FileLabel->setText(choice.caption);
    chosenFile.clear();
    const QSize pictureSize = QSize(iconSide, iconSide) * desktop.screen.pixelRatio();
    walk.start(startFolder, choice.pattern, choice.databases, pictureSize);
    showPlace();
    otherStarts.clear();
    starting = true;
}

void FileForm::showPlace()
{
    const QString placePicture = walk.amongDrives() ? u"MyPCpic"_s : u"openFolder"_s;
    CurDirIcon->setPixmap(picture(placePicture, QSize(40, 40)));
    CurDirBox->setText(walk.placeName());
    {
        const QSignalBlocker quiet(Fslide);
        Fslide->setMaximum(walk.lastFirst());
        Fslide->setValue(walk.first());
    }
    Fslide->setEnabled(!walk.amongDrives() && walk.lastFirst() > 0);
    const bool walkingByControl = focusWidget() == upFoldBut || focusWidget() == Fslide;
    starting = false;
    showIcons();
    if (!walkingByControl)
        (walk.item(0).tag.isEmpty() ? static_cast<QWidget*>(answers->cancel) : iconBox[0])->setFocus();
    showWaiting();
}

void FileForm::showIcons()
{
    wish = Wish::none;
    chosenPath.clear();
    SelectedFnameBox->clear();
    for (int slot = 0; slot < FolderWalk::slotCount; ++slot)
        showSlot(slot);
}

void FileForm::showSlot(int slot)
{
    const WalkItem& item = walk.item(slot);
    QToolButton* icon = iconBox[slot];
    QLabel* name = fileNameBox[slot];
    icon->setVisible(!item.tag.isEmpty());
    name->setVisible(!item.tag.isEmpty());
    icon->setChecked(!chosenPath.isEmpty() && item.path == chosenPath);
    if (item.tag.isEmpty())
        return;
    icon->setIcon(iconOf(item));
    icon->setAccessibleName(item.name + u", "_s + QLatin1String(kindOf(item).word));
    name->setText(textInLines(item.name, name->font(), slotWidth, nameLines));
    name->setAccessibleName(item.name);
    if (item.certain && item.path == wishedPath && wish != Wish::none)
        wish == Wish::open ? openSlot(slot) : select(slot);
}

void FileForm::showWaiting()
{
    waitLabel->hide();
    row->unsetCursor();
    if (!walk.waiting())
        return;
    row->setCursor(Qt::BusyCursor);
    QTimer::singleShot(soon, this, [this] { waitLabel->setVisible(walk.waiting()); });
}

void FileForm::placeRefused(int error)
{
    showWaiting();
    if (starting) {
        startElsewhere(error);
    } else if (error == deviceUnavailable) {
        desktop.boxes.showMessage(MessageIcon::exclamation, u"Error"_s,
                                  u"Make sure the disc is in the drive!"_s);
    }
}

/// The folder to start in can't be read: shows the error, then goes to the user's documents, and without
/// those to the home folder. Drives and "Browse Network" stay within reach in any case.
void FileForm::startElsewhere(int error)
{
    if (otherStarts.isEmpty()) {
        const QString documents = desktop.files.documentsFolder();
        QDir().mkpath(documents);
        otherStarts = {documents, QDir::homePath(), QDir::rootPath()};
        showErrorBox(RuntimeError(error).description());
    }
    WalkItem next;
    next.tag = u"Dir"_s;
    next.path = otherStarts.takeFirst();
    walk.enter(next);
    starting = !otherStarts.isEmpty();
    showWaiting();
}

bool FileForm::isChosen(int slot) const
{
    return !chosenPath.isEmpty() && walk.item(slot).path == chosenPath;
}

/// A database or file becomes the chosen one, which is highlighted and which OK opens. A folder or drive
/// can't be chosen: after a click on one the chosen item stays highlighted.
void FileForm::select(int slot)
{
    const WalkItem& item = walk.item(slot);
    if (item.tag == "tdb"_L1 || item.tag == "File"_L1) {
        SelectedFnameBox->setText(QFileInfo(item.path).fileName());
        chosenPath = item.path;
    }
    for (int other = 0; other < FolderWalk::slotCount; ++other) {
        const bool chosen = isChosen(other);
        iconBox[other]->setChecked(chosen);
        if (chosen && item.certain && !answers->isAncestorOf(focusWidget()))
            iconBox[other]->setFocus(); // its frame would make a clicked folder look chosen
    }
    wishedPath = item.path;
    wish = item.certain ? Wish::none : Wish::select;
}

void FileForm::openSlot(int slot)
{
    const WalkItem item = walk.item(slot);
    select(slot);
    if (item.tag == "tdb"_L1) {
        answers->ok->click();
    } else if (item.tag == "Dir"_L1 && !item.certain) {
        wish = Wish::open; // a quick click must not enter a database's folder
    } else {
        walk.enter(item);
        showWaiting();
    }
}

void FileForm::leave(const QString& result)
{
    walk.stop();
    answer(result);
}

void FileForm::browse()
{
    const QString folderFound = desktop.files.chooseFolder(u"Browse for a Database"_s, walk.folder());
    F1 = folderFound.isEmpty() ? u"0"_s : u"1"_s;
    if (folderFound.isEmpty())
        return; // the dialog stays as it was
    chosenFile = folderFound;
    if (!folderFound.startsWith(u'('))
        walk.setFolder(folderFound);
    leave(u"DBOK"_s);
}

int FileForm::slotOf(const QObject* control) const
{
    for (std::size_t slot = 0; slot < iconBox.size(); ++slot) {
        if (control == iconBox[slot] || control == fileNameBox[slot])
            return int(slot);
    }
    return -1;
}

bool FileForm::eventFilter(QObject* watched, QEvent* event)
{
    const int slot = slotOf(watched);
    if (slot < 0)
        return AnswerDialog::eventFilter(watched, event);
    bool handled = false;
    guarded([&] {
        switch (event->type()) {
        case QEvent::MouseButtonDblClick:
            openSlot(slot);
            handled = true;
            break;
        case QEvent::MouseButtonRelease: // icons are buttons and handle clicks themselves
            if (watched == fileNameBox[slot])
                select(slot);
            break;
        case QEvent::Wheel:
            handled = QCoreApplication::sendEvent(Fslide, event);
            break;
        case QEvent::FocusIn: // the row is one stop of the Tab key
            for (QToolButton* icon : iconBox)
                icon->setFocusPolicy(icon == watched ? Qt::StrongFocus : Qt::ClickFocus);
            break;
        case QEvent::KeyPress:
            handled = slotKeyPressed(slot, static_cast<QKeyEvent*>(event)->key());
            break;
        default:
            break;
        }
    });
    return handled || AnswerDialog::eventFilter(watched, event);
}

bool FileForm::slotKeyPressed(int slot, int key)
{
    switch (key) {
    case Qt::Key_Left:
        moveAlong(slot, -1);
        return true;
    case Qt::Key_Right:
        moveAlong(slot, 1);
        return true;
    case Qt::Key_Home:
        Fslide->setValue(0);
        iconBox[0]->setFocus();
        return true;
    case Qt::Key_End:
        Fslide->setValue(Fslide->maximum());
        iconBox[0]->setFocus();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openSlot(slot);
        return true;
    default:
        return false;
    }
}

void FileForm::moveAlong(int slot, int step)
{
    const int next = slot + step;
    if (next < 0 || next >= FolderWalk::slotCount)
        Fslide->setValue(Fslide->value() + step); // the focus stays, the icons scroll
    else if (!walk.item(next).tag.isEmpty())
        iconBox[next]->setFocus();
}
