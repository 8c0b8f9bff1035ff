// How the program's log ends: with its observer, or with the process.

#include "LogFixture.h"

#include "logging/LoggerObserver.h"
#include "logging/log_file.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace log_fixture;

namespace {

const char* const onlyLog = "log";
constexpr unsigned long long ofNoKind = 1; // an id that leaves no number in the line

LoggerModel& model()
{
    return *LoggerModel::getInstance();
}

} // namespace

class TestLogFileEnd : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fileIsHeldUntilItIsTakenOff();
    void modelsEndLeavesTheFileWhole();
    void endOfAProcessIsClean();

private:
    QString logFolder() const { return folder->path() + "/Sorvane"; }
    /// The one file that is there, or "".
    QString logPath() const;
    /// The files of the log that this process holds open.
    QStringList openFiles() const;

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLogFileEnd::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder->path()));
    QCoreApplication::setApplicationName("Sorvane");
}

void TestLogFileEnd::cleanup()
{
    model().removeObserver(nullptr, true);
}

QString TestLogFileEnd::logPath() const
{
    const QStringList names = namesIn(logFolder());
    return names.size() == 1 ? logFolder() + '/' + names.constFirst() : QString();
}

QStringList TestLogFileEnd::openFiles() const
{
    QStringList found;
    for (const QFileInfo& open : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System))
        if (open.symLinkTarget().startsWith(folder->path()))
            found.append(open.symLinkTarget());
    return found;
}

void TestLogFileEnd::fileIsHeldUntilItIsTakenOff()
{
    initializeLogFile();
    QCOMPARE(openFiles(), QStringList(logPath()));
    model().log(LoggerModel::error, "before", ofNoKind);
    QCOMPARE(openFiles(), QStringList(logPath()));
    model().removeObserver(nullptr, true);
    QCOMPARE(openFiles(), QStringList());
    const QByteArray content = contentOf(logPath());
    QVERIFY(content.endsWith("\tbefore\n"));
    model().log(LoggerModel::error, "after", ofNoKind);
    QCOMPARE(contentOf(logPath()), content);
}

void TestLogFileEnd::modelsEndLeavesTheFileWhole()
{
    initializeLogFile();
    model().log(LoggerModel::error, "before", ofNoKind);
    const QByteArray content = contentOf(logPath());
    const int status = inAnotherProcess([] {
        LoggerModel::deleteInstance();
        model().log(LoggerModel::error, "to a model of its own", ofNoKind);
        return 0;
    });
    QCOMPARE(status, 0);
    QVERIFY(content.endsWith("\tbefore\n"));
    QCOMPARE(contentOf(logPath()), content);
}

// Leaks are told at the end of a process that looks for them.
void TestLogFileEnd::endOfAProcessIsClean()
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {onlyLog});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY2(program.exitCode() == 0, program.readAllStandardError().constData());
    QVERIFY2(contentOf(logPath()).endsWith("\tthe end\n"), contentOf(logPath()).constData());
}

namespace {

/// What a program with a log does, from its start to its end.
int logOnly()
{
    QCoreApplication::setApplicationName("Sorvane");
    initializeLogFile();
    model().log(LoggerModel::error, "the end", ofNoKind);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], onlyLog) == 0)
        return logOnly();
    TestLogFileEnd test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_log_file_end.moc"
