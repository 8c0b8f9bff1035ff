// Who is told of an entry: the observers in their order, at once, and those taken off no more.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "the_model.h"

#include <QtTest>

#include <future>
#include <memory>

namespace {

/// Writes its name down when it is called, and when it dies.
struct NamedObserver : LoggerObserver
{
    NamedObserver(QString ownName, QStringList& calls, QStringList& deaths)
        : LoggerObserver(LoggerModel::all), name(std::move(ownName)), called(calls), died(deaths)
    {
    }
    ~NamedObserver() override { died.append(name); }
    void mpLogEvent(LoggerItem&) override { called.append(name); }

    QString name;
    QStringList& called;
    QStringList& died;
};

/// Looks from another thread whether the model is locked meanwhile.
struct LockWatcher : LoggerObserver
{
    LockWatcher() : LoggerObserver(LoggerModel::all) {}
    void mpLogEvent(LoggerItem&) override
    {
        seen.append(std::async(std::launch::async, LoggerProbe::locksAreFree).get());
    }

    QVector<bool> seen;
};

} // namespace

class TestLoggerObserver : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void eachIsCalledInTheOrderOfRegistration();
    void eachIsCalledAtOnceOnTheLoggingThread();
    void entryIsWholeAndNotYetFiredWhenItComes();
    void entryOfAnyLevelComes();
    void entryIsFiredWithoutObserversToo();
    void nullIsSkipped();
    void registeredTwiceIsCalledOnce();
    void lateOneGetsLaterEntriesOnly();
    void locksAreHeldMeanwhile();

    void removedOneIsNotCalled();
    void removedOneIsNotDeleted();
    void allAreRemoved();
    void allAreRemovedAndDeleted();
    void strangerIsNotRemoved();
    void registeredAgainComesLast();

private:
    NamedObserver* add(const QString& name)
    {
        made.push_back(std::make_unique<NamedObserver>(name, called, died));
        model()->registerObserver(made.back().get());
        return made.back().get();
    }

    std::vector<std::unique_ptr<NamedObserver>> made;
    QStringList called, died;
};

void TestLoggerObserver::cleanup()
{
    LoggerProbe::freshModel();
    made.clear();
    called.clear();
    died.clear();
}

void TestLoggerObserver::eachIsCalledInTheOrderOfRegistration()
{
    add("c");
    add("b");
    add("a");
    logTexts({"text"});
    QCOMPARE(called, QStringList({"c", "b", "a"}));
    logTexts({"text"});
    QCOMPARE(called.mid(3), called.mid(0, 3));
}

void TestLoggerObserver::eachIsCalledAtOnceOnTheLoggingThread()
{
    RecordingObserver first, second;
    model()->registerObserver(&first);
    model()->registerObserver(&second);
    const auto logOne = [&](const QString& text) {
        logTexts({text});
        QCOMPARE(first.texts().last(), text); // already, when log() returns
        QCOMPARE(second.texts().last(), text);
        QVERIFY(first.thread() == std::this_thread::get_id());
        QVERIFY(second.thread() == std::this_thread::get_id());
    };
    logOne("here");
    std::thread(logOne, "there").join();
}

void TestLoggerObserver::entryIsWholeAndNotYetFiredWhenItComes()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    model()->log(LoggerModel::diag, "text", 12);
    const LoggerItem told = observer.entries().constFirst();
    const LoggerItem kept = LoggerProbe::items().constFirst();
    QCOMPARE(told.level, LoggerModel::diag);
    QCOMPARE(told.text, QString("text"));
    QCOMPARE(told.id, 12ULL);
    QVERIFY(told.time.isValid());
    QCOMPARE(told.time, kept.time);
    QVERIFY(!told.fired);
    QVERIFY(kept.fired);
}

void TestLoggerObserver::entryOfAnyLevelComes()
{
    RecordingObserver observer(LoggerModel::fatal); // the threshold is the observer's own affair
    observer.mpSetFilter(1ULL << 63 | 1);
    model()->registerObserver(&observer);
    model()->log(LoggerModel::all, "low", 1ULL << 63 | 1);
    model()->log("none", 1ULL << 63 | 1);
    QCOMPARE(observer.texts(), QStringList({"low", "none"}));
}

