#include "platform/pictureChooser.h"

#include "platform/errands.h"
#include "platform/owningWindow.h"
#include "platform/pictureFile.h"
#include "platform/readOnlyChooser.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize previewSize(200, 152);
constexpr QSize dialogSize(860, 500);
const QString invitation = u"Click a picture to see it here."_s;

class Preview : public QLabel {
public:
    Preview()
    {
        setObjectName(u"preview"_s);
        setFixedSize(previewSize);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        say(invitation);
    }

    void showFile(const QString& path)
    {
        wanted = path;
        errands.forgetWaiting();
        say(QFileInfo(path).isFile() ? QString() : invitation);
        if (!QFileInfo(path).isFile())
            return;
        errands.send([path](const Errands::Forgotten&) { return readPicture(path, previewSize); },
                     [this, path](const QImage& read) {
                         if (path == wanted)
                             showPicture(read);
                     });
    }

private:
    void say(const QString& text)
    {
        setText(text);
        setAccessibleName(text.isEmpty() ? u"Preview"_s : text);
    }

    void showPicture(const QImage& read)
    {
        if (read.isNull())
            say(u"This is not a picture"_s);
        else
            setPixmap(QPixmap::fromImage(
                read.scaled(contentsRect().size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }

    Errands errands;
    QString wanted;
};

} // namespace

QString choosePictureFile(const QString& caption, const QString& startFolder, const QString& filter)
{
    QFileDialog dialog(owningWindow(), caption, startFolder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontUseNativeDialog);   // the layout below is that of Qt's own dialog
    dialog.setOption(QFileDialog::HideNameFilterDetails); // there is no room for the endings
    dialog.resize(dialogSize);
    auto* preview = new Preview;
    auto* grid = static_cast<QGridLayout*>(dialog.layout());
    grid->addWidget(preview, 1, grid->columnCount(), Qt::AlignTop);
    QObject::connect(&dialog, &QFileDialog::currentChanged, preview, &Preview::showFile);
    return chosenIn(dialog);
}
