#pragma once

#include "keys/pitch_mapping.h"

#include <vector>

/// The numbers along the keyboards: which degree of the scale a key plays.
namespace degree_marks {

/// A number on a bar; x is the left edge of its digits, in pixels of the bar.
struct Mark
{
    int x;
    int number;

    bool operator==(const Mark& other) const { return x == other.x && number == other.number; }
};

using Marks = std::vector<Mark>;

/// The place of a pitch in the scale: 1 is the tonic, 2 the next degree that is on. 0 for a pitch outside the
/// scale. `tonic` is 0 (C) to 11 (B).
[[nodiscard]] int numberOf(int pitch, int tonic, const pitch_mapping::Degrees& scale);

/// The lowest pitch from the tonic above middle C upwards that bears a number, 1 to the count of degrees;
/// noTarget for another number.
[[nodiscard]] int pitchOf(int number, int tonic, const pitch_mapping::Degrees& scale);

/// Pixels that a number on the out bar is moved by, so that it stands right by eye: a table set by hand. 0
/// for a number or a tonic beyond it.
[[nodiscard]] int outCorrection(int tonic, int ordinal, int count);

} // namespace degree_marks
