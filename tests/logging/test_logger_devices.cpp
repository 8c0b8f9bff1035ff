// To what the log is written: a file by its name, with or without the time of day, or an open stream; and
// what is no file at all.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace log_fixture;

class TestLoggerDevices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyEntryIsInTheFileAtOnce();
    void existingFileIsAppendedTo();
    void nameOfCharactersIsTheSame();
    void nullNameIsNoFile();
    void whatIsNoFileIsNotValid_data();
    void whatIsNoFileIsNotValid();
    void givenStreamIsFlushedAndStaysOpen();
    void givenStreamKeepsItsOwnersOrder();
    void givenStreamIsNeverRotated();
    void nullStreamIsNoStream();
    void uniqueNameHoldsTheTimeOfDay_data();
    void uniqueNameHoldsTheTimeOfDay();
    void sizesAreBytesOfKilobytes_data();
    void sizesAreBytesOfKilobytes();
    void settersAreGot();

private:
    QString path(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerDevices::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLoggerDevices::everyEntryIsInTheFileAtOnce()
{
    LoggerFile log(path("a.log"), LoggerModel::all, 0, 1, false);
    QByteArray expected;
    for (const QString& text : {QStringLiteral("a"), QStringLiteral("b"), QString(100000, 'c')}) {
        LoggerItem item = entry(text);
        log.mpLogEvent(item);
        expected += errorLine(text);
        QVERIFY(contentOf(path("a.log")) == expected);
    }
}

void TestLoggerDevices::existingFileIsAppendedTo()
{
    QVERIFY(put(path("a.log"), "no line's end"));
    LoggerFile log(path("a.log"), LoggerModel::all, 0, 1, false);
    QVERIFY(log.mfIsValid());
    QCOMPARE(contentOf(path("a.log")), QByteArray("no line's end"));
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    QCOMPARE(contentOf(path("a.log")), "no line's end" + errorLine("x"));
}

void TestLoggerDevices::nameOfCharactersIsTheSame()
{
    const QByteArray name = QFile::encodeName(path("a.log"));
    LoggerFile log(name.constData(), LoggerModel::warn, 3, 4, false);
    QCOMPARE(log.mfGetLogFileName(), path("a.log"));
    QCOMPARE(log.mfGetLogLevel(), LoggerModel::warn);
    QCOMPARE(log.mfGetFileSize(), qint64(3072));
    QCOMPARE(log.mfGetBackupFileCount(), 4U);
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    QCOMPARE(contentOf(path("a.log")), errorLine("x"));
    const LoggerFile unique(name.constData(), LoggerModel::warn, 3, 4, true);
    QVERIFY(unique.mfGetLogFileName() != path("a.log") && QFile::exists(unique.mfGetLogFileName()));
}

void TestLoggerDevices::nullNameIsNoFile()
{
    const Messages messages;
    LoggerFile log(static_cast<const char*>(nullptr), LoggerModel::all, 1, 1, false);
    QVERIFY(!log.mfIsValid());
    QCOMPARE(log.mfGetLogFileName(), QString());
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    log.mpRenewLogFile();
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerDevices::whatIsNoFileIsNotValid_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << "";
    QTest::newRow("null character in it") << QStringLiteral("FOLDER/a") + QChar(0) + ".log";
    QTest::newRow("folder") << "FOLDER";
    QTest::newRow("folder with a slash") << "FOLDER/";
    QTest::newRow("in a folder that is missing") << "FOLDER/missing/a.log";
    QTest::newRow("name too long") << "FOLDER/" + QString(300, 'n');
    QTest::newRow("path too long") << "FOLDER/" + QString("n/").repeated(3000) + "a.log";
}

void TestLoggerDevices::whatIsNoFileIsNotValid()
{
    QFETCH(QString, name);
    name.replace("FOLDER", folder->path());
    const QStringList before = namesIn(path({}));
    const Messages messages;
    LoggerFile log(name, LoggerModel::all, 1, 2, false);
    log.mpSetFileSize(1);
    QVERIFY(!log.mfIsValid());
    QCOMPARE(log.mfGetLogFileName(), name);
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    log.mpRenewLogFile();
    QVERIFY(!log.mfIsValid());
    QCOMPARE(namesIn(path({})), before);
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerDevices::givenStreamIsFlushedAndStaysOpen()
{
    FILE* stream = fopen(QFile::encodeName(path("s")).constData(), "w");
    QVERIFY(stream);
    {
        LoggerFile log(stream, LoggerModel::warn);
        QVERIFY(log.mfIsValid());
        QCOMPARE(log.mfGetLogFileName(), QString());
        QCOMPARE(log.mfGetLogLevel(), LoggerModel::warn);
        LoggerItem below = entry("below", LoggerModel::info), item = entry("x");
        log.mpLogEvent(below);
        log.mpLogEvent(item);
        QCOMPARE(contentOf(path("s")), errorLine("x"));
    }
    QVERIFY(fputs("the owner's", stream) >= 0);
    QCOMPARE(fclose(stream), 0);
    QCOMPARE(contentOf(path("s")), errorLine("x") + "the owner's");
}

void TestLoggerDevices::givenStreamKeepsItsOwnersOrder()
{
    FILE* stream = fopen(QFile::encodeName(path("s")).constData(), "w");
    QVERIFY(stream && fputs("begin\n", stream) >= 0);
    LoggerFile log(stream, LoggerModel::all);
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    fputs("between\n", stream);
    log.mpLogEvent(item);
    QCOMPARE(contentOf(path("s")), "begin\n" + errorLine("x") + "between\n" + errorLine("x"));
    fclose(stream);
}

void TestLoggerDevices::givenStreamIsNeverRotated()
{
    QVERIFY(QDir::setCurrent(path({}))); // where a rotation without a name would go
    FILE* stream = fopen("s.log", "w");
    QVERIFY(stream);
    LoggerFile log(stream, LoggerModel::all);
    log.mpSetFileSize(1);
    log.mpSetBackupFileCount(3);
    LoggerItem item = entry("x");
    for (int times = 0; times < 3; ++times) {
        log.mpLogEvent(item);
        log.mpRenewLogFile();
    }
    QCOMPARE(contentOf(path("s.log")), errorLine("x").repeated(3));
    QCOMPARE(namesIn(path({})), QStringList("s.log"));
    fclose(stream);
    QVERIFY(QDir::setCurrent(QDir::tempPath()));
}

void TestLoggerDevices::nullStreamIsNoStream()
{
    const Messages messages;
    LoggerFile log(static_cast<FILE*>(nullptr), LoggerModel::all);
    QVERIFY(!log.mfIsValid());
    LoggerItem item = entry("x");
    log.mpLogEvent(item);
    log.mpSetFileSize(1);
    log.mpRenewLogFile();
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerDevices::uniqueNameHoldsTheTimeOfDay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("with its ending") << "a.log"
                                     << "a%1.log";
    QTest::newRow("without") << "a"
                             << "a%1.log";
    QTest::newRow("ending in the middle") << "a.log.b"
                                          << "a.log.b%1.log";
    QTest::newRow("ending twice") << "a.log.log"
                                  << "a.log%1.log";
    QTest::newRow("another ending") << "a.txt"
                                    << "a.txt%1.log";
    QTest::newRow("nothing but the ending") << ".log"
                                            << "%1.log";
    QTest::newRow("folder with a dot") << "v1.2/a"
                                       << "v1.2/a%1.log";
    QTest::newRow("folder with that ending") << "b.log/a"
                                             << "b.log/a%1.log";
}

void TestLoggerDevices::uniqueNameHoldsTheTimeOfDay()
{
    QFETCH(QString, name);
    QFETCH(QString, pattern);
    QVERIFY(QDir(path({})).mkpath("v1.2") && QDir(path({})).mkpath("b.log"));
    const QTime before = QTime::currentTime();
    const LoggerFile log(path(name), LoggerModel::all, 1, 1, true);
    const QTime after = QTime::currentTime();
    QStringList possible; // the second may have changed meanwhile
    for (const QTime& time : {before, after})
        possible.append(path(pattern.arg(time.toString("hh_mm_ss"))));
    QVERIFY2(possible.contains(log.mfGetLogFileName()), qPrintable(log.mfGetLogFileName()));
    QVERIFY(QFile::exists(log.mfGetLogFileName()) && !QFileInfo(path(name)).isFile());
}

void TestLoggerDevices::sizesAreBytesOfKilobytes_data()
{
    QTest::addColumn<unsigned>("kilobytes");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("0") << 0U << qint64(0);
    QTest::newRow("1") << 1U << qint64(1024);
    QTest::newRow("512") << 512U << qint64(524288);
    QTest::newRow("2 GiB") << 2097152U << qint64(2147483648);
    QTest::newRow("4 GiB") << 4194304U << qint64(4294967296);
    QTest::newRow("most") << 4294967295U << qint64(4398046510080);
}

void TestLoggerDevices::sizesAreBytesOfKilobytes()
{
    QFETCH(unsigned, kilobytes);
    QFETCH(qint64, bytes);
    const LoggerFile log(path("a.log"), LoggerModel::all, kilobytes, 1, false);
    QCOMPARE(log.mfGetFileSize(), bytes);
}

void TestLoggerDevices::settersAreGot()
{
    LoggerFile log(path("a.log"), LoggerModel::all, 1, 2, false);
    QCOMPARE(log.mfGetBackupFileCount(), 2U);
    for (const unsigned value : {0U, 1U, 100U, 4294967295U}) {
        log.mpSetFileSize(value);
        log.mpSetBackupFileCount(value);
        QCOMPARE(log.mfGetFileSize(), qint64(value)); // bytes
        QCOMPARE(log.mfGetBackupFileCount(), value);
    }
}

QTEST_GUILESS_MAIN(TestLoggerDevices)
#include "test_logger_devices.moc"
