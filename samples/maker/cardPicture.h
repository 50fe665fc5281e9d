// What all pictures of the sample cards share: their size, their colours and the ink of their outlines.

#pragma once

#include <QColor>
#include <QImage>
#include <QPen>

inline constexpr QSize pictureSize(159, 120);

inline const QColor ink("#2B2B3A"), sky("#4FB3E8"), grass("#7AC943"), sun("#FFD84D"), berry("#E8557A"),
    paper("#FFFDF5");

inline QPen inkPen(double width = 3) { return QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin); }

/// An empty white picture, 24 colour bits.
inline QImage blankPicture()
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

/// The drawing in an SVG file on white. Throws std::runtime_error when it can't be read as one.
QImage drawSvg(const QString& path);
