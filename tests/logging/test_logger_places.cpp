// Places where nothing can be written: entries are dropped, nobody is told, and what is there is whole.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace log_fixture;

class TestLoggerPlaces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void placeThatTakesNoFileIsSilent_data();
    void placeThatTakesNoFileIsSilent();
    void fileThatMayNotBeWrittenKeepsItsBackups();
    void folderThatMayNotBeWrittenTakesNoFile();
    void folderThatMayNotBeWrittenTakesNoBackups();
    void fileThatIsTakenAwayAtARotationEndsTheLog();

private:
    QString path(const QString& name) const { return folder->filePath(name); }
    QByteArray local(const QString& name) const { return QFile::encodeName(path(name)); }
    /// A log that would be rotated at each entry.
    std::unique_ptr<LoggerFile> openedSmall(const QString& name) const;
    /// Runs in another process, as a user without rights; its status.
    int asNobody(const std::function<int()>& run) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<Messages> messages;
};

void TestLoggerPlaces::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    messages = std::make_unique<Messages>();
}

void TestLoggerPlaces::cleanup()
{
    messages.reset();
    QCOMPARE(chmod(local({}).constData(), 0755), 0);
}

std::unique_ptr<LoggerFile> TestLoggerPlaces::openedSmall(const QString& name) const
{
    auto log = std::make_unique<LoggerFile>(path(name), LoggerModel::error, 0, 2, false);
    log->mpSetFileSize(1);
    return log;
}

int TestLoggerPlaces::asNobody(const std::function<int()>& run) const
{
    return inAnotherProcess([&] { return isRoot() && !becomeNobody() ? skipped : run(); });
}

void TestLoggerPlaces::placeThatTakesNoFileIsSilent_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("below a file") << "FOLDER/file/a.log";
    QTest::newRow("below a folder that is missing") << "FOLDER/missing/a.log";
    QTest::newRow("where the system makes the files") << "/proc/a.log";
    QTest::newRow("link to itself") << "FOLDER/round";
    QTest::newRow("link to where no file can be") << "FOLDER/astray";
}

void TestLoggerPlaces::placeThatTakesNoFileIsSilent()
{
    QFETCH(QString, name);
    QVERIFY(put(path("file"), "kept"));
    QVERIFY(QFile::link("round", path("round")) && QFile::link("missing/a.log", path("astray")));
    const QStringList before = namesIn(path({}));
    LoggerFile log(name.replace("FOLDER", folder->path()), LoggerModel::error, 0, 2, false);
    log.mpSetFileSize(1);
    QVERIFY(!log.mfIsValid());
    for (int times = 0; times < 10; ++times)
        write(log, "x");
    log.mpRenewLogFile();
    QVERIFY(!log.mfIsValid());
    QCOMPARE(namesIn(path({})), before);
    QCOMPARE(contentOf(path("file")), QByteArray("kept"));
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerPlaces::fileThatMayNotBeWrittenKeepsItsBackups()
{
    for (const char* name : {"a.log", "a_1.log", "a_2.log"})
        QVERIFY(put(path(name), name));
    QVERIFY(chmod(local("a.log").constData(), 0444) == 0 && chmod(local({}).constData(), 0777) == 0);
    const int status = asNobody([this] {
        const auto log = openedSmall("a.log");
        const bool isRefused = !log->mfIsValid();
        write(*log, "x");
        log->mpRenewLogFile();
        return firstBreach({isRefused, !log->mfIsValid(), Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path({})), QStringList({"a.log", "a_1.log", "a_2.log"}));
    for (const char* name : {"a.log", "a_1.log", "a_2.log"})
        QCOMPARE(contentOf(path(name)), QByteArray(name));
}

void TestLoggerPlaces::folderThatMayNotBeWrittenTakesNoFile()
{
    QCOMPARE(chmod(local({}).constData(), 0555), 0);
    const int status = asNobody([this] {
        const auto log = openedSmall("a.log");
        write(*log, "x");
        return firstBreach({!log->mfIsValid(), Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path({})), QStringList());
}

void TestLoggerPlaces::folderThatMayNotBeWrittenTakesNoBackups()
{
    for (const char* name : {"a.log", "a_1.log"})
        QVERIFY(put(path(name), name) && chmod(local(name).constData(), 0666) == 0);
    QCOMPARE(chmod(local({}).constData(), 0555), 0);
    const int status = asNobody([this] {
        const auto log = openedSmall("a.log");
        write(*log, "x");
        write(*log, "y");
        return firstBreach({log->mfIsValid(), Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path({})), QStringList({"a.log", "a_1.log"}));
    QCOMPARE(contentOf(path("a.log")), errorLine("y"));
    QCOMPARE(contentOf(path("a_1.log")), QByteArray("a_1.log"));
}

// It can be written to as long as it is open, and not opened again.
void TestLoggerPlaces::fileThatIsTakenAwayAtARotationEndsTheLog()
{
    QVERIFY(put(path("a.log"), "old\n") && chmod(local("a.log").constData(), 0666) == 0);
    QCOMPARE(chmod(local({}).constData(), 0777), 0);
    const int status = inAnotherProcess([this] {
        const auto log = openedSmall("a.log");
        if (chmod(local("a.log").constData(), 0444) != 0 || (isRoot() && !becomeNobody()))
            return skipped;
        const bool wasValid = log->mfIsValid();
        for (int times = 0; times < 3; ++times)
            write(*log, "x");
        return firstBreach({wasValid, !log->mfIsValid(), Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path({})), QStringList({"a.log", "a_1.log"})); // rotated once
    QVERIFY(contentOf(path("a_1.log")).startsWith("old\n----"));
    QCOMPARE(contentOf(path("a.log")), contentOf(path("a_1.log")));
}

QTEST_GUILESS_MAIN(TestLoggerPlaces)
#include "test_logger_places.moc"
