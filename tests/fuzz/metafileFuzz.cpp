// Any metafile is an error or a picture of a sensible size; played twice it is the same.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/metafile.h"

#include <QGuiApplication>

#include <optional>

namespace {

std::optional<QImage> played(const QByteArray& file)
{
    try {
        return playMetafile(file, {64, 48});
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// Texts want fonts, and fonts an application.
void startApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    startApplication();
    const QByteArray file = inputBytes(data, size);
    const auto first = played(file);
    mustHold(first || !seedIsValid, "a valid metafile is a picture");
    mustHold(!first || (first->width() <= 2000 && first->height() <= 2000),
             "the picture is no larger than told");
    mustHold(first == played(file), "a drawing is always the same");
    return 0;
}
