#include "store/FileForm.h"

#include "core/session.h"
#include "platform/balloon.h"
#include "platform/desktop.h"
#include "platform/dialogParts.h"
#include "platform/picture.h"
#include "platform/textLines.h"
#include "store/settings.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace {

constexpr int slotWidth = 108;
constexpr int iconSide = 64;
constexpr int nameLines = 4;
constexpr int soon = 300; // ms that a slow place may take before the dialog says so

/// The picture and the word for each kind of item.
struct Kind {
    QLatin1String tag;
    const char* picture;
    const char* word;
};
constexpr Kind kinds[] = {
    {QLatin1String("Drive"), "drive", "drive"},
    {QLatin1String("Dir"), "closedFolder", "folder"},
    {QLatin1String("tdb"), "database", "database"},
    {QLatin1String("File"), "file", "picture"},
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
    if (item.tag == QLatin1String("Drive"))
        name += QString::number(item.driveKind);
    return QIcon(picturePath(name));
}

QPushButton* wayButton(const char* name, const QString& pictureName, const QString& tip)
{
    auto* button = named(new QPushButton, name);
    button->setIcon(QIcon(picturePath(pictureName)));
    button->setAccessibleName(tip);
    giveHint(*button, tip);
    return button;
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
    : AnswerDialog(
          new AnswerButtons({"OKbut", QStringLiteral("OK")}, {"CancelBut", QStringLiteral("Cancel")}))
    , FileLabel(named(new QLabel, "FileLabel"))
    , CurDirIcon(named(new QLabel, "CurDirIcon"))
    , CurDirBox(shownText("CurDirBox", QStringLiteral("Folder")))
    , upFoldBut(wayButton("upFoldBut", QStringLiteral("upFolder"), QStringLiteral("Up a Level")))
    , StdDiBoxBut(wayButton("StdDiBoxBut", QStringLiteral("browseNetwork"), QStringLiteral("Browse Network")))
    , Fslide(named(new QSlider(Qt::Horizontal), "Fslide"))
    , SelectedFnameBox(shownText("SelectedFnameBox", QStringLiteral("Chosen")))
{
    setObjectName(QStringLiteral("FileForm"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(placeRow());
    rows->addWidget(iconRow());
    rows->addWidget(Fslide);
    rows->addWidget(answerRow());
    Fslide->setAccessibleName(QStringLiteral("First icon shown"));
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
        answer(QStringLiteral("OK"));
    });
    onClick(answers->cancel, [this] { answer(QStringLiteral("Cancel")); });
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
        auto* icon = named(new QToolButton, qPrintable(QStringLiteral("iconBox%1").arg(slot)));
        icon->setProperty("role", QStringLiteral("slot"));
        icon->setIconSize(QSize(iconSide, iconSide));
        icon->setCheckable(true);
        icon->installEventFilter(this);
        onClick(icon, [this, slot] { select(slot); });
        auto* name = named(new QLabel, qPrintable(QStringLiteral("fileNameBox%1").arg(slot)));
        name->setTextFormat(Qt::PlainText);
        name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        name->setFixedWidth(slotWidth);
        name->installEventFilter(this);
        for (QWidget* part : {static_cast<QWidget*>(icon), static_cast<QWidget*>(name)}) {
            QSizePolicy policy = part->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            part->setSizePolicy(policy);
        }
        line->addWidget(icon, 0, slot, Qt::AlignHCenter | Qt::AlignBottom);
        line->addWidget(name, 1, slot, Qt::AlignHCenter | Qt::AlignTop);
        line->setColumnMinimumWidth(slot, slotWidth);
        iconBox[std::size_t(slot)] = icon;
        fileNameBox[std::size_t(slot)] = name;
    }
    waitLabel = new QLabel(QStringLiteral("One moment..."));
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
    line->addWidget(named(pictureLabel(QStringLiteral("openPic"), QSize(40, 40)), "openPic"));
    line->addWidget(FileLabel);
    line->addWidget(SelectedFnameBox, 1);
    line->addWidget(answers);
    return answerLine;
}

