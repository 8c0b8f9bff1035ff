// The words of the levels, and what an observer says of an entry's id and level.

#include "RecordingObserver.h"

#include <QtTest>

#include <cstring>
#include <type_traits>

using Ids = QVector<unsigned long long>;

namespace {

constexpr unsigned long long bit63 = 1ULL << 63, bit62 = 1ULL << 62, bit61 = 1ULL << 61, bit60 = 1ULL << 60;
constexpr unsigned long long bit59 = 1ULL << 59;

/// Where in the table of virtual operations one stands; the ABI of this platform keeps one more than
/// its offset in the pointer to a member.
template <typename Operation>
std::size_t placeInTable(Operation operation)
{
    std::size_t offset = 0;
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*);
}

} // namespace

class TestLoggerLevels : public QObject
{
    Q_OBJECT

private slots:
    void levelHasItsWord_data();
    void levelHasItsWord();
    void otherWordIsNoLevel_data();
    void otherWordIsNoLevel();
    void otherLevelHasNoWord_data();
    void otherLevelHasNoWord();

    void observerIsAnAbstractBase();
    void tableOfOperationsBeginsWithTheEvent();
    void thresholdIsKept();
    void filterMatches_data();
    void filterMatches();
    void numberIsRead_data();
    void numberIsRead();
    void testsAreCalledThroughTheBase();
};

void TestLoggerLevels::levelHasItsWord_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("word");
    QTest::newRow("0") << 0 << "all";
    QTest::newRow("1") << 1 << "debug";
    QTest::newRow("2") << 2 << "diag";
    QTest::newRow("3") << 3 << "info";
    QTest::newRow("4") << 4 << "warn";
    QTest::newRow("5") << 5 << "error";
    QTest::newRow("6") << 6 << "fatal";
}

void TestLoggerLevels::levelHasItsWord()
{
    QFETCH(int, level);
    QFETCH(QString, word);
    QCOMPARE(LoggerModel::logLevelToString(LoggerModel::LoggerModelLogLevel(level)), word);
    QCOMPARE(int(LoggerModel::logLevelFromString(word)), level);
}

void TestLoggerLevels::otherWordIsNoLevel_data()
{
    QTest::addColumn<QString>("word");
    for (const char* word :
         {"", "ALL", "Debug", "info ", " info", "inf", "infos", "warning", "0", "\xc3\xa4"})
        QTest::newRow(*word ? word : "empty") << QString::fromUtf8(word);
    QTest::newRow("null") << QString();
}

void TestLoggerLevels::otherWordIsNoLevel()
{
    QFETCH(QString, word);
    QCOMPARE(int(LoggerModel::logLevelFromString(word)), -1);
}

void TestLoggerLevels::otherLevelHasNoWord_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {-1, 7, -2, INT_MAX, INT_MIN})
        QTest::newRow(qPrintable(QString::number(level))) << level;
}

void TestLoggerLevels::otherLevelHasNoWord()
{
    QFETCH(int, level);
    QCOMPARE(LoggerModel::logLevelToString(LoggerModel::LoggerModelLogLevel(level)), QString());
}

void TestLoggerLevels::observerIsAnAbstractBase()
{
    QVERIFY(std::is_abstract_v<LoggerObserver>);
    QVERIFY(std::has_virtual_destructor_v<LoggerObserver>);
}

void TestLoggerLevels::tableOfOperationsBeginsWithTheEvent()
{
    QCOMPARE(placeInTable(&LoggerObserver::mpLogEvent), std::size_t(0));
}

void TestLoggerLevels::thresholdIsKept()
{
    RecordingObserver observer(LoggerModel::warn);
    QCOMPARE(observer.mfGetLogLevel(), LoggerModel::warn);
    observer.mpSetLogLevel(LoggerModel::fatal);
    QCOMPARE(observer.mfGetLogLevel(), LoggerModel::fatal);
}

