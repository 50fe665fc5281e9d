// Runs a target on every file below the folders given as arguments.
#include "fuzz/fuzzSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            seedIsValid = files.fileInfo().dir().dirName() == QLatin1String("valid");
            mustHold(file.open(QIODevice::ReadOnly), "a seed can be read");
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