void FileForm::load()
{
    for (QLabel* name : fileNameBox) {
        name->ensurePolished(); // from here on its font is that of the style sheet
        name->setFixedHeight(nameLines * name->fontMetrics().lineSpacing());
    }
    const bool free = readSetting(settingsFile(), QStringLiteral("UpLevel"), QStringLiteral("Status"),
                                  QStringLiteral("False")) == QLatin1String("False");
    upFoldBut->setEnabled(free);
    StdDiBoxBut->setEnabled(free);
    TLPath = readSetting(settingsFile(), QStringLiteral("Working Dir"), QStringLiteral("Path"), {});
    if (TLPath == QLatin1String("MyDocs"))
        TLPath = desktop.documentsFolder();
}

void FileForm::choose(const QString& caption, const QString& startFolder, const QString& pattern)
{
    setWindowTitle(caption);
    FileLabel->setText(caption);
    chosenFile.clear();
    session.dialogResult.clear();
    const QSize pictureSize = QSize(iconSide, iconSide) * desktop.pixelRatio();
    walk.start(startFolder, pattern, caption == QLatin1String("Open Database"), pictureSize);
    showPlace();
    starting = true;
}

void FileForm::showPlace()
{
    const QString placePicture =
        walk.amongDrives() ? QStringLiteral("MyPCpic") : QStringLiteral("openFolder");
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
    SelectedFnameBox->clear();
    for (int slot = 0; slot < FolderWalk::slotCount; ++slot)
        showSlot(slot);
}

void FileForm::showSlot(int slot)
{
    const WalkItem& item = walk.item(slot);
    QToolButton* icon = iconBox[std::size_t(slot)];
    QLabel* name = fileNameBox[std::size_t(slot)];
    icon->setVisible(!item.tag.isEmpty());
    name->setVisible(!item.tag.isEmpty());
    icon->setChecked(false);
    if (item.tag.isEmpty())
        return;
    icon->setIcon(iconOf(item));
    icon->setAccessibleName(item.name + QStringLiteral(", ") + QLatin1String(kindOf(item).word));
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
        showErrorBox(RuntimeError(error).description());
        answer(QStringLiteral("Cancel"));
    } else if (error == deviceUnavailable) {
        desktop.showMessage(MessageIcon::exclamation, QStringLiteral("Error"),
                            QStringLiteral("Make sure the disc is in the drive!"));
    }
}

void FileForm::select(int slot)
{
    const WalkItem& item = walk.item(slot);
    for (int other = 0; other < FolderWalk::slotCount; ++other)
        iconBox[std::size_t(other)]->setChecked(other == slot);
    if (item.tag == QLatin1String("tdb") || item.tag == QLatin1String("File"))
        SelectedFnameBox->setText(QFileInfo(item.path).fileName());
    wishedPath = item.path;
    wish = item.certain ? Wish::none : Wish::select;
}

void FileForm::openSlot(int slot)
{
    const WalkItem item = walk.item(slot);
    select(slot);
    if (item.tag == QLatin1String("tdb")) {
        answers->ok->click();
    } else if (item.tag == QLatin1String("Dir") && !item.certain) {
        wish = Wish::open; // nobody may walk into a database by being quick
    } else {
        walk.enter(item);
        showWaiting();
    }
}

void FileForm::answer(const QString& result)
{
    walk.stop();
    session.dialogResult = result;
    hide();
}

void FileForm::browse()
{
    const QString folderFound = desktop.chooseFolder(QStringLiteral("Browse for a Database"), walk.folder());
    F1 = folderFound.isEmpty() ? QStringLiteral("0") : QStringLiteral("1");
    if (!folderFound.isEmpty()) {
        chosenFile = folderFound;
        if (!folderFound.startsWith(QLatin1Char('(')))
            walk.setFolder(folderFound);
    }
    answer(QStringLiteral("DBOK"));
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
        case QEvent::MouseButtonRelease: // the icons, being buttons, answer clicks themselves
            if (watched == fileNameBox[std::size_t(slot)])
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
        Fslide->setValue(Fslide->value() + step); // the icons move under the focus
    else if (!walk.item(next).tag.isEmpty())
        iconBox[std::size_t(next)]->setFocus();
}
