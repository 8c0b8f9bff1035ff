#include "logging/LocalClock.h"

#include <QDateTime>

namespace {

constexpr qint64 second = 1000; // milliseconds

} // namespace

QTime LocalClock::now()
{
    const qint64 utcMs = QDateTime::currentMSecsSinceEpoch();
    if (utcMs / second != knownSecond) {
        knownSecond = utcMs / second;
        secondsTime = QDateTime::fromMSecsSinceEpoch(knownSecond * second).time();
    }
    return secondsTime.addMSecs(static_cast<int>(utcMs % second));
}
