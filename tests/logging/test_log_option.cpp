// The program itself with --log and without: whether a file comes into being, and what is told if none can.

#include "ProgramLog.h"

#include <QDir>
#include <QtTest>

#include <memory>

namespace {

constexpr int badUsage = 2;

} // namespace

class TestLogOption : public QObject
{
    Q_OBJECT

private slots:
    void init() { run = std::make_unique<ProgramLog>(); }
    void withoutItNoFileComesIntoBeing();
    void runThatOnlyPrintsMakesNoFile_data();
    void runThatOnlyPrintsMakesNoFile();
    void badLevelIsOneLineAndNoFile_data();
    void badLevelIsOneLineAndNoFile();
    void folderThatCannotBeWrittenIsToldInOneLine_data();
    void folderThatCannotBeWrittenIsToldInOneLine();

private:
    std::unique_ptr<ProgramLog> run;
};

void TestLogOption::withoutItNoFileComesIntoBeing()
{
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(run->headless({"--debug", "--session", run->path("s.svdb"), "qv_simple_logging"})));
    QVERIFY(program.waitForError(ProgramLog::debugLine, 20000));
    QCOMPARE(program.stop(), 0);
    QVERIFY(!run->contentOf("s.svdb").isEmpty());
    QVERIFY(!QFileInfo::exists(run->data()));
    QVERIFY(!program.errors().contains(ProgramLog::folderLine));
}

void TestLogOption::runThatOnlyPrintsMakesNoFile_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option : {"--help", "--version", "--list-ports"})
        QTest::addRow("%s", option) << QString::fromLatin1(option);
}

void TestLogOption::runThatOnlyPrintsMakesNoFile()
{
    QFETCH(QString, option);
    ProgramUnderTest without(QStringLiteral(SORVANE_PROGRAM));
    const int status = without.run({option}); // the ports of a machine without a service cannot be listed
    QVERIFY(status >= 0);
    for (const char* log : {"--log", "--log=all"}) {
        ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
        QCOMPARE(program.run({log, option}), status);
        QCOMPARE(program.output(), without.output());
        QVERIFY(!QFileInfo::exists(run->data()));
    }
}

void TestLogOption::badLevelIsOneLineAndNoFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown word") << QStringList{"--log=loud"};
    QTest::newRow("none") << QStringList{"--log="};
    QTest::newRow("apart") << QStringList{"--log", "debug"};
    QTest::newRow("twice") << QStringList{"--log", "--log=debug"};
    QTest::newRow("line break") << QStringList{"--log=a\nsorvane: b"};
}

void TestLogOption::badLevelIsOneLineAndNoFile()
{
    QFETCH(QStringList, arguments);
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QCOMPARE(program.run(run->headless(arguments)), badUsage);
    QCOMPARE(program.errors().count('\n'), 1);
    QVERIFY2(program.errors().startsWith("sorvane: "), qPrintable(program.errors()));
    QVERIFY(!QFileInfo::exists(run->data()));
}

void TestLogOption::folderThatCannotBeWrittenIsToldInOneLine_data()
{
    QTest::addColumn<QString>("obstacle"); // a file where a folder has to be
    QTest::newRow("no folder of data") << "data";
    QTest::newRow("no folder of the maker") << "data/Sorvane";
    QTest::newRow("no folder of the program") << "data/Sorvane/Sorvane";
}

void TestLogOption::folderThatCannotBeWrittenIsToldInOneLine()
{
    QFETCH(QString, obstacle);
    QVERIFY(QDir().mkpath(QFileInfo(run->path(obstacle)).path()));
    QVERIFY(run->put(obstacle, "x"));
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(run->headless({"--log", "--session", run->path("s.svdb")})));
    QVERIFY(program.waitForError("no log file", 20000));
    QCOMPARE(program.stop(), 0);
    const QStringList told = ProgramLog::ofTheRun(program.ownErrorLines());
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().startsWith("sorvane.logging: ") &&
                 told.first().contains(run->data() + "/Sorvane/Sorvane/"),
             qPrintable(told.first()));
    QVERIFY(run->contentOf("s.svdb").endsWith("}\n")); // it ran all the same
    QCOMPARE(run->contentOf(obstacle), QByteArray("x"));
}

QTEST_GUILESS_MAIN(TestLogOption)
#include "test_log_option.moc"
