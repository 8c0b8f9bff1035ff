#pragma once

#include "keys/pitch_mapping.h"

#include <QString>

#include <array>

/// Names by selector key index, 0 to 11. The key of a note is its index in semitones above C.
extern const std::array<QString, pitch_mapping::octave> tonicModifierName;

/// Interval names by selector key index, 0 to 11 semitones above the tonic; "^" is the tritone.
extern const std::array<QString, pitch_mapping::octave> scaleModifierName;
