// The program itself, started on files that are no databases: one line, status 2, no port, and nothing
// overwritten; and started where it cannot write in the end.

#include "ProgramUnderTest.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

constexpr int badUsage = 2, notWritten = 1;

/// What the program writes about the MIDI service of this machine is none of the files' business.
bool isOfTheService(const QString& line)
{
    return !line.startsWith(QLatin1String("sorvane: --"));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestHostileStart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void fileThatIsNoDatabaseEndsTheStart_data();
    void fileThatIsNoDatabaseEndsTheStart();
    void pathThatIsNoFileEndsTheStart_data();
    void pathThatIsNoFileEndsTheStart();
    void secondFileThatIsBrokenEndsTheStartToo();
    void emptyNameIsRefused();
    void targetThatCannotBeWrittenEndsTheStart_data();
    void targetThatCannotBeWrittenEndsTheStart();
    void missingSessionIsBegunAndWritten();
    void folderThatGoesMeanwhileIsToldAtTheEnd();
    void fileThatCannotBeWrittenIsToldAtTheEnd();
    void sessionThatIsBrokenMeanwhileIsReplacedWhole();
    void nameWithLineBreaksIsOneLine();

private:
    QString path(const QString& name) const { return folder->filePath(name); }
    std::string local(const QString& name) const { return QFile::encodeName(path(name)).toStdString(); }
    void put(const QString& name, const QByteArray& text) const;
    /// One of the test's own, which reads as zeros without end: those of the machine must outlive a program
    /// that replaces them. Without the right to make one, a pipe.
    void makeDevice() const;
    static QStringList headless(const QStringList& more) { return QStringList("--headless") + more; }
    /// The lines of a run that say something of its files.
    static QStringList lines(ProgramUnderTest& program);
    void expectRefusal(const QStringList& arguments, const QString& named) const;
    /// Runs until the program is up.
    static bool isUp(ProgramUnderTest& program);

    std::unique_ptr<QTemporaryDir> folder;
};

void TestHostileStart::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestHostileStart::put(const QString& name, const QByteArray& text) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

void TestHostileStart::makeDevice() const
{
    const std::string name = local("device");
    QVERIFY(mknod(name.c_str(), S_IFCHR | 0600, makedev(1, 5)) == 0 || mkfifo(name.c_str(), 0600) == 0);
}

QStringList TestHostileStart::lines(ProgramUnderTest& program)
{
    QStringList all = program.ownErrorLines();
    all.erase(std::remove_if(all.begin(), all.end(), &isOfTheService), all.end());
    return all;
}

void TestHostileStart::expectRefusal(const QStringList& arguments, const QString& named) const
{
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(program.run(headless(arguments)), badUsage);
    QVERIFY2(timer.elapsed() < 15000, qPrintable(QString::number(timer.elapsed())));
    const QStringList own = program.ownErrorLines();
    QCOMPARE(own.size(), 1); // and none of the service: no port was looked for
    QVERIFY2(own.first().startsWith(QLatin1String("sorvane: --")), qPrintable(own.first()));
    QVERIFY2(own.first().contains(named), qPrintable(own.first()));
    QVERIFY2(!program.errors().contains(QLatin1String("MIDI")), qPrintable(program.errors()));
    QCOMPARE(program.output(), QString());
}

// It is up when it waits for what comes, and not for a turn of the processor.
bool TestHostileStart::isUp(ProgramUnderTest& program)
{
    const QString status = QStringLiteral("/proc/%1/stat").arg(program.pid());
    int asleep = 0;
    const auto waits = [&] {
        asleep = contentOf(status).contains(") S ") ? asleep + 1 : 0;
        return asleep >= 40;
    };
    return QTest::qWaitFor(waits, 20000);
}

void TestHostileStart::fileThatIsNoDatabaseEndsTheStart_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blanks") << QByteArray(100000, ' ');
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("words") << QByteArray("not a database\n");
    QTest::newRow("array") << QByteArray("[1, 2]");
    QTest::newRow("cut short") << QByteArray(R"({"PowerOnState": tr)");
    QTest::newRow("more behind it") << QByteArray("{}{}");
    QTest::newRow("nested too deep") << QByteArray(100000, '[');
    QTest::newRow("bad letters") << QByteArray("{\"a\":\"\xFF\"}");
    QTest::newRow("line breaks") << QByteArray("\n\n{\n\n\"\n");
}

void TestHostileStart::fileThatIsNoDatabaseEndsTheStart()
{
    QFETCH(QByteArray, text);
    for (const char* option : {"--import", "--session"}) {
        put("bad.svdb", text);
        expectRefusal({option, path("bad.svdb"), "--export", path("out.svdb")}, "bad.svdb");
        QCOMPARE(contentOf(path("bad.svdb")), text);
        QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList("bad.svdb"));
    }
}