void TestLoggerLevels::filterMatches_data()
{
    QTest::addColumn<Ids>("set");
    QTest::addColumn<Ids>("unset");
    QTest::addColumn<unsigned long long>("asked");
    QTest::addColumn<bool>("matches");

    QTest::newRow("nothing set, first") << Ids{} << Ids{} << (bit63 | 1) << false;
    QTest::newRow("nothing set, second") << Ids{} << Ids{} << (bit60 | 1) << false;
    QTest::newRow("first") << Ids{bit63 | 1} << Ids{} << (bit63 | 1) << true;
    QTest::newRow("second") << Ids{bit60 | 1} << Ids{} << (bit60 | 1) << true;
    QTest::newRow("first is not second") << Ids{bit63 | 1} << Ids{} << (bit60 | 1) << false;
    QTest::newRow("second is not first") << Ids{bit60 | 1} << Ids{} << (bit63 | 1) << false;
    QTest::newRow("other bit of the first") << Ids{bit63 | 1} << Ids{} << (bit63 | 2) << false;
    QTest::newRow("other bit of the second") << Ids{bit60 | 1} << Ids{} << (bit60 | 2) << false;
    QTest::newRow("one bit of two set") << Ids{bit63 | 3} << Ids{} << (bit63 | 2) << true;
    QTest::newRow("one bit of two asked") << Ids{bit60 | 2} << Ids{} << (bit60 | 3) << true;
    QTest::newRow("set adds, first") << Ids{bit63 | 1, bit63 | 4} << Ids{} << (bit63 | 1) << true;
    QTest::newRow("set adds, second") << Ids{bit60 | 1, bit60 | 4} << Ids{} << (bit60 | 1) << true;
    QTest::newRow("highest bit of the value") << Ids{bit63 | bit59} << Ids{} << (bit63 | bit59) << true;
    QTest::newRow("both kinds set") << Ids{bit63 | 1, bit60 | 2} << Ids{} << (bit60 | 2) << true;

    QTest::newRow("no kind asked") << Ids{bit63 | 1, bit60 | 1} << Ids{} << 1ULL << false;
    QTest::newRow("bit 62 is no kind") << Ids{bit63 | 1, bit60 | 1} << Ids{} << (bit62 | 1) << false;
    QTest::newRow("a number is no filter") << Ids{bit63 | 1, bit60 | 1} << Ids{} << (bit61 | 1) << false;
    QTest::newRow("no kind set") << Ids{1, bit61 | 1, bit62 | 1} << Ids{} << (bit63 | 1) << false;
    QTest::newRow("no kind set, second") << Ids{1, bit61 | 1, bit62 | 1} << Ids{} << (bit60 | 1) << false;
    QTest::newRow("a kind without a value") << Ids{bit63 | 1, bit60 | 1} << Ids{} << bit63 << false;
    QTest::newRow("bits above the value, set")
        << Ids{bit63 | bit61 | bit62} << Ids{} << (bit63 | bit61 | bit62 | 1) << false;
    QTest::newRow("bits above the value, second")
        << Ids{bit60 | bit61 | bit62} << Ids{} << (bit60 | bit61 | bit62 | 1) << false;
    QTest::newRow("a number's bit beside the kind") << Ids{bit63 | 1} << Ids{} << (bit63 | bit61 | 1) << true;
    QTest::newRow("both bits set the first") << Ids{bit63 | bit60 | 1} << Ids{} << (bit63 | 1) << true;
    QTest::newRow("both bits do not set the second")
        << Ids{bit63 | bit60 | 1} << Ids{} << (bit60 | 1) << false;
    QTest::newRow("both bits ask the first") << Ids{bit63 | 1} << Ids{} << (bit63 | bit60 | 1) << true;
    QTest::newRow("both bits do not ask the second")
        << Ids{bit60 | 1} << Ids{} << (bit63 | bit60 | 1) << false;

    QTest::newRow("unset, first") << Ids{bit63 | 1} << Ids{bit63 | 1} << (bit63 | 1) << false;
    QTest::newRow("unset, second") << Ids{bit60 | 1} << Ids{bit60 | 1} << (bit60 | 1) << false;
    QTest::newRow("unset leaves other bits") << Ids{bit63 | 3} << Ids{bit63 | 1} << (bit63 | 2) << true;
    QTest::newRow("unset leaves other bits, second")
        << Ids{bit60 | 3} << Ids{bit60 | 1} << (bit60 | 2) << true;
    QTest::newRow("unset of several") << Ids{bit63 | 7} << Ids{bit63 | 3} << (bit63 | 3) << false;
    QTest::newRow("unset of what is not set") << Ids{bit63 | 1} << Ids{bit63 | 2} << (bit63 | 1) << true;
    QTest::newRow("unset does not toggle") << Ids{} << Ids{bit63 | 1} << (bit63 | 1) << false;
    QTest::newRow("unset does not toggle, second") << Ids{} << Ids{bit60 | 1} << (bit60 | 1) << false;
    QTest::newRow("unset of the other kind") << Ids{bit63 | 1} << Ids{bit60 | 1} << (bit63 | 1) << true;
    QTest::newRow("unset of the first only") << Ids{bit60 | 1} << Ids{bit63 | 1} << (bit60 | 1) << true;
    QTest::newRow("unset of both is of the first")
        << Ids{bit60 | 1} << Ids{bit63 | bit60 | 1} << (bit60 | 1) << true;
    QTest::newRow("unset of no kind") << Ids{bit63 | 1} << Ids{1, bit61 | 1} << (bit63 | 1) << true;
    QTest::newRow("unset of no kind, second") << Ids{bit60 | 1} << Ids{1, bit61 | 1} << (bit60 | 1) << true;
    QTest::newRow("unset of a kind without a value") << Ids{bit63 | 1} << Ids{bit63} << (bit63 | 1) << true;
}

