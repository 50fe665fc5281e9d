// The sounds of the sample cards, made from sums of sine waves and a little noise.

#pragma once

#include "monster.h"

#include "platform/wave.h"

/// The sound that a table calls `name`: "owl", "trumpet". 16 bits, one channel, 22050 frames a second, under
/// two seconds. Throws std::runtime_error for a name without a sound.
Wave voiceOf(const QString& name);

/// A monster's call: as many notes as it has eyes, the deeper the taller it is.
Wave callOf(const Monster& monster);
