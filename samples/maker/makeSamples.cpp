// make_samples OUTDIR: makes the sample databases from the tables and drawings in this folder.

#include "sampleDatabase.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <exception>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: make_samples OUTDIR\n";
        return 2;
    }
    const QDir tables(SAMPLES_FOLDER "/tables");
    try {
        for (const QString& name : tables.entryList({"*.txt"}, QDir::Files, QDir::Name)) {
            const CardTable table = readCardTable(tables.filePath(name));
            writeSampleDatabase(table, SAMPLES_FOLDER "/pictures", arguments[1]);
            QTextStream(stdout) << table.title << ": " << table.cards.size() << " cards\n";
        }
    } catch (const std::exception& error) {
        QTextStream(stderr) << "make_samples: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
