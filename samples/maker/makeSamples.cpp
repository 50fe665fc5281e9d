// make_samples OUTDIR: makes the sample databases from the tables and drawings in this folder.

#include "sampleDatabase.h"

#include "platform/desktop.h"
#include "platform/errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <stdexcept>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: make_samples OUTDIR\n";
        return 2;
    }
    // A message of a writer ends the run.
    desktop.sound.beep = [] {};
    desktop.boxes.showMessage = [](MessageIcon, const QString&, const QString& text) {
        throw std::runtime_error(text.toStdString());
    };
    const QDir tables(SAMPLES_FOLDER "/tables");
    try {
        for (const QString& name : tables.entryList({"*.txt"}, QDir::Files, QDir::Name)) {
            const CardTable table = readCardTable(tables.filePath(name));
            writeSampleDatabase(table, QDir(SAMPLES_FOLDER), arguments[1]);
            QTextStream(stdout) << table.title << ": " << table.cards.size() << " cards\n";
        }
    } catch (...) {
        QTextStream(stderr) << "make_samples: " << currentErrorDescription() << '\n';
        return 1;
    }
    return 0;
}
