// What all pictures of the sample cards share: their size, their colours, the ink of their outlines,
// their edge.

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

/// Darkens the edge of a card's picture, so that overlapping cards can be told apart. Draw it last.
void drawEdge(QImage& picture);

/// The drawings of SVG files on white, stacked from the first up. Throws std::runtime_error for a file that
/// isn't SVG.
QImage drawSvgs(const QStringList& paths, QSize size);
