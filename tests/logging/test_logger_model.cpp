// The ring of the log: how long it is, what an entry holds, and which entries are lost.

#include "LoggerProbe.h"
#include "RecordingObserver.h"
#include "the_model.h"

#include <QtTest>

#include <ctime>
#include <thread>

namespace {

constexpr unsigned defaultLength = 512;
constexpr unsigned long long anId = 7;

void logNumbers(int count)
{
    for (int number = 0; number < count; ++number)
        model()->log(LoggerModel::info, QString::number(number), anId);
}

/// Whether `time` lies between the two, of which the second may be of the next day.
bool isBetween(QTime time, QTime before, QTime after)
{
    return before <= after ? before <= time && time <= after : time >= before || time <= after;
}

} // namespace

class TestLoggerModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { LoggerProbe::freshModel(); }

    void instanceIsOne();
    void deletedInstanceIsMadeAnew();
    void deletionLeavesObserversToTheirMakers();

    void lengthIs512FromTheStart();
    void oneMoreThanTheLengthLosesTheOldest();
    void thirdEntryOfTwoIsLostUndelivered();
    void firedEntryIsLostAsWell();
    void fullRingReusesItsEntries();
    void reusedEntryHoldsNothingOfTheOldOne();
    void lengthOfZeroIsIgnored();
    void lengthOfOneKeepsTheLatest();
    void shorterLengthDropsTheOldestAtOnce();
    void longerLengthKeepsAllAndHasRoom();
    void longestLengthIsTaken();

    void entryHoldsWhatIsLogged();
    void entryWithoutLevel();
    void idIsKept_data();
    void idIsKept();
    void idOfZeroIsTheThreadsNumber();
    void timeIsTheLocalTimeOfDay();
    void timeGoesOnFromSecondToSecond();
};

/// A zone that no machine of ours stands in: universal time would not pass for local time.
void TestLoggerModel::initTestCase()
{
    qputenv("TZ", "XYZ-5:30");
    tzset();
}

void TestLoggerModel::instanceIsOne()
{
    LoggerModel* first = model();
    QVERIFY(first);
    LoggerModel* ofOtherThread = nullptr;
    std::thread([&] { ofOtherThread = model(); }).join();
    QCOMPARE(ofOtherThread, first);
    QCOMPARE(model(), first);
}

void TestLoggerModel::deletedInstanceIsMadeAnew()
{
    logTexts({"old"});
    model()->setQueueLength(3);
    LoggerModel::deleteInstance();
    LoggerModel::deleteInstance(); // of none does nothing
    QCOMPARE(LoggerProbe::texts(), QStringList());
    QCOMPARE(model()->getQueueLength(), defaultLength);
    QCOMPARE(model()->getMode(), LoggerModel::atOnce);
    logTexts({"new"});
    QCOMPARE(LoggerProbe::texts(), QStringList{"new"});
}

void TestLoggerModel::deletionLeavesObserversToTheirMakers()
{
    RecordingObserver observer; // deleted by the model, it would take the program along
    model()->registerObserver(&observer);
    logTexts({"old"});
    LoggerModel::deleteInstance();
    logTexts({"new"});
    QCOMPARE(observer.texts(), QStringList{"old"});
}

void TestLoggerModel::lengthIs512FromTheStart()
{
    QCOMPARE(model()->getQueueLength(), defaultLength);
    logNumbers(int(defaultLength));
    QCOMPARE(LoggerProbe::texts().first(), QString("0"));
    QCOMPARE(LoggerProbe::texts().size(), int(defaultLength));
}

void TestLoggerModel::oneMoreThanTheLengthLosesTheOldest()
{
    logNumbers(int(defaultLength) + 1);
    QCOMPARE(LoggerProbe::texts().size(), int(defaultLength));
    QCOMPARE(LoggerProbe::texts().first(), QString("1"));
    QCOMPARE(LoggerProbe::texts().last(), QString::number(defaultLength));
}

void TestLoggerModel::thirdEntryOfTwoIsLostUndelivered()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->setQueueLength(2);
    logTexts({"first", "second", "third"});
    QCOMPARE(LoggerProbe::texts(), QStringList({"second", "third"}));
    QCOMPARE(observer.texts(), QStringList());
    model()->fireLogEntries();
    QCOMPARE(observer.texts(), QStringList({"second", "third"}));
}

void TestLoggerModel::firedEntryIsLostAsWell()
{
    RecordingObserver observer;
    model()->registerObserver(&observer);
    model()->setQueueLength(2);
    logTexts({"first", "second", "third"});
    QCOMPARE(LoggerProbe::texts(), QStringList({"second", "third"}));
    QCOMPARE(observer.texts(), QStringList({"first", "second", "third"}));
}

void TestLoggerModel::fullRingReusesItsEntries()
{
    model()->setQueueLength(3);
    logTexts({"a", "b", "c"});
    const auto before = LoggerProbe::addresses();
    logTexts({"d"});
    const QVector<const LoggerItem*> turned = {before[1], before[2], before[0]};
    QCOMPARE(LoggerProbe::addresses(), turned);
}

