// What stands in the log of the program itself at which level, and what of it on standard error too; also
// of a program that is killed.

#include "ProgramLog.h"

#include <QDate>
#include <QDir>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

constexpr int badUsage = 2, notWritten = 1;

} // namespace

class TestLogContent : public QObject
{
    Q_OBJECT

private slots:
    void init() { run = std::make_unique<ProgramLog>(); }
    void refusedFileIsInTheLogAsItWasTold();
    void sessionThatCannotBeWrittenIsInTheLog();
    void everyLevelBringsItsKindsOnly_data();
    void everyLevelBringsItsKindsOnly();
    void infoBeginsWithTheThreeLinesOfTheStart();
    void debugLinesAreToldToo();
    void debugOptionLeavesTheLogAsItIs();
    void simpleLinesHaveNoTimeAndNumber();
    void whatWasToldIsInTheFileOfAKilledProgram();

private:
    std::unique_ptr<ProgramLog> run;
};

void TestLogContent::refusedFileIsInTheLogAsItWasTold()
{
    QVERIFY(run->put("bad.svdb", "{"));
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(program.run(run->headless({"--log", "--session", run->path("bad.svdb")})), badUsage);
    const QStringList told = program.ownErrorLines();
    QCOMPARE(told.size(), 1);
    QVERIFY(told.first().startsWith("sorvane: --session " + run->path("bad.svdb")));
    QCOMPARE(run->lines().size(), 1);
    const QRegularExpression line("^Error\tPID [1-9]\\d* : \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\t(.*)$");
    QCOMPARE("sorvane: " + line.match(run->lines().first()).captured(1), told.first());
}

void TestLogContent::sessionThatCannotBeWrittenIsInTheLog()
{
    QVERIFY(QDir().mkdir(run->path("place")));
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(run->headless({"--log", "--debug", "--session", run->path("place/s.svdb")})));
    QVERIFY(program.waitForError(ProgramLog::debugLine, 20000)); // the files have been looked at
    QVERIFY(QDir(run->path("place")).removeRecursively());
    QCOMPARE(program.stop(), notWritten);
    const QStringList logged = ProgramLog::ofTheRun(run->lines());
    QCOMPARE(logged.size(), 1);
    QVERIFY2(logged.first().startsWith("Error\t") &&
                 logged.first().contains("\t--session " + run->path("place/s.svdb") + ": "),
             qPrintable(logged.first()));
}

void TestLogContent::everyLevelBringsItsKindsOnly_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<bool>("start");
    QTest::addColumn<bool>("lines");
    QTest::newRow("all") << "all" << true << true;
    QTest::newRow("debug") << "debug" << true << true;
    QTest::newRow("diag") << "diag" << true << false;
    QTest::newRow("info") << "info" << true << false;
    QTest::newRow("warn") << "warn" << false << false;
    QTest::newRow("error") << "error" << false << false;
    QTest::newRow("fatal") << "fatal" << false << false;
}

void TestLogContent::everyLevelBringsItsKindsOnly()
{
    QFETCH(QString, level);
    QFETCH(bool, start);
    QFETCH(bool, lines);
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(run->runSession(program, {"--log=" + level}), 0);
    QVERIFY(!run->log().isNull());
    QCOMPARE(run->log().contains("Sorvane app started"), start);
    QCOMPARE(run->log().contains(ProgramLog::debugLine), lines);
    QCOMPARE(run->log().contains("Debug\t"), lines);
    QCOMPARE(program.errors().contains(ProgramLog::debugLine), lines);
    QCOMPARE(program.errors().contains("sorvane."), lines);
    if (level == "fatal")
        QCOMPARE(run->log(), QByteArray("")); // not even a missing service
    QVERIFY(!program.errors().contains("app started"));
}

void TestLogContent::infoBeginsWithTheThreeLinesOfTheStart()
{
    const QDate before = QDate::currentDate();
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(run->runSession(program, {"--log=info"}), 0);
    const QStringList logged = run->lines();
    QVERIFY(logged.size() >= 3);
    const QString dashes(86, '-');
    QVERIFY2(logged[0].startsWith("Info\tPID ") && logged[0].endsWith('\t' + dashes), qPrintable(logged[0]));
    const auto dayOf = [](const QDate& day) { return "Sorvane app started : " + day.toString("ddMMMMyyyy"); };
    QVERIFY2(logged[1] == dayOf(before) || logged[1] == dayOf(QDate::currentDate()), qPrintable(logged[1]));
    QCOMPARE(logged[2], dashes);
}

void TestLogContent::debugLinesAreToldToo()
{
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(run->runSession(program, {"--log=debug"}), 0);
    QStringList told = program.errors().split('\n').filter(QRegularExpression("^sorvane\\."));
    QVERIFY2(!told.isEmpty() && told.takeFirst().startsWith(ProgramLog::folderLine),
             qPrintable(program.errors()));
    QStringList logged;
    for (const QString& line : run->lines().filter(QRegularExpression("^Debug\t")))
        logged.append(line.section('\t', 2));
    QVERIFY(!logged.filter(ProgramLog::debugLine).isEmpty());
    QCOMPARE(logged.filter(QRegularExpression("^sorvane\\.")), told);
}

void TestLogContent::debugOptionLeavesTheLogAsItIs()
{
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(run->runSession(program, {"--log", "--debug"}), 0);
    QVERIFY(program.errors().contains(ProgramLog::debugLine));
    QCOMPARE(ProgramLog::ofTheRun(run->lines()).join('\n'), QString());
}

void TestLogContent::simpleLinesHaveNoTimeAndNumber()
{
    QVERIFY(run->put("bad.svdb", "{"));
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(program.run(run->headless({"--log", "qv_simple_logging", "--session", run->path("bad.svdb")})),
             badUsage);
    QCOMPARE(program.ownErrorLines().size(), 1);
    QCOMPARE(run->lines(), QStringList(program.ownErrorLines().first().replace("sorvane: ", "Error\t: ")));
}

// Standard error is told behind the log: what the program was seen to say is on the disk already.
void TestLogContent::whatWasToldIsInTheFileOfAKilledProgram()
{
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(run->headless({"--log=debug"})));
    QVERIFY(program.waitForError(ProgramLog::debugLine, 20000));
    QVERIFY(program.isRunning());
    QCOMPARE(kill(static_cast<pid_t>(program.pid()), SIGKILL), 0);
    QVERIFY(QTest::qWaitFor([&] { return !program.isRunning(); }, 20000));
    const QString ended = program.errors().section('\n', 0, -2);
    QStringList told = ended.split('\n').filter(QRegularExpression("^sorvane\\."));
    told.removeFirst(); // the folder's
    const QStringList logged = run->lines();
    QVERIFY(!told.isEmpty() && logged.size() > 3);
    for (const QString& line : qAsConst(told))
        QVERIFY2(!logged.filter(QRegularExpression('\t' + QRegularExpression::escape(line) + '$')).isEmpty(),
                 qPrintable(line));
    const QRegularExpression whole("^(Info|Debug|Warn|Error)\tPID \\d+ : [\\d:.]{12}\t.");
    for (const QString& line : logged.mid(3))
        QVERIFY2(whole.match(line).hasMatch(), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestLogContent)
#include "test_log_content.moc"
