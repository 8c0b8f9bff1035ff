#pragma once

#include "headers/header_data.h"
#include "library/scale_data.h"

#include <QString>

#include <array>

// The factory content, built before main(). The scales' texts are read as Latin-1; all are plain ASCII.

inline constexpr int resetCategoryCount = 10;
inline constexpr int resetHeaderCount = 36;
/// Block 0 and the one after the last category are empty.
inline constexpr int resetBlockCount = 11;
inline constexpr int resetBlockRows = 13;

/// The categories in their order. Kept: so spelt.
extern const std::array<QString, resetCategoryCount> resetCatrgoryData;

/// How many rows of a block are loaded. A block may hold more: those are never shown.
extern const std::array<int, resetBlockCount> numResetScales;

/// The scales: block i + 1 holds those of category i, the rows past its content are empty. The words are the
/// common practice of the named scales.
extern const std::array<std::array<scale_data, resetBlockRows>, resetBlockCount> resetScaleData;

/// The presets, from the lowest black key up.
extern const std::array<header_data, resetHeaderCount> resetHeaderData;
