#include "platform/printers.h"

#include "platform/errands.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <cups/cups.h>
#include <cups/pwg.h>

#include <chrono>
#include <future>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 1800ms;             // with a question; the pupil waits for two seconds at most
constexpr auto sendingPatience = 30s;         // with a job on its way
constexpr int connectingLimit = 1500;         // ms
constexpr double silenceLimit = 5;            // seconds
constexpr double pointsPerUnit = 72.0 / 2540; // of CUPS' sizes of paper

// ---- on other threads ----

struct Printers {
    QStringList names;
    QString standard;
};

using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;

Connection connectToCups()
{
    http_t* cups = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                connectingLimit, nullptr);
    if (cups)
        httpSetTimeout(
            cups, silenceLimit, [](http_t*, void*) { return 0; }, nullptr);
    return {cups, httpClose};
}

/// A printer, or a set of options for it, as CUPS knows it; without one when it doesn't.
class Destination {
public:
    Destination(http_t* cups, const QString& printer)
    {
        const QByteArray name = printer.section(u'/', 0, 0).toUtf8();
        const QByteArray instance = printer.section(u'/', 1).toUtf8();
        found = cupsGetNamedDest(cups, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    }
    ~Destination() { cupsFreeDests(found ? 1 : 0, found); }
    Destination(const Destination&) = delete;
    Destination& operator=(const Destination&) = delete;

    cups_dest_t* get() const { return found; }
    QByteArray option(const char* name) const
    {
        return cupsGetOption(name, found->num_options, found->options);
    }

private:
    cups_dest_t* found = nullptr;
};

Printers listPrinters()
{
    Printers list;
    const Connection cups = connectToCups();
    if (!cups)
        return list;
    cups_dest_t* all = nullptr;
    const int count = cupsGetDests2(cups.get(), &all);
    for (int i = 0; i < count; ++i) {
        QString name = QString::fromUtf8(all[i].name);
        if (all[i].instance)
            name += u'/' + QString::fromUtf8(all[i].instance);
        list.names.append(name);
        if (all[i].is_default)
            list.standard = name;
    }
    cupsFreeDests(count, all);
    if (list.standard.isEmpty()) // no default is set: the one that the print dialog shows first
        list.standard = list.names.value(0);
    return list;
}

/// The name of the printer's default, asked for itself: cupsGetDestMediaDefault() gives Letter for printers
/// of A4.
QSizeF usualPaper(http_t* cups, cups_dest_t* printer)
{
    cups_dinfo_t* details = cupsCopyDestInfo(cups, printer);
    if (!details)
        return {};
    QSizeF paper;
    ipp_attribute_t* named = cupsFindDestDefault(cups, printer, details, CUPS_MEDIA);
    const char* name = named ? ippGetString(named, 0, nullptr) : nullptr;
    if (const pwg_media_t* known = name ? pwgMediaForPWG(name) : nullptr)
        paper = QSizeF(known->width, known->length) * pointsPerUnit;
    cupsFreeDestInfo(details);
    return paper;
}

PrinterAnswer askCups(const QString& name)
{
    const Connection cups = connectToCups();
    if (!cups)
        return {};
    const Destination printer(cups.get(), name);
    if (!printer.get())
        return {};
    const bool stopped = printer.option("printer-state").toInt() == IPP_PSTATE_STOPPED;
    if (stopped || printer.option("printer-is-accepting-jobs") != "true")
        return {};
    return {true, usualPaper(cups.get(), printer.get())};
}

/// The whole job, or none: one that could not be handed over completely, or in time, is cancelled.
bool sendToCups(const QString& name, const QString& title, const QByteArray& pdf,
                const Errands::Forgotten& forgotten)
{
    const Connection cups = connectToCups();
    if (!cups)
        return false;
    const Destination printer(cups.get(), name);
    if (!printer.get())
        return false;
    cups_dest_t& to = *printer.get();
    // The pages have the printer's own size, and everything on them its place.
    to.num_options = cupsAddOption("print-scaling", "none", to.num_options, &to.options);
    const QByteArray words = title.toUtf8();
    const int job = cupsCreateJob(cups.get(), to.name, words.constData(), to.num_options, to.options);
    if (job == 0)
        return false;
    const bool sent =
        cupsStartDocument(cups.get(), to.name, job, words.constData(), CUPS_FORMAT_PDF, 1) == HTTP_CONTINUE &&
        cupsWriteRequestData(cups.get(), pdf.constData(), std::size_t(pdf.size())) == HTTP_CONTINUE &&
        !forgotten && cupsFinishDocument(cups.get(), to.name) <= IPP_OK_CONFLICT;
    if (!sent)
        cupsCancelJob2(cups.get(), to.name, job, 1);
    return sent;
}

// ---- on this thread ----

/// What `work` gives on another thread, or an empty result when it takes longer than `limit`. Meanwhile the
/// windows are painted, but take no clicks or keys.
template <class Work>
auto answerWithin(std::chrono::milliseconds limit, Work work)
{
    std::invoke_result_t<Work, const Errands::Forgotten&> answer{};
    Errands errands;
    QEventLoop waiting;
    errands.send(work, [&](const auto& result) {
        answer = result;
        waiting.quit();
    });
    QTimer::singleShot(limit, &waiting, &QEventLoop::quit);
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return answer;
}

std::future<Printers> early; // what askForPrintersEarly() asked for
std::mutex latestLock;       // the teacher's options ask on another thread
Printers latest;

Printers latestAnswer()
{
    const std::lock_guard held(latestLock);
    return latest;
}

} // namespace

void askForPrintersEarly()
{
    auto answer = std::make_shared<std::promise<Printers>>();
    early = answer->get_future();
    auto* errands = new Errands;
    errands->setParent(qApp);
    errands->send(
        [answer](const Errands::Forgotten&) {
            answer->set_value(listPrinters());
            return true;
        },
        [errands](bool) { errands->deleteLater(); });
}

QStringList printerNames()
{
    Printers now = latestAnswer();
    if (!early.valid())
        now = answerWithin(patience, [](const Errands::Forgotten&) { return listPrinters(); });
    else if (early.wait_for(patience) == std::future_status::ready)
        now = early.get();
    if (early.valid())
        early = {};
    const std::lock_guard held(latestLock);
    latest = now;
    return now.names;
}

QString defaultPrinterName()
{
    if (latestAnswer().standard.isEmpty())
        printerNames();
    return latestAnswer().standard;
}

PrinterAnswer askPrinter(const QString& printer)
{
    return answerWithin(patience, [printer](const Errands::Forgotten&) { return askCups(printer); });
}

bool printOn(const QString& printer, const QString& title, const QByteArray& pdf)
{
    return answerWithin(sendingPatience, [=](const Errands::Forgotten& forgotten) {
        return sendToCups(printer, title, pdf, forgotten);
    });
}
