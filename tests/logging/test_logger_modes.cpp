// Who hands entries out: the thread that logs, or a thread of the model's own; and how one is changed for the
// other.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "the_model.h"

#include <QtTest>

using namespace std::chrono_literals;

namespace {

constexpr auto briefly = 100ms;        // for what must not
constexpr unsigned anHour = 3'600'000; // milliseconds

bool wasStarted()
{
    return LoggerProbe::thread().isRunning() || LoggerProbe::thread().isFinished();
}

} // namespace

class TestLoggerModes : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LoggerProbe::freshModel(); }

    void modeIsAtOnceFromTheStart();
    void modeIsChanged_data();
    void modeIsChanged();
    void fromThreadIsNotReachedFromTheStart();

    void intervalIsASecondFromTheStart();
    void intervalIsTheThreads();
    void threadRunsUntilItIsStopped();

    void threadHandsOutByItself();
    void threadGoesOnHandingOut();
    void threadWaitsItsIntervalBetweenRounds();
};

void TestLoggerModes::modeIsAtOnceFromTheStart()
{
    QCOMPARE(int(model()->getMode()), 1);
    QVERIFY(!wasStarted());
}

void TestLoggerModes::modeIsChanged_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("started");
    QTest::addColumn<bool>("stopped");
    QTest::addColumn<bool>("handedOutAtOnce");
    QTest::newRow("at once, same") << 1 << 1 << 1 << false << false << false;
    QTest::newRow("at once to thread") << 1 << 0 << 1 << false << true << true;
    QTest::newRow("at once to unknown") << 1 << 2 << 1 << false << true << true;
    QTest::newRow("thread, same") << 0 << 0 << 0 << false << false << false;
    QTest::newRow("thread to at once") << 0 << 1 << 0 << true << false << false;
    QTest::newRow("thread to unknown") << 0 << -1 << 0 << true << false << false;
}

void TestLoggerModes::modeIsChanged()
{
    QFETCH(int, current);
    QFETCH(int, wanted);
    QFETCH(bool, handedOutAtOnce);
    QFETCH(bool, started);
    RecordingObserver observer;
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"a", "b"});
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::LoggerModelMode(current));

    model()->setMode(LoggerModel::LoggerModelMode(wanted));
    QTEST(int(model()->getMode()), "mode");
    QCOMPARE(wasStarted(), started);
    QTEST(!LoggerProbe::thread().running, "stopped");
    if (!started) {
        QCOMPARE(observer.texts(), handedOutAtOnce ? QStringList({"a", "b"}) : QStringList());
        QCOMPARE(LoggerProbe::fired(), handedOutAtOnce ? QString("ff") : QString("--"));
    } else {
        QVERIFY(observer.waitFor(2));
        QVERIFY(observer.thread() != std::this_thread::get_id());
    }
}

void TestLoggerModes::fromThreadIsNotReachedFromTheStart()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    model()->setMode(LoggerModel::fromThread);
    QCOMPARE(model()->getMode(), LoggerModel::atOnce);
    logTexts({"a"});
    QCOMPARE(observer.texts(), QStringList{"a"});
    QVERIFY(!wasStarted());
}

void TestLoggerModes::intervalIsASecondFromTheStart()
{
    QCOMPARE(model()->getObserverUpdateInterval(), 1000U);
    QCOMPARE(unsigned(LoggerProbe::thread().interval), 1000U);
}

void TestLoggerModes::intervalIsTheThreads()
{
    model()->setObserverUpdateInterval(7);
    QCOMPARE(model()->getObserverUpdateInterval(), 7U);
    QCOMPARE(unsigned(LoggerProbe::thread().interval), 7U);
    LoggerProbe::thread().interval = 8;
    QCOMPARE(model()->getObserverUpdateInterval(), 8U);
}

void TestLoggerModes::threadRunsUntilItIsStopped()
{
    QVERIFY(LoggerProbe::thread().running);
    LoggerProbe::thread().stopThread();
    QVERIFY(!LoggerProbe::thread().running);
}

void TestLoggerModes::threadHandsOutByItself()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(1);
    model()->setMode(LoggerModel::atOnce);
    logTexts({"a", "b", "c"});
    QVERIFY(observer.waitFor(3));
    QCOMPARE(observer.texts(), QStringList({"a", "b", "c"}));
    QVERIFY(observer.thread() != std::this_thread::get_id());
}

void TestLoggerModes::threadGoesOnHandingOut()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(1);
    model()->setMode(LoggerModel::atOnce);
    for (int round = 1; round <= 20; ++round) {
        logTexts({QString::number(round)});
        QVERIFY(observer.waitFor(round));
    }
    QCOMPARE(observer.entries().size(), 20);
}

void TestLoggerModes::threadWaitsItsIntervalBetweenRounds()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setObserverUpdateInterval(anHour);
    logTexts({"first round"});
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(observer.waitFor(1));
    QVERIFY(LoggerProbe::items().constFirst().fired); // the round is over
    logTexts({"second round"});
    QVERIFY(!observer.waitFor(2, briefly));
}

QTEST_GUILESS_MAIN(TestLoggerModes)
#include "test_logger_modes.moc"
