// The spray can.
#pragma once

struct Painting;
class QPoint;

/// A new pattern of dots in the pen's colour. Dots of the last pattern are gone.
void regenerateSprayBrush(Painting& painting);
/// Stamps the pattern with its middle at the point. White dots leave no mark.
void stampSprayBrush(Painting& painting, QPoint at);
