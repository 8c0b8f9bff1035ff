// Paths that lead to no database: folders, pipes, devices, links, and files that may not be read. Nothing may
// block.

#include "HostileFixture.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;

/// Files are opened as another user as long as this lives: what has no permission shows. Only root can turn.
class AsNobody
{
public:
    AsNobody() : turned(geteuid() == 0 && setegid(nobody) == 0 && seteuid(nobody) == 0) {}
    ~AsNobody()
    {
        if (turned && (seteuid(0) != 0 || setegid(0) != 0))
            std::abort(); // a test that goes on as another user proves nothing
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    const bool turned;
};

} // namespace

class TestHostilePaths : public HostileFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pathWithoutADatabaseIsRefused_data();
    void pathWithoutADatabaseIsRefused();
    void linkToADatabaseIsFollowed();
    void fileWithoutPermissionIsRefused();
    void fileInAClosedFolderIsRefused();
    void pipeThatIsBeingWrittenToIsNotEmptied();

private:
    LocalPath local(const QString& name) const { return LocalPath(pathOf(name)); }
};

void TestHostilePaths::initTestCase()
{
    openOnce();
    QVERIFY(QDir(folder.path()).mkdir("folder"));
    QVERIFY(QDir(folder.path()).mkdir("folder.svdb"));
    QCOMPARE(mkfifo(local("pipe"), 0600), 0);
    QVERIFY(makeSocket(pathOf("socket")));
    QCOMPARE(symlink("nowhere", local("dangling")), 0);
    QCOMPARE(symlink("loop2", local("loop1")), 0);
    QCOMPARE(symlink("loop1", local("loop2")), 0);
    QCOMPARE(symlink("itself", local("itself")), 0);
    QCOMPARE(symlink("pipe", local("link to pipe")), 0);
    QCOMPARE(symlink("folder", local("link to folder")), 0);
    QVERIFY(write(pathOf("small.svdb"), QJsonDocument(smallDatabase()).toJson()));
}

void TestHostilePaths::pathWithoutADatabaseIsRefused_data()
{
    QTest::addColumn<QString>("path");
    for (const char* name :
         {"folder", "folder.svdb", "pipe", "socket", "dangling", "loop1", "itself", "link to pipe",
          "link to folder", "missing", "missing/below", "small.svdb/below", ".", ".."})
        QTest::addRow("%s", name) << pathOf(name);
    for (const char* name :
         {"/dev/zero", "/dev/null", "/dev/full", "/dev/tty", "/dev/random", "/", "/proc/self/fd",
          "/proc/self/status", "/proc/self/mem", "", " ", "~", "relative", "-", "\n"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    QTest::newRow("a very long name") << pathOf(QString(5000, QLatin1Char('n')));
    QTest::newRow("a very long path") << pathOf(QStringLiteral("d/").repeated(5000));
    QTest::newRow("a name with a zero") << pathOf("small.svdb") + QChar(0) + "more";
    QTest::newRow("a resource") << ":/Resources/LibraryScreen/Sample-descr.html";
}

void TestHostilePaths::pathWithoutADatabaseIsRefused()
{
    QFETCH(QString, path);
    const QString before = hostile_state::summary(*window);
    const Outcome outcome = offerFile(path);
    QVERIFY(!outcome.error.isEmpty());
    QVERIFY2(outcome.ms <= 1000 * slowness(), qPrintable(QString::number(outcome.ms)));
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(faultAfter(), QString());
}

void TestHostilePaths::linkToADatabaseIsFollowed()
{
    QCOMPARE(symlink("small.svdb", local("link")), 0);
    QCOMPARE(symlink("link", local("link to link")), 0);
    QCOMPARE(faultOfGood(offerFile(pathOf("link to link"))), QString());
    QVERIFY(library().categories().contains("Mine"));
}

void TestHostilePaths::fileWithoutPermissionIsRefused()
{
    const QString path = pathOf("closed.svdb");
    QVERIFY(write(path, QJsonDocument(smallDatabase()).toJson()));
    QCOMPARE(chmod(local("closed.svdb"), 0), 0);
    QCOMPARE(chmod(LocalPath(folder.path()), 0755), 0);
    const QString before = hostile_state::summary(*window);
    {
        const AsNobody other;
        QVERIFY2(access(local("closed.svdb"), R_OK) != 0 || geteuid() != 0, "permissions do not bind here");
        QVERIFY(!offerFile(path).error.isEmpty());
    }
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(chmod(local("closed.svdb"), 0644), 0);
    const AsNobody other;
    QCOMPARE(offerFile(path).error, QString());
}

void TestHostilePaths::fileInAClosedFolderIsRefused()
{
    QVERIFY(QDir(folder.path()).mkdir("closed"));
    QVERIFY(write(pathOf("closed/one.svdb"), QJsonDocument(smallDatabase()).toJson()));
    QCOMPARE(chmod(local("closed"), 0), 0);
    const QString before = hostile_state::summary(*window);
    {
        const AsNobody other;
        QVERIFY(!offerFile(pathOf("closed/one.svdb")).error.isEmpty());
    }
    QCOMPARE(chmod(local("closed"), 0755), 0);
    QCOMPARE(hostile_state::summary(*window), before);
}

void TestHostilePaths::pipeThatIsBeingWrittenToIsNotEmptied()
{
    const int pipe = open(local("pipe"), O_RDWR | O_NONBLOCK); // its other end
    QVERIFY(pipe >= 0);
    QCOMPARE(::write(pipe, "{}", 2), ssize_t(2));
    QVERIFY(!offerFile(pathOf("pipe")).error.isEmpty());
    char read[3] = {};
    QCOMPARE(::read(pipe, read, 2), ssize_t(2));
    QCOMPARE(close(pipe), 0);
}

QTEST_MAIN(TestHostilePaths)
#include "test_hostile_paths.moc"
