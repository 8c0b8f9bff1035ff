// Eight threads log while others change everything that may be changed meanwhile. A deadlock ends in the
// time limit of the test; races and calls of deleted observers are for the sanitizers to see.

#include "Disturbances.h"
#include "LoggerProbe.h"
#include "TrafficObserver.h"
#include "logging/LoggerFile.h"
#include "the_model.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace traffic;

namespace {

constexpr int each = 25'000;     // entries of a logger
constexpr int eachOfFew = 5'000; // where all of them are kept

/// Puts the model into the mode where its own thread hands out, and starts that.
void startThread()
{
    model()->setObserverUpdateInterval(1);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setMode(LoggerModel::atOnce);
    QVERIFY(LoggerProbe::thread().isRunning());
}

/// Whether each that did not come is older than what the ring still holds of its logger, all of which came.
bool lostAreTheOldest(const TrafficObserver& observer)
{
    std::array<int, traffic::loggers> oldestKept;
    oldestKept.fill(INT_MAX);
    for (const QString& text : LoggerProbe::texts()) {
        int& oldest = oldestKept[std::size_t(traffic::loggerOf(text))];
        oldest = std::min(oldest, traffic::numberOf(text));
        if (!observer.hasGot(traffic::loggerOf(text), traffic::numberOf(text)))
            return false;
    }
    for (int logger = 0; logger < traffic::loggers; ++logger)
        for (int number = oldestKept[std::size_t(logger)]; number < each; ++number)
            if (!observer.hasGot(logger, number))
                return false;
    return true;
}

} // namespace

class TestLoggerThreads : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void atOnceEveryEntryComesOnceAndInOrder();
    void fromTheThreadEntriesComeOnceOrAreLostByTheRing();
    void changesOfModeHandNoEntryOutTwice();
    void ringThatHoldsAllLosesNone();
    void ringThatIsNotHandedOutLosesTheOldest();
    void observersAreDeletedAmidTheTraffic();
    void linesOfTheFileAreWhole();
};

void TestLoggerThreads::init()
{
    LoneObserver::callsBesideOthers = 0;
    broken = 0;
}

void TestLoggerThreads::cleanup()
{
    LoggerProbe::freshModel();
    QCOMPARE(int(LoneObserver::callsBesideOthers), 0);
    QCOMPARE(int(broken), 0);
}

void TestLoggerThreads::atOnceEveryEntryComesOnceAndInOrder()
{
    TrafficObserver permanent(each);
    LoneObserver other;
    model()->registerObserver(&permanent);
    model()->registerObserver(&other);
    logAmid(each, {comeAndGo, comeAndGo, fire, fireFor(other), changeLengthUpTo(64),
                   changeObserver(permanent), readModel, flushByMode});
    QCOMPARE(permanent.calls, each * traffic::loggers);
    QCOMPARE(permanent.missing(), 0);
    QCOMPARE(permanent.again, 0);
    QCOMPARE(permanent.outOfOrder, 0);
    QCOMPARE(permanent.torn, 0);
}

void TestLoggerThreads::fromTheThreadEntriesComeOnceOrAreLostByTheRing()
{
    TrafficObserver permanent(each);
    LoneObserver other;
    model()->registerObserver(&permanent);
    model()->registerObserver(&other);
    startThread();
    logAmid(each, {comeAndGo, comeAndGo, fire, fireFor(other), changeLengthUpTo(512), changeInterval,
                   changeObserver(permanent)});
    model()->fireLogEntries();
    QCOMPARE(permanent.calls + permanent.missing(), each * traffic::loggers);
    QVERIFY(lostAreTheOldest(permanent));
    QCOMPARE(permanent.again, 0);
    QCOMPARE(permanent.outOfOrder, 0);
    QCOMPARE(permanent.torn, 0);
}

void TestLoggerThreads::changesOfModeHandNoEntryOutTwice()
{
    TrafficObserver permanent(each);
    model()->registerObserver(&permanent);
    model()->setObserverUpdateInterval(1);
    logAmid(each, {comeAndGo, fire, flipMode, changeLengthUpTo(64)});
    model()->fireLogEntries();
    QCOMPARE(permanent.calls + permanent.missing(), each * traffic::loggers);
    QVERIFY(lostAreTheOldest(permanent));
    QCOMPARE(permanent.again, 0);
    QCOMPARE(permanent.torn, 0);
}

void TestLoggerThreads::ringThatHoldsAllLosesNone()
{
    TrafficObserver permanent(eachOfFew);
    model()->registerObserver(&permanent);
    model()->setQueueLength(eachOfFew * traffic::loggers);
    startThread();
    logAmid(eachOfFew, {comeAndGo, fire});
    model()->fireLogEntries();
    QCOMPARE(permanent.calls, eachOfFew * traffic::loggers);
    QCOMPARE(permanent.missing(), 0);
    QCOMPARE(permanent.outOfOrder, 0);
}

void TestLoggerThreads::ringThatIsNotHandedOutLosesTheOldest()
{
    constexpr int length = 100;
    TrafficObserver permanent(each);
    model()->registerObserver(&permanent);
    model()->setQueueLength(length);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logAmid(each, {comeAndGo});
    QCOMPARE(permanent.calls, 0);
    model()->fireLogEntries();
    QCOMPARE(permanent.calls, length);
    QCOMPARE(permanent.missing(), each * traffic::loggers - length);
    QVERIFY(lostAreTheOldest(permanent));
    QCOMPARE(permanent.torn, 0);
}

void TestLoggerThreads::observersAreDeletedAmidTheTraffic()
{
    LoneObserver unregistered;
    startThread();
    logAmid(eachOfFew, {comeToStay, comeToStay, takeAllOff, resetFired, fire, fireFor(unregistered),
                        changeLengthUpTo(16)});
    takeAllOff();
    QCOMPARE(LoggerProbe::observerCount(), 0);
}

void TestLoggerThreads::linesOfTheFileAreWhole()
{
    const QTemporaryDir folder;
    LoggerFile file(folder.filePath("traffic.log"), LoggerModel::all, 64, 2, false);
    model()->registerObserver(&file);
    logAmid(eachOfFew,
            {comeAndGo, fire, flushByMode, changeFile(file), readFile(file), changeObserver(file)});
    const QRegularExpression whole(
        "^([A-Z][a-z]+\t(PID \\d+ |\t): [0-9:.]{12}\t\\d+|-{48}|Maximum file size .* kB\\)\\.)$");
    int lines = 0;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
        QFile written(folder.filePath(name));
        QVERIFY(written.open(QIODevice::ReadOnly | QIODevice::Text));
        for (const QByteArray& line : written.readAll().split('\n'))
            if (!line.isEmpty() && ++lines)
                QVERIFY2(whole.match(QString::fromUtf8(line)).hasMatch(), line.constData());
    }
    QVERIFY(lines > 0);
}

QTEST_GUILESS_MAIN(TestLoggerThreads)
#include "test_logger_threads.moc"
