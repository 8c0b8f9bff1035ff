// The lines of the log byte by byte, and which entries get one.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace log_fixture;

namespace {

using Level = LoggerModel::LoggerModelLogLevel;

} // namespace

class TestLoggerLines : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyLevelHasItsWord_data();
    void everyLevelHasItsWord();
    void numberIsTheLow32BitsOfItsKindOnly_data();
    void numberIsTheLow32BitsOfItsKindOnly();
    void timeIsPadded_data();
    void timeIsPadded();
    void textIsWrittenAsItIsInUtf8_data();
    void textIsWrittenAsItIsInUtf8();
    void halfACharacterCostsNoMoreThanItself_data();
    void halfACharacterCostsNoMoreThanItself();
    void thresholdExcludesWhatIsBelow_data();
    void thresholdExcludesWhatIsBelow();
    void filterExcludesEntriesWithoutNumber_data();
    void filterExcludesEntriesWithoutNumber();

private:
    QString path(const QString& name) const { return folder->filePath(name); }
    /// What is in a new file after these entries.
    QByteArray written(const QList<LoggerItem>& items, Level threshold = LoggerModel::all) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerLines::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QByteArray TestLoggerLines::written(const QList<LoggerItem>& items, Level threshold) const
{
    const QString name = path("written.log");
    QFile::remove(name);
    LoggerFile log(name, threshold, 0, 1, false);
    for (LoggerItem item : items)
        log.mpLogEvent(item);
    return contentOf(name);
}

void TestLoggerLines::everyLevelHasItsWord_data()
{
    QTest::addColumn<int>("level");
    for (const int level : levels)
        QTest::addRow("level %d", level) << level;
}

void TestLoggerLines::everyLevelHasItsWord()
{
    QFETCH(int, level);
    const QByteArray rest = "\t\t: 14:03:59.007\tthe text\n";
    QCOMPARE(written({entry("the text", Level(level))}), wordOf(level) + rest);
}

void TestLoggerLines::numberIsTheLow32BitsOfItsKindOnly_data()
{
    QTest::addColumn<quint64>("id");
    QTest::addColumn<QByteArray>("number");
    QTest::newRow("no kind") << quint64(1) << QByteArray("\t: ");
    QTest::newRow("no kind, all low bits") << quint64(0x0fffffffffffffff) << QByteArray("\t: ");
    QTest::newRow("first filter without mask") << quint64(0x8000000000000001) << QByteArray("\t: ");
    QTest::newRow("second filter without mask") << quint64(0x1000000000000001) << QByteArray("\t: ");
    QTest::newRow("bit 62 alone") << quint64(0x4000000000000001) << QByteArray("\t: ");
    QTest::newRow("number") << quint64(0x2000000000000001) << QByteArray("PID 1 : ");
    QTest::newRow("no separators") << quint64(0x2000000000000000 + 1234567) << QByteArray("PID 1234567 : ");
    QTest::newRow("all 32 bits") << quint64(0x20000000ffffffff) << QByteArray("PID 4294967295 : ");
    QTest::newRow("more than 32 bits") << quint64(0x2fffffff00000007) << QByteArray("PID 7 : ");
    QTest::newRow("number 0 is none") << quint64(0x2000000000000000) << QByteArray("\t: ");
    QTest::newRow("bits above 32 alone") << quint64(0x2000000100000000) << QByteArray("\t: ");
    QTest::newRow("all kinds") << quint64(0xf000000000000009) << QByteArray("PID 9 : ");
}

void TestLoggerLines::numberIsTheLow32BitsOfItsKindOnly()
{
    QFETCH(quint64, id);
    QFETCH(QByteArray, number);
    LoggerItem item = entry("x");
    item.id = id;
    QCOMPARE(written({item}), "Error\t" + number + "14:03:59.007\tx\n");
}

void TestLoggerLines::timeIsPadded_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("midnight") << QTime(0, 0) << QByteArray("00:00:00.000");
    QTest::newRow("single digits") << QTime(1, 2, 3, 4) << QByteArray("01:02:03.004");
    QTest::newRow("two digits of milliseconds") << QTime(9, 8, 7, 60) << QByteArray("09:08:07.060");
    QTest::newRow("afternoon") << QTime(13, 0, 0, 100) << QByteArray("13:00:00.100");
    QTest::newRow("last of the day") << QTime(23, 59, 59, 999) << QByteArray("23:59:59.999");
    QTest::newRow("none") << QTime() << QByteArray();
}

