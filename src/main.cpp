// The program.
#include "controls/application.h"
#include "window/startUp.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const auto application = makeApplication(argc, argv, chosenScale);
    return runTallymoor();
}
