#include "analysis/printJob.h"

#include "core/session.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/wholeFile.h"
#include "store/paths.h"

using namespace Qt::StringLiterals;

namespace {

class Hourglass {
public:
    Hourglass() { desktop.screen.setBusyPointer(true); }
    ~Hourglass() { desktop.screen.setBusyPointer(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

QSizeF turned(QSizeF sheet, PaperShape shape)
{
    return shape == PaperShape::landscape ? landscape(sheet) : sheet;
}

/// A new line of the printer's document. Everything ends with it.
PageDrawing whole(const PageDrawing& draw)
{
    return [draw](Page& page) {
        draw(page);
        page.newPage();
        page.endDoc();
    };
}

void sendToPrinter(const QString& title, PaperShape shape, const PageDrawing& draw)
{
    const QString printer = currentPrinter();
    const PrinterAnswer answer = printer.isEmpty() ? PrinterAnswer() : desktop.paper.askPrinter(printer);
    if (!answer.acceptsJobs)
        throw RuntimeError(deviceUnavailable);
    const QSizeF sheet = answer.sheet.isEmpty() ? usualSheet() : answer.sheet;
    const QByteArray pdf = pdfOf(turned(sheet, shape), title, whole(draw));
    if (!desktop.paper.print(printer, title, pdf))
        throw RuntimeError(deviceError);
}

void saveAsFile(const QString& title, PaperShape shape, const PageDrawing& draw)
{
    QByteArray pdf;
    {
        const Hourglass busy;
        pdf = pdfOf(usualSheetFor(shape), title, whole(draw));
    }
    const QString suggested = joinPath(desktop.files.documentsFolder(), title + u".pdf"_s);
    const QString path = desktop.files.chooseNewFile(u"Save as PDF"_s, suggested, u"PDF documents (*.pdf)"_s);
    if (!path.isEmpty())
        withErrorBox([&] { replaceFile(path, pdf); }); // a full disk is no matter of a printer
}

} // namespace

QString currentPrinter()
{
    const PrinterList& list = session.paper.Printercombo;
    return list.names.value(list.listIndex, {}).isEmpty() ? desktop.paper.defaultPrinterName()
                                                          : list.names[list.listIndex];
}

QSizeF usualSheetFor(PaperShape shape) { return turned(usualSheet(), shape); }

void printOut(const QString& title, PaperShape shape, const PageDrawing& draw)
{
    try {
        if (session.paper.saveAsPdf) {
            saveAsFile(title, shape, draw);
            return;
        }
        const Hourglass busy;
        sendToPrinter(title, shape, draw);
    } catch (const std::exception&) {
        desktop.boxes.showMessage(MessageIcon::stop, u"Printer Problem"_s,
                                  u"Make sure your printer is ready !"_s);
    }
}