void TestLoggerLines::timeIsPadded()
{
    QFETCH(QTime, time);
    QFETCH(QByteArray, shown);
    LoggerItem item = entry("x");
    item.time = time;
    QCOMPARE(written({item}), "Error\t\t: " + shown + "\tx\n");
}

void TestLoggerLines::textIsWrittenAsItIsInUtf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("every kind") << everyKindOfText;
    QTest::newRow("only line breaks") << QStringLiteral("\n\n");
    QTest::newRow("carriage return") << QStringLiteral("a\r\nb\r");
    QTest::newRow("null character") << QString(QChar(0)) + "behind";
    QTest::newRow("place marks") << QStringLiteral("%1 %s %n");
    QTest::newRow("byte order mark") << QString(QChar(QChar::ByteOrderMark)) + "behind";
    QTest::newRow("very long") << QString(3000000, QChar(0x20ac));
    for (const int length : {16350, 16383, 16384, 16385}) // about the buffers' sizes
        QTest::addRow("%d pianos", length) << QStringLiteral("\U0001F3B9").repeated(length);
}

void TestLoggerLines::textIsWrittenAsItIsInUtf8()
{
    QFETCH(QString, text);
    const bool isSame = written({entry(text), entry("next")}) == errorLine(text) + errorLine("next");
    QVERIFY(isSame); // not QCOMPARE, which would show megabytes
}

void TestLoggerLines::halfACharacterCostsNoMoreThanItself_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("alone") << 0;
    QTest::newRow("behind a text") << 10;
    QTest::newRow("behind a text longer than the buffers") << 20000;
}

void TestLoggerLines::halfACharacterCostsNoMoreThanItself()
{
    QFETCH(int, length);
    const QString whole(length, 'x');
    const QByteArray content = written({entry(whole + QChar(0xd83c)), entry("next")});
    QVERIFY(content.startsWith(errorLine(whole).chopped(1)));
    QVERIFY(content.endsWith('\n' + errorLine("next")));
    QVERIFY(content.size() <= errorLine(whole).size() + errorLine("next").size() + 3);
}

void TestLoggerLines::thresholdExcludesWhatIsBelow_data()
{
    QTest::addColumn<int>("threshold");
    for (const int threshold : levels)
        QTest::addRow("threshold %d", threshold) << threshold;
}

void TestLoggerLines::thresholdExcludesWhatIsBelow()
{
    QFETCH(int, threshold);
    QByteArray expected;
    QList<LoggerItem> items;
    for (const int level : levels) {
        items.append(entry("x", Level(level)));
        if (level == -1 || level >= threshold)
            expected += wordOf(level) + "\t\t: 14:03:59.007\tx\n";
    }
    QCOMPARE(written(items, Level(threshold)), expected);
}

void TestLoggerLines::filterExcludesEntriesWithoutNumber_data()
{
    QTest::addColumn<quint64>("filter");
    QTest::addColumn<quint64>("id");
    QTest::addColumn<bool>("isWritten");
    for (const quint64 kind : {1ULL << 63, 1ULL << 60}) {
        const quint64 other = kind ^ 0x9000000000000000, number = 0x2000000000000000;
        const auto row = [kind](const char* name) -> QTestData& {
            return QTest::addRow("%s, bit %d", name, kind >> 63 ? 63 : 60);
        };
        row("same bits") << kind + 6 << kind + 6 << false;
        row("one bit shared") << kind + 6 << kind + 12 << false;
        row("no bit shared") << kind + 6 << kind + 9 << true;
        row("bits of the other kind") << kind + 6 << other + 6 << true;
        row("no kind") << kind + 6 << quint64(6) << true;
        row("with a number") << kind + 6 << (kind | number) + 6 << true;
        row("with the number 0") << (kind | (1ULL << 40)) << (kind | number | (1ULL << 40)) << false;
    }
}

void TestLoggerLines::filterExcludesEntriesWithoutNumber()
{
    QFETCH(quint64, filter);
    QFETCH(quint64, id);
    QFETCH(bool, isWritten);
    LoggerFile log(path("a.log"), LoggerModel::all, 0, 1, false);
    log.mpSetFilter(filter);
    LoggerItem item = entry("x");
    item.id = id;
    log.mpLogEvent(item);
    QCOMPARE(!contentOf(path("a.log")).isEmpty(), isWritten);
    log.mpUnsetFilter(filter);
    item.text = "y";
    log.mpLogEvent(item);
    QVERIFY(contentOf(path("a.log")).endsWith("\ty\n"));
}

QTEST_GUILESS_MAIN(TestLoggerLines)
#include "test_logger_lines.moc"