void TestLoggerLevels::filterMatches()
{
    QFETCH(Ids, set);
    QFETCH(Ids, unset);
    QFETCH(unsigned long long, asked);
    RecordingObserver observer;
    for (const unsigned long long id : qAsConst(set))
        observer.mpSetFilter(id);
    for (const unsigned long long id : qAsConst(unset))
        observer.mpUnsetFilter(id);
    QTEST(observer.mfMatchFilter(asked), "matches");
}

void TestLoggerLevels::numberIsRead_data()
{
    QTest::addColumn<unsigned long long>("id");
    QTest::addColumn<unsigned>("number");
    QTest::newRow("nothing") << 0ULL << 0U;
    QTest::newRow("a value alone") << 12ULL << 0U;
    QTest::newRow("number") << (bit61 | 12) << 12U;
    QTest::newRow("number of zero") << bit61 << 0U;
    QTest::newRow("greatest") << (bit61 | 0xffffffffULL) << 0xffffffffU;
    QTest::newRow("low 32 bits only") << (bit61 | 0xabc00000012ULL) << 0x12U;
    QTest::newRow("first filter") << (bit63 | 12) << 0U;
    QTest::newRow("second filter") << (bit60 | 12) << 0U;
    QTest::newRow("bit 62") << (bit62 | 12) << 0U;
    QTest::newRow("all kinds") << (bit63 | bit62 | bit61 | bit60 | 12) << 12U;
}

void TestLoggerLevels::numberIsRead()
{
    QFETCH(unsigned long long, id);
    QTEST(RecordingObserver().mfMatchPID(id), "number");
}

void TestLoggerLevels::testsAreCalledThroughTheBase()
{
    struct Stubborn : RecordingObserver
    {
        bool mfMatchFilter(unsigned long long) const override { return true; }
        unsigned mfMatchPID(unsigned long long) const override { return 99; }
    };
    const Stubborn observer;
    const LoggerObserver& base = observer;
    QVERIFY(base.mfMatchFilter(0));
    QCOMPARE(base.mfMatchPID(0), 99U);
}

QTEST_APPLESS_MAIN(TestLoggerLevels)
#include "test_logger_levels.moc"
