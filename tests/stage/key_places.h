#pragma once

#include "MappingRule.h"

constexpr int whiteKeys = 52, keysWidth = 17 * whiteKeys, keysHeight = 99;

/// The key at a place counted from the top left corner of A0; 0 beside the keys. Told from the sizes alone:
/// white keys are 17 by 99, black ones 10 by 64 and centred on the edge between their neighbours.
[[nodiscard]] inline int keySeenAt(int x, int y)
{
    constexpr int lowestKey = 21, highestKey = 108;
    if (x < 0 || x >= keysWidth || y < 0 || y >= keysHeight)
        return 0;
    int white = lowestKey;
    for (int k = 0; k < x / 17; ++k)
        white += isWhite(white + 1) ? 1 : 2;
    const int within = x % 17;
    if (y < 64 && within < 5 && white > lowestKey && !isWhite(white - 1))
        return white - 1;
    if (y < 64 && within >= 12 && white < highestKey && !isWhite(white + 1))
        return white + 1;
    return white;
}
