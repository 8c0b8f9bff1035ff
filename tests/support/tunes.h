#pragma once

#include "MappingRule.h"

#include <QList>

/// Messages that a player sends: a key struck and let go, and all white keys from one note to another.
inline QList<QList<int>> tap(int key)
{
    return {{0x90, key, 64}, {0x80, key, 0}};
}

inline QList<QList<int>> tapWhiteKeys(int from, int to)
{
    QList<QList<int>> messages;
    for (int key = from; key <= to; ++key)
        if (isWhite(key))
            messages += tap(key);
    return messages;
}
