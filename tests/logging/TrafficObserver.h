#pragma once

#include "logging/LoggerObserver.h"

#include <QString>

#include <array>
#include <atomic>
#include <vector>

/// Eight threads that log numbered entries.
namespace traffic {

constexpr int loggers = 8;

/// Logs the numbers from 0 on as this logger's.
void log(int logger, int count);
/// Which one an entry's text tells.
[[nodiscard]] int loggerOf(const QString& text);
[[nodiscard]] int numberOf(const QString& text);

} // namespace traffic

/// Counts its calls. Its members are plain on purpose: nobody may call it twice at once, and a race detector
/// sees who does.
class LoneObserver : public LoggerObserver
{
public:
    LoneObserver() : LoggerObserver(LoggerModel::all) {}
    void mpLogEvent(LoggerItem& item) override;

    int calls = 0;
    int excluded = 0; ///< what an observer that minds its filters and its threshold would pass over
    static std::atomic<int> callsBesideOthers; ///< of one observer by two threads at once, whichever it was

private:
    std::atomic<bool> isCalled = false;
};

/// Checks what comes of the traffic.
class TrafficObserver : public LoneObserver
{
public:
    explicit TrafficObserver(int entriesOfEach);
    void mpLogEvent(LoggerItem& item) override;
    [[nodiscard]] bool hasGot(int logger, int number) const
    {
        return got[std::size_t(logger)][std::size_t(number)];
    }
    /// How many did not come.
    [[nodiscard]] int missing() const;

    int again = 0;      ///< entries that came a second time
    int outOfOrder = 0; ///< entries that came after a later one of their logger
    int torn = 0;       ///< entries whose text, level and id are not of one call

private:
    std::array<std::vector<char>, traffic::loggers> got;
    std::array<int, traffic::loggers> latest;
};
