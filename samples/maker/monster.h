// Draws a little monster from the values on its card, so that every value can be seen or counted in
// the picture.

#pragma once

#include "cardTable.h"

#include <QImage>
#include <QString>

struct Monster {
    QString body;    ///< Ball, Box, Egg or Pear
    QString colour;  ///< Blue, Green, Orange, Pink, Purple or Yellow
    QString pattern; ///< Plain, Spots, Stars or Stripes
    int eyes = 2;    ///< 1 to 5
    int arms = 2;    ///< 0 to 6; the odd one is on the left
    int horns = 0;   ///< 0 to 4
    int height = 60; ///< centimetres from the ground to the top of the head, drawn to scale
    bool flies = false;
};

/// The monster that the card's values describe.
Monster monsterOf(const SampleCard& card);

/// The monster in its scene, standing on the ground, of the size of a card's picture (159 x 120).
/// Throws std::runtime_error for a word or number that can't be drawn.
QImage drawMonster(const Monster& monster);
