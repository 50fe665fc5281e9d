// The headers that nearly every file of the core library reads, compiled once.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>
