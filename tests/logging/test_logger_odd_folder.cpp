// A rotation among what others put into the folder, or do to the file: the log goes on, and waits for
// nothing.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

using namespace log_fixture;

class TestLoggerOddFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void backupThatCannotBeReplacedIsPassedOver_data();
    void backupThatCannotBeReplacedIsPassedOver();
    void linkInPlaceOfABackupGivesItsContent();
    void pipeInPlaceOfABackupIsNotWaitedFor();
    void countOfAllBackupsThereCanBeIsNotWaitedFor();
    void fileThatIsRemovedMeanwhileComesBack();
    void fileThatIsShortenedMeanwhileCountsAsItIs_data();
    void fileThatIsShortenedMeanwhileCountsAsItIs();
    void whatAnotherProgramAppendsStays_data();
    void whatAnotherProgramAppendsStays();
    void linkStaysAndItsFileIsBegunAnew();
    void processThatGoesElsewhereLeavesTheLogInItsFolder();

private:
    QString path(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLoggerOddFolder::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLoggerOddFolder::backupThatCannotBeReplacedIsPassedOver_data()
{
    QTest::addColumn<QString>("folderInPlace");
    for (const char* name : {"a_1.log", "a_2.log", "a_3.log"})
        QTest::newRow(name) << name;
}

void TestLoggerOddFolder::backupThatCannotBeReplacedIsPassedOver()
{
    QFETCH(QString, folderInPlace);
    QVERIFY(QDir(path({})).mkdir(folderInPlace) && put(path(folderInPlace + "/inside"), "kept"));
    const Messages messages;
    const auto log = openedLog(path("a.log"), 1, 3);
    for (int line = 1; line <= 5; ++line) {
        write(*log, QString::number(line));
        QCOMPARE(contentOf(path("a.log")), errorLine(QString::number(line)));
    }
    QCOMPARE(contentOf(path(folderInPlace + "/inside")), QByteArray("kept"));
    const QStringList possible = {"a_1.log", "a_2.log", "a_3.log"};
    for (int number = 1; number <= possible.size(); ++number) { // those below it count on
        const bool isBelow = number <= possible.indexOf(folderInPlace);
        QCOMPARE(contentOf(path(possible.at(number - 1))).startsWith(errorLine(QString::number(5 - number))),
                 isBelow);
    }
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerOddFolder::linkInPlaceOfABackupGivesItsContent()
{
    QVERIFY(put(path("else"), "kept") && QFile::link("else", path("a_1.log")));
    const auto log = openedLog(path("a.log"), 1, 3);
    write(*log, "x");
    write(*log, "y");
    QCOMPARE(contentOf(path("else")), QByteArray("kept"));
    QCOMPARE(contentOf(path("a_2.log")), QByteArray("kept"));
    QVERIFY(contentOf(path("a_1.log")).startsWith(errorLine("x")));
    QVERIFY(!QFileInfo(path("a_1.log")).isSymLink());
}

void TestLoggerOddFolder::pipeInPlaceOfABackupIsNotWaitedFor()
{
    QCOMPARE(mkfifo(QFile::encodeName(path("a_1.log")).constData(), 0600), 0);
    const int status = inAnotherProcess([this] {
        const auto log = openedLog(path("a.log"), 1, 3);
        for (const char* text : {"a", "b", "c", "d"})
            write(*log, text);
        return 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("a.log")), errorLine("d"));
    QVERIFY(contentOf(path("a_1.log")).startsWith(errorLine("c")));
}

void TestLoggerOddFolder::countOfAllBackupsThereCanBeIsNotWaitedFor()
{
    const int status = inAnotherProcess([this] {
        const auto log = openedLog(path("a.log"), 1, 4294967295U);
        for (const char* text : {"a", "b", "c"})
            write(*log, text);
        return 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path({})), QStringList({"a.log", "a_1.log", "a_2.log"}));
    QVERIFY(contentOf(path("a_2.log")).startsWith(errorLine("a")));
}

void TestLoggerOddFolder::fileThatIsRemovedMeanwhileComesBack()
{
    const Messages messages;
    const auto log = openedLog(path("a.log"), 60, 2);
    write(*log, "lost");
    QVERIFY(QFile::remove(path("a.log")));
    write(*log, QString(60, 'x')); // goes to the file that has no name any more
    QCOMPARE(namesIn(path({})), QStringList());
    write(*log, "back");
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    QCOMPARE(contentOf(path("a.log")), errorLine("back"));
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerOddFolder::fileThatIsShortenedMeanwhileCountsAsItIs_data()
{
    QTest::addColumn<bool>("isRotatedBefore");
    QTest::newRow("as it was opened first") << false;
    QTest::newRow("as it was begun anew") << true;
}

void TestLoggerOddFolder::fileThatIsShortenedMeanwhileCountsAsItIs()
{
    QFETCH(bool, isRotatedBefore);
    const auto log = openedLog(path("a.log"), 60, 2);
    if (isRotatedBefore)
        write(*log, QString(60, 'x'));
    write(*log, QString(60, 'y'));
    QVERIFY(QFile::resize(path("a.log"), 0));
    write(*log, "a");
    write(*log, "b");
    QCOMPARE(contentOf(path("a.log")), errorLine("a") + errorLine("b"));
    QCOMPARE(QFile::exists(path("a_1.log")), isRotatedBefore);
}

void TestLoggerOddFolder::whatAnotherProgramAppendsStays_data()
{
    fileThatIsShortenedMeanwhileCountsAsItIs_data();
}

void TestLoggerOddFolder::whatAnotherProgramAppendsStays()
{
    QFETCH(bool, isRotatedBefore);
    const auto log = openedLog(path("a.log"), 100, 2);
    if (isRotatedBefore)
        write(*log, QString(100, 'x'));
    write(*log, "a");
    QFile other(path("a.log"));
    QVERIFY(other.open(QIODevice::Append) && other.write("another's\n") > 0 && other.flush());
    write(*log, "b");
    QCOMPARE(contentOf(path("a.log")), errorLine("a") + "another's\n" + errorLine("b"));
}

void TestLoggerOddFolder::linkStaysAndItsFileIsBegunAnew()
{
    QVERIFY(QDir(path({})).mkdir("else") && put(path("else/file"), "too long\n"));
    QVERIFY(QFile::link("else/file", path("a.log")));
    const auto log = openedLog(path("a.log"), 1, 2);
    write(*log, "x");
    QVERIFY(QFileInfo(path("a.log")).isSymLink());
    QCOMPARE(contentOf(path("else/file")), errorLine("x"));
    QVERIFY(contentOf(path("a_1.log")).startsWith("too long\n-----"));
    QVERIFY(!QFileInfo(path("a_1.log")).isSymLink());
}

void TestLoggerOddFolder::processThatGoesElsewhereLeavesTheLogInItsFolder()
{
    QVERIFY(QDir(path({})).mkdir("logs") && QDir(path({})).mkdir("else"));
    const int status = inAnotherProcess([this] {
        const bool began = QDir::setCurrent(path("logs"));
        LoggerFile log("a.log", LoggerModel::error, 0, 2, false);
        log.mpSetFileSize(1);
        const bool left = QDir::setCurrent(path("else"));
        for (const char* text : {"a", "b", "c"})
            write(log, text);
        return firstBreach({began, left, log.mfGetLogFileName() == "a.log"});
    });
    QCOMPARE(status, 0);
    QCOMPARE(namesIn(path("else")), QStringList());
    QCOMPARE(namesIn(path("logs")), QStringList({"a.log", "a_1.log", "a_2.log"}));
    QCOMPARE(contentOf(path("logs/a.log")), errorLine("c"));
}

QTEST_GUILESS_MAIN(TestLoggerOddFolder)
#include "test_logger_odd_folder.moc"
