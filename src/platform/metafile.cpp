#include "platform/metafile.h"

#include "platform/errors.h"
#include "platform/metafileCheck.h"
#include "platform/metafilePainter.h"

#include <QPainter>

#include <cmath>
#include <cstdio>
#include <memory>

extern "C" {
#include <libwmf/api.h>
}

namespace {

constexpr int largestSide = 2000; // pixels

/// Called before each record.
int stopsWhenEndless(void* device, float)
{
    constexpr double recordWork = 500;
    double& work = static_cast<MetafileDevice*>(device)->work;
    work += recordWork;
    return work > mostMetafileWork;
}

/// The library with a metafile opened in it.
class Player {
public:
    explicit Player(const QByteArray& metafile)
        : file(metafile)
        , device{nullptr, metafile, {}, 0, 0}
    {
        static FILE* const nowhere = std::fopen("/dev/null", "w");
        wmfAPI_Options options{};
        options.function = connectMetafilePainter;
        options.error_out = options.debug_out = nowhere;
        wmfAPI* made = nullptr;
        const auto error = wmf_lite_create(
            &made, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG,
            &options);
        library.reset(made);
        check(error);
        library->user_data = &device;
        wmf_status_function(made, &device, stopsWhenEndless);
        check(wmf_mem_open(made, reinterpret_cast<unsigned char*>(file.data()), file.size()));
    }

    /// The area that is drawn on. Raises 481 when it is empty.
    QRectF area()
    {
        QImage unseen(1, 1, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&unseen); // the library may draw already now
        device.painter = &painter;
        const auto error = wmf_scan(library.get(), 0, &bounds);
        device.painter = nullptr;
        check(error);
        const QRectF found(bounds.TL.x, bounds.TL.y, bounds.BR.x - bounds.TL.x, bounds.BR.y - bounds.TL.y);
        if (!(found.width() > 0 && found.height() > 0) || !std::isfinite(found.width() + found.height()))
            throw RuntimeError(invalidPicture);
        return found;
    }

    void play(QPainter& painter)
    {
        device = {&painter, file, {}, 0, 0};
        check(wmf_play(library.get(), 0, &bounds));
    }

private:
    static void check(wmf_error_t error)
    {
        if (error != wmf_E_None)
            throw RuntimeError(invalidPicture);
    }

    QByteArray file; // a copy: the library asks for bytes that it might change
    MetafileDevice device;
    struct Ending {
        void operator()(wmfAPI* ended) const { wmf_lite_destroy(ended); }
    };
    std::unique_ptr<wmfAPI, Ending> library;
    wmfD_Rect bounds{};
};

} // namespace

bool beginsAsMetafile(const QByteArray& file)
{
    return file.startsWith("\xD7\xCD\xC6\x9A") || file.startsWith(QByteArray("\x01\0\x09\0", 4)) ||
           file.startsWith(QByteArray("\x02\0\x09\0", 4));
}

QImage playMetafile(const QByteArray& file, QSize size)
{
    const QByteArray checked = checkedMetafile(file);
    if (checked.isEmpty())
        throw RuntimeError(invalidPicture);
    Player player(checked);
    const QRectF area = player.area();
    const QSizeF covering = area.size().scaled(size, Qt::KeepAspectRatioByExpanding);
    const QSize made = covering.toSize().expandedTo({1, 1}).boundedTo({largestSide, largestSide});
    QImage picture(made, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(made.width() / area.width(), made.height() / area.height());
    painter.translate(-area.topLeft());
    player.play(painter);
    return picture.convertToFormat(QImage::Format_ARGB32);
}
