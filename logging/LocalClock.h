#pragma once

#include <QTime>

#include <limits>

/// Tells the local time of day. It asks the system for the time zone once a second only, since that may cost
/// more than all the rest of an entry. Not thread-safe.
class LocalClock
{
public:
    [[nodiscard]] QTime now();

private:
    qint64 knownSecond = std::numeric_limits<qint64>::min(); // since the epoch
    QTime secondsTime;                                       // when it began
};
