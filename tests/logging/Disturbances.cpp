#include "Disturbances.h"

#include "LoggerProbe.h"
#include "TrafficObserver.h"
#include "logging/LoggerFile.h"
#include "the_model.h"

#include <thread>

namespace {

void expect(bool holds)
{
    traffic::broken += !holds;
}

/// The numbers 0, 1, 2, ... of a disturbance, for changing values by turns.
struct Turns
{
    unsigned operator()() { return next++; }
    unsigned next = 0;
};

} // namespace

std::atomic<int> traffic::broken = 0;

void traffic::logAmid(int entriesOfEach, const std::vector<Disturbance>& disturbances)
{
    std::atomic<bool> isOver = false;
    std::atomic<std::size_t> begun = 0;
    std::vector<std::thread> disturbers, loggers;
    for (const Disturbance& disturb : disturbances)
        disturbers.emplace_back([&isOver, &begun, &disturb] {
            disturb();
            ++begun;
            while (!isOver) {
                disturb();
                std::this_thread::yield();
            }
        });
    while (begun < disturbances.size())
        std::this_thread::yield();
    for (int logger = 0; logger < traffic::loggers; ++logger)
        loggers.emplace_back(traffic::log, logger, entriesOfEach);
    for (std::thread& logger : loggers)
        logger.join();
    isOver = true;
    for (std::thread& disturber : disturbers)
        disturber.join();
}

void traffic::comeAndGo()
{
    LoneObserver observer;
    model()->registerObserver(&observer);
    std::this_thread::yield();
    model()->removeObserver(&observer, false);
    const int calls = observer.calls;
    std::this_thread::yield();
    expect(observer.calls == calls);
}

void traffic::comeToStay()
{
    model()->registerObserver(new LoneObserver);
    std::this_thread::yield();
}

void traffic::fire()
{
    model()->fireLogEntries();
}

void traffic::takeAllOff()
{
    model()->removeObserver(nullptr, true);
}

void traffic::resetFired()
{
    model()->resetFired();
}

traffic::Disturbance traffic::fireFor(LoggerObserver& observer)
{
    return [&observer] { model()->fireLogEntries(&observer); };
}

traffic::Disturbance traffic::changeLengthUpTo(unsigned longest)
{
    return [longest, turns = Turns()]() mutable {
        model()->setQueueLength(turns() % longest); // once in a while 0
    };
}

void traffic::readModel()
{
    expect(model()->getQueueLength() > 0);
    expect(model()->getQueueLength() <= 512);
    expect(model()->getObserverUpdateInterval() > 0);
}

void traffic::changeInterval()
{
    model()->setObserverUpdateInterval(model()->getObserverUpdateInterval() % 3 + 1);
}

traffic::Disturbance traffic::changeObserver(LoggerObserver& observer)
{
    return [&observer, turns = Turns()]() mutable {
        const unsigned turn = turns();
        const unsigned long long kind = turn % 2 ? log_id::firstFilter : log_id::secondFilter;
        observer.mpSetFilter(kind | turn);
        observer.mpUnsetFilter(kind | (turn / 2));
        observer.mpSetLogLevel(LoggerModel::LoggerModelLogLevel(turn % 7));
        expect(observer.mfGetLogLevel() == LoggerModel::LoggerModelLogLevel(turn % 7));
    };
}

traffic::Disturbance traffic::changeFile(LoggerFile& file)
{
    return [&file, turns = Turns()]() mutable {
        const unsigned turn = turns();
        file.mpSetFileSize((turn % 3) * 0x4000);
        file.mpSetBackupFileCount(turn % 4);
    };
}

traffic::Disturbance traffic::readFile(LoggerFile& file)
{
    return [&file] {
        expect(file.mfGetFileSize() <= 0x10000);
        expect(file.mfGetBackupFileCount() < 4);
        expect(file.mfIsValid());
        file.mpRenewLogFile();
    };
}

void traffic::flushByMode()
{
    changeInterval();
    model()->setMode(LoggerModel::fromThread);
    expect(model()->getMode() == LoggerModel::atOnce);
}

void traffic::flipMode()
{
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setMode(LoggerModel::atOnce);
    std::this_thread::yield();
    LoggerProbe::setMode(LoggerModel::atOnce);
    model()->setMode(LoggerModel::fromThread);
}
