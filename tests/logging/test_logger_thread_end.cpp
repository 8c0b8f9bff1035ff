// How the thread that hands entries out ends: by itself, terminated in its sleep, or late because an observer
// keeps it; never in the middle of a round.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "the_model.h"

#include <QtTest>

#include <future>

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 20s;         // for what must happen
constexpr auto briefly = 100ms;        // for what must not
constexpr unsigned anHour = 3'600'000; // milliseconds

bool ends(LoggerObserverThread& thread)
{
    return thread.wait(QDeadlineTimer(patience));
}

/// Does not come back from an entry before its door is opened.
class StuckObserver : public RecordingObserver
{
public:
    explicit StuckObserver(std::promise<void>& key) : door(key.get_future().share()) {}
    void mpLogEvent(LoggerItem& item) override
    {
        RecordingObserver::mpLogEvent(item);
        door.wait();
    }

private:
    std::shared_future<void> door;
};

} // namespace

class TestLoggerThreadEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LoggerProbe::freshModel(); }

    void runningThreadIsStoppedAndTheRestIsHandedOut();
    void stoppedThreadRunsNoMoreRounds();
    void sleepingThreadIsNotWaitedForLongerThanTwoIntervals();
    void threadStuckInAnObserverIsWaitedForInTheEnd();
    void threadThatEndsMayBeTerminated();
    void threadThatLeavesItsRoundsMayBeTerminated();
    void deletionEndsASleepingThread();
    void deletionWaitsForARound();
};

void TestLoggerThreadEnd::runningThreadIsStoppedAndTheRestIsHandedOut()
{
    RecordingObserver observer;
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(1);
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(LoggerProbe::thread().isRunning());
    model()->registerObserver(&observer);
    logTexts({"a", "b"});
    LoggerProbe::setMode(LoggerModel::atOnce);
    model()->setMode(LoggerModel::fromThread);
    QCOMPARE(observer.texts(), QStringList({"a", "b"}));
    QVERIFY(ends(LoggerProbe::thread()));
    QCOMPARE(model()->getMode(), LoggerModel::atOnce);
}

void TestLoggerThreadEnd::stoppedThreadRunsNoMoreRounds()
{
    RecordingObserver observer;
    model()->setMode(LoggerModel::fromThread); // stops it before it was ever started
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"a"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(ends(LoggerProbe::thread()));
    QCOMPARE(observer.texts(), QStringList());
}

void TestLoggerThreadEnd::sleepingThreadIsNotWaitedForLongerThanTwoIntervals()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(anHour);
    logTexts({"a"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(observer.waitFor(1)); // it sleeps for an hour now, or is about to
    LoggerProbe::setMode(LoggerModel::atOnce);
    model()->setObserverUpdateInterval(10);
    model()->setMode(LoggerModel::fromThread);
    QVERIFY(ends(LoggerProbe::thread()));
    QCOMPARE(observer.texts(), QStringList{"a"});
}

void TestLoggerThreadEnd::threadStuckInAnObserverIsWaitedForInTheEnd()
{
    std::promise<void> door;
    StuckObserver observer(door);
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(1);
    logTexts({"a", "b", "c"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(observer.waitFor(1));
    LoggerProbe::setMode(LoggerModel::atOnce);
    auto change = std::async(std::launch::async, [] { model()->setMode(LoggerModel::fromThread); });
    const bool gaveUpTheRound = change.wait_for(briefly) == std::future_status::ready;
    door.set_value();
    QVERIFY(!gaveUpTheRound); // the rest must not be handed out beside the thread
    QVERIFY(change.wait_for(patience) == std::future_status::ready);
    QCOMPARE(observer.texts(), QStringList({"a", "b", "c"}));
    QVERIFY(ends(LoggerProbe::thread()));
    logTexts({"d"}); // the thread has left no lock behind
    QCOMPARE(observer.texts().last(), QString("d"));
}

/// A thread that was to end by itself, and was told to be terminated as well while Qt cleared it away, took
/// the program along. The moment is hit only once in a while: here by a thread that finds itself stopped when
/// it begins.
void TestLoggerThreadEnd::threadThatEndsMayBeTerminated()
{
    for (int time = 0; time < 500; ++time) {
        LoggerProbe::setMode(LoggerModel::fromThread);
        model()->setObserverUpdateInterval(0); // no pause, and nobody waits for it
        model()->setMode(LoggerModel::atOnce);
        LoggerProbe::setMode(LoggerModel::atOnce);
        model()->setMode(LoggerModel::fromThread);
        LoggerModel::deleteInstance();
    }
}

/// The same of one that leaves its rounds, a little earlier or later each time.
void TestLoggerThreadEnd::threadThatLeavesItsRoundsMayBeTerminated()
{
    for (int time = 0; time < 1500; ++time) {
        RecordingObserver observer;
        model()->registerObserver(&observer);
        LoggerProbe::setMode(LoggerModel::fromThread);
        model()->setObserverUpdateInterval(0);
        logTexts({"a"});
        model()->setMode(LoggerModel::atOnce);
        QVERIFY(observer.waitFor(1));
        LoggerProbe::thread().stopThread();
        for (int turn = 0; turn < time % 50 && !LoggerProbe::thread().isFinished(); ++turn)
            std::this_thread::yield();
        LoggerModel::deleteInstance();
    }
}

void TestLoggerThreadEnd::deletionEndsASleepingThread()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(anHour);
    logTexts({"a"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(observer.waitFor(1));
    model()->removeObserver(&observer, false);
    auto deletion = std::async(std::launch::async, LoggerModel::deleteInstance);
    QVERIFY(deletion.wait_for(patience) == std::future_status::ready);
}

void TestLoggerThreadEnd::deletionWaitsForARound()
{
    std::promise<void> door;
    StuckObserver stuck(door);
    RecordingObserver next;
    model()->registerObserver(&stuck);
    model()->registerObserver(&next);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"a"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(stuck.waitFor(1));
    auto deletion = std::async(std::launch::async, LoggerModel::deleteInstance);
    const bool leftTheRound = deletion.wait_for(briefly) == std::future_status::ready;
    door.set_value();
    QVERIFY(!leftTheRound);
    QVERIFY(deletion.wait_for(patience) == std::future_status::ready);
    QCOMPARE(next.texts(), QStringList{"a"});
}

QTEST_GUILESS_MAIN(TestLoggerThreadEnd)
#include "test_logger_thread_end.moc"
