#include "options/credits.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Owners and licences as the packages of Debian 12 state them.
struct Work {
    const char* name;
    const char* use;
    const char* owner;
    const char* licence;
};

constexpr Work works[] = {
    {"Qt 6", "windows, pictures, sound and paper", "The Qt Company Ltd. and contributors",
     "GNU Lesser General Public License 3"},
    {"libwmf (light part)", "reads old drawings", "Francis James Franklin",
     "GNU Library General Public License 2 or later"},
    {"FreeType", "draws letters", "David Turner, Robert Wilhelm, Werner Lemberg", "FreeType License"},
    {"HarfBuzz", "puts letters in their places", "Google, Red Hat and contributors",
     "MIT License (old style)"},
    {"ICU", "knows the letters of all languages", "Unicode, Inc.", "Unicode licence, in the manner of MIT"},
    {"libpng", "reads PNG pictures", "The PNG Reference Library Authors", "libpng licence"},
    {"libjpeg-turbo", "reads photos", "Thomas G. Lane, Guido Vollbeding and contributors",
     "BSD and Independent JPEG Group licences"},
    {"zlib", "unpacks", "Jean-loup Gailly and Mark Adler", "zlib licence"},
    {"libarchive", "unpacks the videos", "Tim Kientzle and contributors", "BSD licence of two clauses"},
    {"CUPS library", "talks to printers", "Apple Inc. and Michael R Sweet",
     "Apache License 2.0 with GPL exception"},
    {"PulseAudio library", "talks to loudspeakers and microphones", "Lennart Poettering and contributors",
     "GNU Lesser General Public License 2.1 or later"},
    {"GNU C and C++ libraries", "what every program needs", "Free Software Foundation, Inc.",
     "GNU Lesser General Public License 2.1; GPL 3 with runtime exception"},
    {"Andika", "the letters of the windows", "SIL International", "SIL Open Font License 1.1"},
    {"Comic Neue", "the letters on the cards", "Craig Rozynski", "SIL Open Font License 1.1"},
    {"Liberation Sans", "the letters of this window", "Red Hat, Inc.",
     "GNU General Public License 2 with font exception"},
};

QString latin(const char* text) { return QLatin1StringView(text); }

} // namespace

QString credits()
{
    QStringList parts = {u"Program, pictures and sounds:\n"_s + makersLine(),
                         u"Tallymoor stands on the work\nof many others. Thank you!"_s};
    for (const auto& [name, use, owner, licence] : works)
        parts.append(
            QStringList{latin(name), latin(use), u"© "_s + latin(owner), latin(licence)}.join(u'\n'));
    parts.append(u"The full licences lie in\n/usr/share/doc/PACKAGE/copyright\nof this computer."_s);
    return parts.join(u"\n\n"_s);
}

QString makersLine() { return QString::fromUtf8(TALLYMOOR_MAKER); }

QString makersPage() { return QString::fromUtf8(TALLYMOOR_WEB); }

QString makersMail() { return QString::fromUtf8(TALLYMOOR_MAIL); }
