// The text that is typed on the canvas.
#pragma once

#include <QPoint>

class QString;
struct Painting;

/// Opens the box with its left edge's middle at the point. A text that is still in it comes along.
void openText(Painting& painting, QPoint at);
/// The text box follows its text: it only ever grows.
void changeText(Painting& painting, const QString& text);
/// Writes the text onto the canvas and puts its box away.
void stampText(Painting& painting);