void TestLoggerModel::reusedEntryHoldsNothingOfTheOldOne()
{
    model()->setQueueLength(1);
    model()->log(LoggerModel::fatal, "old", 1);
    QCOMPARE(LoggerProbe::fired(), QString("f"));
    LoggerProbe::setMode(LoggerModel::fromThread);
    model()->log(LoggerModel::debug, "new", 2);
    const LoggerItem item = LoggerProbe::items().constFirst();
    QCOMPARE(item.level, LoggerModel::debug);
    QCOMPARE(item.text, QString("new"));
    QCOMPARE(item.id, 2ULL);
    QVERIFY(!item.fired);
}

void TestLoggerModel::lengthOfZeroIsIgnored()
{
    model()->setQueueLength(3);
    logTexts({"a", "b", "c"});
    model()->setQueueLength(0);
    QCOMPARE(model()->getQueueLength(), 3U);
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b", "c"}));
}

void TestLoggerModel::lengthOfOneKeepsTheLatest()
{
    model()->setQueueLength(1);
    logTexts({"a", "b", "c"});
    QCOMPARE(LoggerProbe::texts(), QStringList{"c"});
}

void TestLoggerModel::shorterLengthDropsTheOldestAtOnce()
{
    logTexts({"a", "b", "c", "d", "e"});
    model()->setQueueLength(2);
    QCOMPARE(model()->getQueueLength(), 2U);
    QCOMPARE(LoggerProbe::texts(), QStringList({"d", "e"}));
}

void TestLoggerModel::longerLengthKeepsAllAndHasRoom()
{
    model()->setQueueLength(2);
    logTexts({"a", "b"});
    model()->setQueueLength(4);
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b"}));
    logTexts({"c", "d"});
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b", "c", "d"}));
}

void TestLoggerModel::longestLengthIsTaken()
{
    model()->setQueueLength(UINT_MAX);
    QCOMPARE(model()->getQueueLength(), UINT_MAX);
    logTexts({"a", "b"});
    QCOMPARE(LoggerProbe::texts(), QStringList({"a", "b"}));
}

void TestLoggerModel::entryHoldsWhatIsLogged()
{
    model()->log(LoggerModel::warn, QString::fromUtf8("Gerät ♪"), anId);
    const LoggerItem item = LoggerProbe::items().constFirst();
    QCOMPARE(item.level, LoggerModel::warn);
    QCOMPARE(item.text, QString::fromUtf8("Gerät ♪"));
    QCOMPARE(item.id, anId);
}

void TestLoggerModel::entryWithoutLevel()
{
    model()->log(QString("text"), anId);
    const LoggerItem item = LoggerProbe::items().constFirst();
    QCOMPARE(int(item.level), -1);
    QCOMPARE(item.text, QString("text"));
    QCOMPARE(item.id, anId);
}

void TestLoggerModel::idIsKept_data()
{
    QTest::addColumn<unsigned long long>("id");
    QTest::newRow("one") << 1ULL;
    QTest::newRow("first filter") << ((1ULL << 63) | 5);
    QTest::newRow("second filter") << ((1ULL << 60) | 5);
    QTest::newRow("number") << ((1ULL << 61) | 0xfffffffffULL);
    QTest::newRow("number of zero") << (1ULL << 61);
    QTest::newRow("all bits") << ~0ULL;
}

void TestLoggerModel::idIsKept()
{
    QFETCH(unsigned long long, id);
    model()->log(LoggerModel::info, "with a level", id);
    model()->log("without", id);
    QCOMPARE(LoggerProbe::items().at(0).id, id);
    QCOMPARE(LoggerProbe::items().at(1).id, id);
}

void TestLoggerModel::idOfZeroIsTheThreadsNumber()
{
    const auto logOne = [] { model()->log(LoggerModel::info, "text", 0); };
    logOne();
    logOne();
    std::thread(logOne).join();
    model()->log("without a level", 0);
    const QVector<LoggerItem> items = LoggerProbe::items();
    for (const LoggerItem& item : items)
        QCOMPARE(item.id >> 60, 2ULL); // bit 61, and no filter's
    const auto own = reinterpret_cast<quintptr>(QThread::currentThreadId());
    QCOMPARE(items[0].id & 0xffffffffULL, own & 0xffffffffULL);
    QCOMPARE(items[1].id, items[0].id);
    QVERIFY(items[2].id != items[0].id);
    QCOMPARE(items[3].id, items[0].id);
}

void TestLoggerModel::timeIsTheLocalTimeOfDay()
{
    const QTime before = QTime::currentTime();
    logTexts({"a"});
    const QTime after = QTime::currentTime();
    QVERIFY(isBetween(LoggerProbe::items().constFirst().time, before, after));
}

void TestLoggerModel::timeGoesOnFromSecondToSecond()
{
    const int firstSecond = QTime::currentTime().second();
    QTime before = QTime::currentTime();
    do {
        before = QTime::currentTime();
        logTexts({"a"});
        QVERIFY(isBetween(LoggerProbe::items().constLast().time, before, QTime::currentTime()));
    } while (before.second() == firstSecond);
}

QTEST_GUILESS_MAIN(TestLoggerModel)
#include "test_logger_model.moc"
