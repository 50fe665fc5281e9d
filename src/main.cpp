// The program.
#include "window/startUp.h"

#include <QApplication>

#include <optional>
#include <vector>

int main(int argc, char** argv)
{
    int count = argc;
    std::vector<char*> arguments(argv, argv + argc + 1); // the first QApplication takes some away
    std::optional<QApplication> application(std::in_place, count, arguments.data());
    if (const double scale = scaleOfProgram(); scale != 1) {
        application.reset();
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
        application.emplace(argc, argv);
        qunsetenv("QT_SCALE_FACTOR"); // not for the programs that this one starts
    }
    return runTallymoor();
}
