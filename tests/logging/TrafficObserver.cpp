#include "TrafficObserver.h"

#include "logging/LoggerItem.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int perLogger = 1'000'000;

LoggerModel::LoggerModelLogLevel levelOf(int key)
{
    return LoggerModel::LoggerModelLogLevel(key % 8 - 1);
}

/// Of all kinds by turns, for the sake of the filters.
unsigned long long idOf(int key)
{
    constexpr std::array<unsigned long long, 3> kinds = {log_id::number, log_id::firstFilter,
                                                         log_id::secondFilter};
    return kinds[std::size_t(key % 3)] | unsigned(key + 1);
}

} // namespace

void traffic::log(int logger, int count)
{
    LoggerModel* model = LoggerModel::getInstance();
    for (int key = logger * perLogger; key < logger * perLogger + count; ++key)
        model->log(levelOf(key), QString::number(key), idOf(key));
}

int traffic::loggerOf(const QString& text)
{
    return text.toInt() / perLogger;
}

int traffic::numberOf(const QString& text)
{
    return text.toInt() % perLogger;
}

std::atomic<int> LoneObserver::callsBesideOthers = 0;

void LoneObserver::mpLogEvent(LoggerItem& item)
{
    if (isCalled.exchange(true, std::memory_order_relaxed))
        ++callsBesideOthers;
    excluded += mfMatchFilter(item.id) || item.level < mfGetLogLevel();
    ++calls;
    isCalled.store(false, std::memory_order_relaxed);
}

TrafficObserver::TrafficObserver(int entriesOfEach)
{
    got.fill(std::vector<char>(std::size_t(entriesOfEach), false));
    latest.fill(-1);
}

void TrafficObserver::mpLogEvent(LoggerItem& item)
{
    LoneObserver::mpLogEvent(item);
    const int key = item.text.toInt();
    torn += item.level != levelOf(key) || item.id != idOf(key);
    const auto logger = std::size_t(traffic::loggerOf(item.text));
    const int number = traffic::numberOf(item.text);
    char& came = got.at(logger).at(std::size_t(number));
    again += came;
    came = true;
    outOfOrder += number < latest[logger];
    latest[logger] = std::max(latest[logger], number);
}

int TrafficObserver::missing() const
{
    return std::accumulate(got.begin(), got.end(), 0, [](int sum, const std::vector<char>& ofOne) {
        return sum + int(std::count(ofOne.begin(), ofOne.end(), false));
    });
}