void TestHostileStart::pathThatIsNoFileEndsTheStart_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"folder", "pipe", "dangling", "loop", "missing", "sparse", "device"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TestHostileStart::pathThatIsNoFileEndsTheStart()
{
    QFETCH(QString, name);
    QVERIFY(QDir(folder->path()).mkdir("folder"));
    QCOMPARE(mkfifo(local("pipe").c_str(), 0600), 0);
    makeDevice();
    QCOMPARE(symlink("nowhere", local("dangling").c_str()), 0);
    QCOMPARE(symlink("loop", local("loop").c_str()), 0);
    put("sparse", {});
    QCOMPARE(truncate(local("sparse").c_str(), qint64(100) << 30), 0);
    const QString file = path(name);
    expectRefusal({"--import", file}, name);
    if (name != "missing" && name != "dangling") // a session may begin there
        expectRefusal({"--session", file}, name);
    QCOMPARE(QFileInfo(path("sparse")).size(), qint64(100) << 30);
}

void TestHostileStart::secondFileThatIsBrokenEndsTheStartToo()
{
    put("good.svdb", "{}");
    put("bad.svdb", "{");
    expectRefusal({"--session", path("good.svdb"), "--import", path("bad.svdb")}, "bad.svdb");
    QCOMPARE(contentOf(path("good.svdb")), QByteArray("{}"));
}

void TestHostileStart::emptyNameIsRefused()
{
    for (const char* option : {"--import=", "--session=", "--export="})
        expectRefusal({option}, QString::fromLatin1(option).chopped(1));
}

void TestHostileStart::targetThatCannotBeWrittenEndsTheStart_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"folder", "pipe", "missing/new", "file/below", "device"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TestHostileStart::targetThatCannotBeWrittenEndsTheStart()
{
    QFETCH(QString, name);
    QVERIFY(QDir(folder->path()).mkdir("folder"));
    QCOMPARE(mkfifo(local("pipe").c_str(), 0600), 0);
    makeDevice();
    put("file", "x");
    const QString file = path(name);
    for (const char* option : {"--export", "--session"})
        expectRefusal({option, file}, name);
}

void TestHostileStart::missingSessionIsBegunAndWritten()
{
    QCOMPARE(symlink("real.svdb", local("link.svdb").c_str()), 0);
    for (const char* name : {"new.svdb", "link.svdb"}) {
        ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
        QVERIFY(program.start(headless({"--no-virtual", "--session", path(name)})));
        QVERIFY(isUp(program));
        QCOMPARE(program.stop(), 0);
        QCOMPARE(lines(program), QStringList());
        QVERIFY2(contentOf(path(name)).endsWith("}\n"), name);
    }
}

void TestHostileStart::folderThatGoesMeanwhileIsToldAtTheEnd()
{
    QVERIFY(QDir(folder->path()).mkdir("place"));
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(
        headless({"--no-virtual", "--session", path("place/s.svdb"), "--export", path("place/e.svdb")})));
    QVERIFY(isUp(program));
    QVERIFY(QDir(path("place")).removeRecursively());
    QCOMPARE(program.stop(), notWritten);
    QCOMPARE(lines(program).size(), 2); // one for each file
    QVERIFY(lines(program).join(' ').contains("--session") && lines(program).join(' ').contains("--export"));
}

// A file that may not grow stands for a full disk: the old session is whole, and one line tells.
void TestHostileStart::fileThatCannotBeWrittenIsToldAtTheEnd()
{
    put("s.svdb", "{}");
    QVERIFY(signal(SIGXFSZ, SIG_IGN) != SIG_ERR); // the program inherits it
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(headless({"--no-virtual", "--session", path("s.svdb")})));
    QVERIFY(isUp(program));
    const rlimit most = {4096, 4096};
    QCOMPARE(prlimit(static_cast<pid_t>(program.pid()), RLIMIT_FSIZE, &most, nullptr), 0);
    QCOMPARE(program.stop(), notWritten);
    QCOMPARE(lines(program).size(), 1);
    QCOMPARE(contentOf(path("s.svdb")), QByteArray("{}"));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList("s.svdb"));
}

void TestHostileStart::sessionThatIsBrokenMeanwhileIsReplacedWhole()
{
    put("s.svdb", "{}");
    ProgramUnderTest program(QStringLiteral(SORVANE_PROGRAM));
    QVERIFY(program.start(headless({"--no-virtual", "--session", path("s.svdb")})));
    QVERIFY(isUp(program));
    put("s.svdb", "broken");
    QCOMPARE(program.stop(), 0);
    QVERIFY(contentOf(path("s.svdb")).endsWith("}\n"));
}

void TestHostileStart::nameWithLineBreaksIsOneLine()
{
    put("two\nlines", "x");
    expectRefusal({"--import", path("two\nlines")}, "two lines");
    expectRefusal({"--import", path("missing\n\nsorvane: lines")}, "missing");
}

QTEST_GUILESS_MAIN(TestHostileStart)
#include "test_hostile_start.moc"
