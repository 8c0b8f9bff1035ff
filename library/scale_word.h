#pragma once

#include <QLatin1String>
#include <QString>

inline constexpr int scaleWordLength = 12; ///< one letter a semitone

inline const QLatin1String ionianWord("xoxoxxoxoxox");
inline const QLatin1String tonicAloneWord("xooooooooooo");

/// Whether a text is a whole scale word: "x", the tonic, and eleven letters "x" or "o".
[[nodiscard]] bool isScaleWord(const QString& text);
