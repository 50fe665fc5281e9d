// The program: everything happens in the main window's events.
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    return 0;
}
