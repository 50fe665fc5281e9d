// The benchmarks. They run offscreen, so that the speed of the display has no influence.
#include "startBench.h"

#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && qstrcmp(argv[1], "--start") == 0)
        startAndEnd(argc, argv, argv[2]);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
