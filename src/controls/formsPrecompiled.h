// The headers that nearly every window includes, compiled once.
#include "platform/corePrecompiled.h"
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
