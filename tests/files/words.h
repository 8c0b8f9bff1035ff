#pragma once

#include <QString>

#include <initializer_list>
#include <set>
#include <vector>

/// What can be done with the notes of a scale word. Degrees count from 1, semitones from 0 at the tonic.
namespace words {

inline constexpr int octave = 12;

/// The notes of the octave, 0 to 11, of the word on a tonic.
[[nodiscard]] std::set<int> notes(const QString& word, int tonic = 0);
[[nodiscard]] bool includes(const std::set<int>& all, const std::set<int>& some);
/// The semitones from each degree to the next.
[[nodiscard]] std::vector<int> steps(const QString& word);
/// The mode on a degree.
[[nodiscard]] QString mode(const QString& word, int degree);
[[nodiscard]] QString without(const QString& word, std::initializer_list<int> degrees);
[[nodiscard]] QString only(const QString& word, std::initializer_list<int> degrees);
/// One note moved; empty unless it is there and the other is free.
[[nodiscard]] QString moved(const QString& word, int from, int to);
[[nodiscard]] QString united(const QString& a, const QString& b);
/// How many of its transpositions differ.
[[nodiscard]] int transpositions(const QString& word);
/// How many of its modes differ.
[[nodiscard]] int modes(const QString& word);

} // namespace words
