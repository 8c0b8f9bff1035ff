// What a round hands out, to whom, and what it leaves; and that an observer that does what it must not do,
// which is to log or to begin a round, does not hang.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "logging/LoggerStream.h"
#include "the_model.h"

#include <QtTest>

namespace {

/// Writes its name down when it is called.
struct NamedObserver : LoggerObserver
{
    NamedObserver(QString ownName, QStringList& calls)
        : LoggerObserver(LoggerModel::all), name(std::move(ownName)), called(calls)
    {
    }
    void mpLogEvent(LoggerItem&) override { called.append(name); }

    QString name;
    QStringList& called;
};

/// Does what observers must not do.
struct TalkingObserver : RecordingObserver
{
    void mpLogEvent(LoggerItem& item) override
    {
        RecordingObserver::mpLogEvent(item);
        model()->log(LoggerModel::error, "of the observer", 1);
        model()->log("of the observer, without a level", 1);
        model()->log(LoggerModel::error, 1) << "of the observer's stream";
        model()->fireLogEntries();
        model()->fireLogEntries(this);
    }
};

} // namespace

class TestLoggerRounds : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LoggerProbe::freshModel(); }

    void fireHandsOutWhatIsNotFired();
    void fireCallsAllForAnEntryBeforeTheNext();
    void fireForOneHandsOutAllAndLeavesThem();
    void fireForNullDoesNothing();
    void resetMakesAllComeAgain();

    void observerThatLogsDoesNotHang();
    void observerThatLogsInARoundDoesNotHang();
};

void TestLoggerRounds::fireHandsOutWhatIsNotFired()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    logTexts({"fired"});
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"b", "c"});
    QCOMPARE(observer.texts(), QStringList{"fired"});
    QCOMPARE(LoggerProbe::fired(), QString("f--"));
    model()->fireLogEntries();
    QCOMPARE(observer.texts(), QStringList({"fired", "b", "c"}));
    QCOMPARE(LoggerProbe::fired(), QString("fff"));
    model()->fireLogEntries();
    QCOMPARE(observer.texts().size(), 3);
    QCOMPARE(LoggerProbe::texts(), QStringList({"fired", "b", "c"})); // they stay in the ring
}

void TestLoggerRounds::fireCallsAllForAnEntryBeforeTheNext()
{
    QStringList called;
    NamedObserver first("a", called), second("b", called);
    model()->registerObserver(&first);
    model()->registerObserver(&second);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"first", "second"});
    model()->fireLogEntries();
    QCOMPARE(called, QStringList({"a", "b", "a", "b"}));
}

void TestLoggerRounds::fireForOneHandsOutAllAndLeavesThem()
{
    RecordingObserver other, observer; // who asks need not be registered
    model()->registerObserver(&other);
    logTexts({"fired"});
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"b", "c"});
    model()->fireLogEntries(&observer);
    QCOMPARE(observer.texts(), QStringList({"fired", "b", "c"}));
    QCOMPARE(LoggerProbe::fired(), QString("f--"));
    QCOMPARE(other.texts(), QStringList{"fired"});
    model()->fireLogEntries(&observer);
    QCOMPARE(observer.texts().size(), 6);
}

void TestLoggerRounds::fireForNullDoesNothing()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"text"});
    model()->fireLogEntries(nullptr);
    QCOMPARE(observer.texts(), QStringList());
    QCOMPARE(LoggerProbe::fired(), QString("-"));
}

void TestLoggerRounds::resetMakesAllComeAgain()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    logTexts({"a", "b"});
    model()->resetFired();
    QCOMPARE(LoggerProbe::fired(), QString("--"));
    QCOMPARE(observer.texts().size(), 2);
    model()->fireLogEntries();
    QCOMPARE(observer.texts(), QStringList({"a", "b", "a", "b"}));
    QCOMPARE(LoggerProbe::fired(), QString("ff"));
}

void TestLoggerRounds::observerThatLogsDoesNotHang()
{
    TalkingObserver observer;
    model()->registerObserver(&observer);
    logTexts({"a", "b"});
    QCOMPARE(observer.texts(), QStringList({"a", "b"}));
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b"}));
    QCOMPARE(LoggerProbe::fired(), QString("ff"));
}

void TestLoggerRounds::observerThatLogsInARoundDoesNotHang()
{
    TalkingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"a", "b"});
    model()->fireLogEntries();
    model()->fireLogEntries(&observer);
    QCOMPARE(observer.texts(), QStringList({"a", "b", "a", "b"}));
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b"}));
    model()->removeObserver(&observer, false);
    logTexts({"c"}); // the calling thread may log again
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b", "c"}));
}

QTEST_GUILESS_MAIN(TestLoggerRounds)
#include "test_logger_rounds.moc"
