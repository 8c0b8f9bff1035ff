// When a file is begun anew: beyond its size only, at an entry that is written only.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace log_fixture;

class TestLoggerLimit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sizeAtTheLimitStays_data();
    void sizeAtTheLimitStays();
    void kilobytesOfTheConstructorAreTheLimit();
    void sizeOfZeroNeverRotates();
    void firstLineAfterARotationGoesToAnEmptyFile();
    void limitsLineTellsWholeKilobytes_data();
    void limitsLineTellsWholeKilobytes();
    void entryThatIsNotWrittenRotatesNothing_data();
    void entryThatIsNotWrittenRotatesNothing();
    void renewingByHandRotatesOnlyABigFile();

private:
    QString path(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerLimit::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLoggerLimit::sizeAtTheLimitStays_data()
{
    QTest::addColumn<int>("beyond");
    QTest::addColumn<bool>("isRotated");
    QTest::newRow("one byte less") << -1 << false;
    QTest::newRow("exactly") << 0 << false;
    QTest::newRow("one byte more") << 1 << true;
}

void TestLoggerLimit::sizeAtTheLimitStays()
{
    QFETCH(int, beyond);
    QFETCH(bool, isRotated);
    const QByteArray first = errorLine("first");
    const auto log = openedLog(path("a.log"), unsigned(first.size() - beyond), 2);
    write(*log, "first");
    QCOMPARE(namesIn(path({})), QStringList("a.log")); // the size counts before an entry, not behind it
    write(*log, "next");
    QCOMPARE(QFile::exists(path("a_1.log")), isRotated);
    QCOMPARE(contentOf(path("a.log")), (isRotated ? QByteArray() : first) + errorLine("next"));
}

void TestLoggerLimit::kilobytesOfTheConstructorAreTheLimit()
{
    LoggerFile log(path("a.log"), LoggerModel::error, 2, 1, false);
    const QString fill(2048 - errorLine({}).size(), 'x');
    write(log, fill);
    write(log, "a");
    QCOMPARE(contentOf(path("a.log")), errorLine(fill) + errorLine("a"));
    write(log, "b");
    QCOMPARE(contentOf(path("a.log")), errorLine("b"));
    QVERIFY(contentOf(path("a_1.log")).endsWith("\nMaximum file size reached (2 kB).\n"));
}

void TestLoggerLimit::sizeOfZeroNeverRotates()
{
    QVERIFY(put(path("a.log"), QByteArray(3000000, 'x')));
    LoggerFile log(path("a.log"), LoggerModel::error, 0, 3, false);
    write(log, "a");
    log.mpRenewLogFile();
    write(log, "b");
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    QVERIFY(contentOf(path("a.log")) == QByteArray(3000000, 'x') + errorLine("a") + errorLine("b"));
}

void TestLoggerLimit::firstLineAfterARotationGoesToAnEmptyFile()
{
    const auto log = openedLog(path("a.log"), 1, 1);
    write(*log, "a");
    log->mpRenewLogFile();
    QVERIFY(QFile::exists(path("a.log")));
    QCOMPARE(contentOf(path("a.log")), QByteArray());
    QVERIFY(log->mfIsValid());
    write(*log, "b");
    QCOMPARE(contentOf(path("a.log")), errorLine("b"));
}

void TestLoggerLimit::limitsLineTellsWholeKilobytes_data()
{
    QTest::addColumn<unsigned>("bytes");
    QTest::addColumn<QByteArray>("kilobytes");
    QTest::newRow("100") << 100U << QByteArray("0");
    QTest::newRow("1023") << 1023U << QByteArray("0");
    QTest::newRow("1024") << 1024U << QByteArray("1");
    QTest::newRow("2047") << 2047U << QByteArray("1");
    QTest::newRow("no separators") << 2000U * 1024 << QByteArray("2000");
}

void TestLoggerLimit::limitsLineTellsWholeKilobytes()
{
    QFETCH(unsigned, bytes);
    QFETCH(QByteArray, kilobytes);
    const auto log = openedLog(path("a.log"), bytes, 1);
    const QString text(int(bytes), 'x');
    write(*log, text);
    log->mpRenewLogFile();
    const bool isSame = contentOf(path("a_1.log")) == errorLine(text) + QByteArray(48, '-') +
                                                          "\nMaximum file size reached (" + kilobytes +
                                                          " kB).\n";
    QVERIFY(isSame);
}

void TestLoggerLimit::entryThatIsNotWrittenRotatesNothing_data()
{
    QTest::addColumn<quint64>("id");
    QTest::addColumn<int>("level");
    QTest::newRow("below the level") << quint64(1) << int(LoggerModel::warn);
    QTest::newRow("filtered") << (1ULL << 63 | 1) << int(LoggerModel::fatal);
}

void TestLoggerLimit::entryThatIsNotWrittenRotatesNothing()
{
    QFETCH(quint64, id);
    QFETCH(int, level);
    QVERIFY(put(path("a.log"), "too long"));
    const auto log = openedLog(path("a.log"), 1, 2);
    log->mpSetFilter(id);
    LoggerItem item = entry("x", LoggerModel::LoggerModelLogLevel(level));
    item.id = id;
    log->mpLogEvent(item);
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    QCOMPARE(contentOf(path("a.log")), QByteArray("too long"));
}

void TestLoggerLimit::renewingByHandRotatesOnlyABigFile()
{
    const QByteArray line = errorLine("x");
    const auto log = openedLog(path("a.log"), unsigned(line.size()), 2);
    write(*log, "x");
    log->mpRenewLogFile();
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    QCOMPARE(contentOf(path("a.log")), line);
    log->mpSetFileSize(unsigned(line.size() - 1));
    log->mpRenewLogFile();
    log->mpRenewLogFile(); // the file is empty now
    QCOMPARE(namesIn(path({})), QStringList({"a.log", "a_1.log"}));
    QCOMPARE(contentOf(path("a.log")), QByteArray());
    QVERIFY(contentOf(path("a_1.log")).startsWith(line));
}

QTEST_GUILESS_MAIN(TestLoggerLimit)
#include "test_logger_limit.moc"