void TestLoggerObserver::entryIsFiredWithoutObserversToo()
{
    logTexts({"a"});
    QCOMPARE(LoggerProbe::fired(), QString("f"));
    LoggerProbe::setMode(LoggerModel::fromThread);
    logTexts({"b"});
    QCOMPARE(LoggerProbe::fired(), QString("f-"));
    model()->fireLogEntries();
    QCOMPARE(LoggerProbe::fired(), QString("ff"));
}

void TestLoggerObserver::nullIsSkipped()
{
    add("a");
    model()->registerObserver(nullptr);
    add("b");
    logTexts({"text"});
    QCOMPARE(called, QStringList({"a", "b"}));
    model()->resetFired();
    model()->fireLogEntries();
    QCOMPARE(called, QStringList({"a", "b", "a", "b"}));
    model()->removeObserver(nullptr, false);
    QCOMPARE(LoggerProbe::observerCount(), 0);
}

void TestLoggerObserver::registeredTwiceIsCalledOnce()
{
    NamedObserver* first = add("first");
    add("second");
    model()->registerObserver(first);
    logTexts({"text"});
    QCOMPARE(called, QStringList({"first", "second"}));
    model()->removeObserver(first, false);
    logTexts({"text"});
    QCOMPARE(called, QStringList({"first", "second", "second"}));
}

void TestLoggerObserver::lateOneGetsLaterEntriesOnly()
{
    logTexts({"early"});
    RecordingObserver observer;
    model()->registerObserver(&observer);
    model()->fireLogEntries();
    QCOMPARE(observer.texts(), QStringList());
    logTexts({"late"});
    QCOMPARE(observer.texts(), QStringList{"late"});
}

void TestLoggerObserver::locksAreHeldMeanwhile()
{
    LockWatcher watcher;
    model()->registerObserver(&watcher);
    QVERIFY(LoggerProbe::locksAreFree());
    logTexts({"a"});
    model()->resetFired();
    model()->fireLogEntries();
    model()->fireLogEntries(&watcher);
    QCOMPARE(watcher.seen, QVector<bool>({false, false, false}));
}

void TestLoggerObserver::removedOneIsNotCalled()
{
    add("a");
    NamedObserver* middle = add("b");
    add("c");
    model()->removeObserver(middle, false);
    logTexts({"text"});
    QCOMPARE(called, QStringList({"a", "c"}));
}

void TestLoggerObserver::removedOneIsNotDeleted()
{
    model()->removeObserver(add("a"), true);
    QCOMPARE(LoggerProbe::observerCount(), 0);
    QCOMPARE(died, QStringList());
}

void TestLoggerObserver::allAreRemoved()
{
    add("a");
    add("b");
    model()->removeObserver(nullptr, false);
    logTexts({"text"});
    QCOMPARE(called, QStringList());
    QCOMPARE(died, QStringList());
    QCOMPARE(LoggerProbe::observerCount(), 0);
}

void TestLoggerObserver::allAreRemovedAndDeleted()
{
    model()->registerObserver(new NamedObserver("a", called, died));
    model()->registerObserver(nullptr);
    model()->registerObserver(new NamedObserver("b", called, died));
    model()->removeObserver(nullptr, true);
    died.sort();
    QCOMPARE(died, QStringList({"a", "b"}));
    QCOMPARE(LoggerProbe::observerCount(), 0);
    logTexts({"text"});
    QCOMPARE(called, QStringList());
}

void TestLoggerObserver::strangerIsNotRemoved()
{
    add("a");
    RecordingObserver stranger;
    model()->removeObserver(&stranger, true);
    logTexts({"text"});
    QCOMPARE(called, QStringList{"a"});
}

void TestLoggerObserver::registeredAgainComesLast()
{
    NamedObserver* first = add("a");
    add("b");
    model()->removeObserver(first, false);
    model()->registerObserver(first);
    logTexts({"text"});
    QCOMPARE(called, QStringList({"b", "a"}));
}

QTEST_GUILESS_MAIN(TestLoggerObserver)
#include "test_logger_observer.moc"
