#include "keys/degree_marks.h"

namespace degree_marks {
namespace {

using pitch_mapping::Degrees;

constexpr int tonics = pitch_mapping::octave, ordinals = pitch_mapping::octave;

// Set by hand and by eye, number by number: kept as they stand.
constexpr int corrections[ordinals][tonics] = {
    // C   C#  D   D#  E   F   F#  G   G#  A   A#  B
    {0, 1, 1, 1, 3, -1, 1, 1, 1, 1, 1, 2},            // 1
    {0, 0, -1, 0, 0, 0, 0, 0, 0, 0, 0, -1},           // 2
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},             // 3
    {0, 0, -1, 0, -1, 0, 0, -1, 0, -1, 0, 0},         // 4
    {0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0},             // 5
    {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}, // 6
    {0, -1, 0, 0, -1, 1, -1, -1, 0, -1, 0, -1},       // 7
    {0, -1, -1, -1, -1, 0, -1, -2, -1, 1, -1, -1},    // 8
    {-1, -1, -1, -1, -1, -1, -1, -2, 0, -1, -1, -1},  // 9
    {-2, -2, -3, -3, -3, -1, -2, -3, -3, -3, -2, -3}, // 10
    {-1, 1, -3, -2, -2, 0, -1, -2, -2, -2, -2, -2},   // 11
    {0, -5, -3, -1, -2, 0, -2, -3, -2, -3, -3, -3},   // 12
};

} // namespace

int numberOf(int pitch, int tonic, const Degrees& scale)
{
    const auto degree = static_cast<std::size_t>(pitch_mapping::degreeOf(pitch, tonic));
    if (!scale[degree])
        return 0;
    int number = 0;
    for (std::size_t n = 0; n <= degree; ++n)
        number += scale[n] ? 1 : 0;
    return number;
}

int pitchOf(int number, int tonic, const Degrees& scale)
{
    for (int degree = 0; degree < tonics && number > 0; ++degree)
        if (scale[static_cast<std::size_t>(degree)] && --number == 0)
            return pitch_mapping::seedPitch + tonic + degree;
    return pitch_mapping::noTarget;
}

int outCorrection(int tonic, int ordinal, int count)
{
    const bool eleventhOnCSharp = ordinal == 11 && tonic == 1;
    if (count < 1)
        return eleventhOnCSharp ? 1 : 0;
    if (eleventhOnCSharp && count == 11)
        return -1;
    if (ordinal < 1 || ordinal > ordinals || tonic < 0 || tonic >= tonics)
        return 0;
    return corrections[ordinal - 1][tonic];
}

} // namespace degree_marks
