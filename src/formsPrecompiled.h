// The headers that nearly every window reads, compiled once.
#include "corePrecompiled.h"
#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
