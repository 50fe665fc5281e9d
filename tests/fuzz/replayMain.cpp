// Runs a target on every file in the folders given as arguments.
#include "fuzz/fuzzSupport.h"

#include <QDir>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const auto files = QDir(QString::fromLocal8Bit(argv[i])).entryInfoList(QDir::Files);
        for (const QFileInfo& info : files) {
            QFile file(info.filePath());
            mustHold(file.open(QIODevice::ReadOnly), "a seed can be read");
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
