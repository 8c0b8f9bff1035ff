// At its limit the ring reuses its entries: a steady stream of messages takes nothing from the heap.

#include "AllocationCount.h"
#include "LoggerProbe.h"
#include "logging/LoggerObserver.h"
#include "the_model.h"

#include <QtTest>

#include <ctime>
#include <memory>

namespace {

constexpr unsigned length = 100;
constexpr int many = 100'000;

const QString text = QStringLiteral("a text that all entries share");

void log(int times)
{
    for (int time = 0; time < times; ++time)
        model()->log(LoggerModel::info, text, 0);
}

struct Counter : LoggerObserver
{
    Counter() : LoggerObserver(LoggerModel::all) {}
    void mpLogEvent(LoggerItem&) override { ++told; }

    int told = 0;
};

} // namespace

class TestLoggerAllocations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { model()->setQueueLength(length); }
    void cleanup() { LoggerProbe::freshModel(); }

    void heapIsOverheard();
    void entriesAreMadeUpToTheLimitOnly();
    void steadyStreamAllocatesNothing_data();
    void steadyStreamAllocatesNothing();
    void roundAllocatesNothing();
};

/// With a zone given, the C library does not read the machine's anew whenever it is asked for the time.
void TestLoggerAllocations::initTestCase()
{
    qputenv("TZ", "UTC0");
    tzset();
}

void TestLoggerAllocations::heapIsOverheard()
{
    const AllocationCount count;
    QCOMPARE(count.all(), 0);
    const auto item = std::make_unique<LoggerItem>();
    QCOMPARE(count.all(), 1);
    QCOMPARE(count.ofSize(sizeof *item), 1);
    QByteArray ofQt(1000, 'x');
    QCOMPARE(count.all(), 2);
    ofQt.resize(100'000);
    QCOMPARE(count.all(), 3);
}

void TestLoggerAllocations::entriesAreMadeUpToTheLimitOnly()
{
    const AllocationCount count;
    log(int(length));
    const int upToTheLimit = count.ofSize(sizeof(LoggerItem));
    log(1);
    const int firstAtTheLimit = count.ofSize(sizeof(LoggerItem)) - upToTheLimit;
    log(many);
    const int later = count.ofSize(sizeof(LoggerItem)) - upToTheLimit - firstAtTheLimit;
    QVERIFY(upToTheLimit >= int(length)); // an array of the list's may happen to be as long
    QCOMPARE(firstAtTheLimit, 0);
    QCOMPARE(later, 0);
}

void TestLoggerAllocations::steadyStreamAllocatesNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("at once") << int(LoggerModel::atOnce);
    QTest::newRow("from the thread") << int(LoggerModel::fromThread);
}

void TestLoggerAllocations::steadyStreamAllocatesNothing()
{
    QFETCH(int, mode);
    Counter observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::LoggerModelMode(mode));
    log(10 * int(length)); // the list's own array grows until its entries have room to move on in it
    const int toldBefore = observer.told;
    const AllocationCount count;
    log(many);
    QCOMPARE(count.all(), 0);
    QCOMPARE(observer.told - toldBefore, mode == LoggerModel::atOnce ? many : 0);
}

void TestLoggerAllocations::roundAllocatesNothing()
{
    Counter observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    log(int(length));
    const AllocationCount count;
    model()->fireLogEntries();
    QCOMPARE(count.all(), 0);
    QCOMPARE(observer.told, int(length));
}

QTEST_GUILESS_MAIN(TestLoggerAllocations)
#include "test_logger_allocations.moc"
