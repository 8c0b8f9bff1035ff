#pragma once

#include <array>
#include <bitset>

/// Which out pitch each in key drives: the rule of the instrument as pure functions over plain values.
///
/// Middle C sounds the tonic in the octave above it; each white key above and below sounds the next scale
/// note above and below; black keys sound nothing. The anchor then slides that assignment along the white
/// keys.
namespace pitch_mapping {

inline constexpr int lowestPitch = 21;
inline constexpr int highestPitch = 108;
inline constexpr int keyCount = highestPitch - lowestPitch + 1;
inline constexpr int whiteCount = 52;
inline constexpr int seedPitch = 60;
inline constexpr int noTarget = -1;
inline constexpr int octave = 12; ///< in semitones
/// Width of a white key in scene units: one step of the anchor shift.
inline constexpr int whiteKeyWidth = 17;

/// Bit n is the degree n semitones above the tonic.
using Degrees = std::bitset<octave>;

/// One flag a key, by MIDI note number less 21.
using PitchSet = std::bitset<keyCount>;

/// The out pitch of each in key, by MIDI note number less 21; noTarget for a silent key.
using Targets = std::array<int, keyCount>;

[[nodiscard]] constexpr bool isOnKeyboard(int pitch)
{
    return pitch >= lowestPitch && pitch <= highestPitch;
}

/// Index of a pitch in PitchSet and Targets; only meaningful from 21 to 108.
[[nodiscard]] constexpr std::size_t indexOf(int pitch)
{
    return static_cast<std::size_t>(pitch - lowestPitch);
}

/// True for the pitches of black keys; the octave pattern holds for every int.
[[nodiscard]] bool isBlackPitch(int pitch);

/// The pitches of the 52 white keys, ascending.
[[nodiscard]] const std::array<int, whiteCount>& whitePitches();

/// The degree, 0 to 11, of a pitch under a tonic of 0 (C) to 11 (B).
[[nodiscard]] int degreeOf(int pitch, int tonic);

/// All keyboard pitches whose degree is on.
[[nodiscard]] PitchSet pitchesOf(int tonic, const Degrees& degrees);

/// Every key drives its own pitch, black keys too: the map with the power off.
[[nodiscard]] Targets identity();

/// The unshifted map. Each walk ends where the scale runs out of pitches; what it would give to keys beyond
/// the keyboard is dropped. Keys that no walk reaches stay silent.
[[nodiscard]] Targets walk(int tonic, const PitchSet& scale);

/// A slid map, and the span of keys that were filled from the scale rather than copied from a neighbour.
struct Slide
{
    Targets targets;
    int tailFirst; ///< lowest pitch of the tail; above tailLast if there is none
    int tailLast;
};

/// Slides the targets along the white keys: each takes the target of the white key `shift` places above it
/// (negative: below it). Keys left over at the end continue with the notes of `scale`. Any shift is allowed;
/// one beyond the keyboard silences all white keys upward and changes nothing downward.
[[nodiscard]] Slide slide(const Targets& from, const PitchSet& scale, int shift);

/// The shift, in white keys, of a main anchor at scene x: left of 0 counts up, right of 0 counts down.
[[nodiscard]] int shiftOfAnchor(double sceneX);

} // namespace pitch_mapping
