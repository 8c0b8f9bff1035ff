// Places where nothing can be written, or not all of it: an error is returned, and what was there is whole.

#include "HostileFixture.h"

#include <QDir>

#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;
const QByteArray oldContent = "what was there before";

/// A test that could not be made, as the status of another process.
constexpr int skipped = 77;

/// Runs in another process of this one's state; its status, -1 if it crashed. What it changes for itself, as
/// limits, users and mounts, ends with it.
int inAnotherProcess(const std::function<int()>& run)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        _exit(run());
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

mode_t modeOf(const char* path)
{
    struct stat found = {};
    return lstat(path, &found) == 0 ? found.st_mode : 0;
}

/// A device of the test's own: those of the machine must outlive a program that replaces them. Without the
/// right to make one, a pipe.
bool makeDevice(const char* path, unsigned number)
{
    return mknod(path, S_IFCHR | 0666, makedev(1, number)) == 0 || mkfifo(path, 0666) == 0;
}

bool isRoot()
{
    return geteuid() == 0;
}

bool becomeNobody()
{
    return setresgid(nobody, nobody, nobody) == 0 && setresuid(nobody, nobody, nobody) == 0;
}

} // namespace

class TestHostileExport : public HostileFixture
{
    Q_OBJECT

private slots:
    void init();
    void targetThatIsNoFileIsRefused_data();
    void targetThatIsNoFileIsRefused();
    void fileThatCannotGrowKeepsWhatItHolds_data();
    void fileThatCannotGrowKeepsWhatItHolds();
    void fullDiskKeepsWhatIsThere();
    void fileThatMayNotBeWrittenIsRefused();
    void folderThatMayNotBeWrittenIsRefused();
    void fileOfAnotherUserInASharedFolderIsWhole();
    void folderThatIsGoneIsRefused();
    void linkStaysALink_data();
    void linkStaysALink();
    void linkThatLeadsNowhereMakesItsFile();
    void loopOfLinksIsRefused();
    void modeOfTheFileStays_data();
    void modeOfTheFileStays();
    void longNamesAreRefusedOrWritten_data();
    void longNamesAreRefusedOrWritten();
    void afterAFailureTheNextExportIsWhole();

private:
    LocalPath local(const QString& name) const { return LocalPath(path(name)); }
    QString path(const QString& name) const { return pathOf(QStringLiteral("place/") + name); }
    QStringList entries() const
    {
        return QDir(path(QString()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    QString exportTo(const QString& name) const { return window->exportDatabase(path(name)); }
    bool holdsADatabase(const QString& name) const { return contentOf(path(name)).endsWith("}\n"); }
};

void TestHostileExport::init()
{
    QDir(pathOf("place")).removeRecursively();
    QVERIFY(QDir(folder.path()).mkdir("place"));
    QVERIFY(write(path("old.svdb"), oldContent));
    QCOMPARE(chmod(LocalPath(folder.path()), 0755), 0);
}

void TestHostileExport::targetThatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("target");
    for (const char* name : {"folder", "pipe", "pipe link", "folder link", "socket", "old.svdb/below",
                             "missing/new", "full", "null", "zero", ".", "", "folder/"})
        QTest::addRow("%s", name) << path(name);
    for (const char* name : {"", "/proc/new", "/proc/self/status", "/", ":/Resources/new"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TestHostileExport::targetThatIsNoFileIsRefused()
{
    QFETCH(QString, target);
    QVERIFY(QDir(path({})).mkdir("folder"));
    QCOMPARE(mkfifo(local("pipe"), 0600), 0);
    QCOMPARE(symlink("pipe", local("pipe link")), 0);
    QCOMPARE(symlink("folder", local("folder link")), 0);
    QVERIFY(makeSocket(path("socket")));
    QVERIFY(makeDevice(local("null"), 3) && makeDevice(local("zero"), 5) && makeDevice(local("full"), 7));
    const QStringList before = entries();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!window->exportDatabase(target).isEmpty());
    QVERIFY(timer.elapsed() < 1000 * slowness());
    QCOMPARE(entries(), before);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
    QVERIFY(S_ISFIFO(modeOf(local("pipe"))) && S_ISSOCK(modeOf(local("socket"))));
}

void TestHostileExport::fileThatCannotGrowKeepsWhatItHolds_data()
{
    QTest::addColumn<int>("limit");
    for (const int limit : {0, 1, 4096, 16384, 20000, 32768})
        QTest::addRow("%d bytes", limit) << limit;
}

// As on a full disk: the write comes back short.
void TestHostileExport::fileThatCannotGrowKeepsWhatItHolds()
{
    QFETCH(int, limit);
    const QStringList before = entries();
    const int status = inAnotherProcess([&] {
        const rlimit most = {static_cast<rlim_t>(limit), RLIM_INFINITY};
        if (signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &most) != 0)
            return skipped;
        return exportTo("old.svdb").isEmpty() || exportTo("new.svdb").isEmpty() ? 1 : 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(entries(), before);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
}

void TestHostileExport::fullDiskKeepsWhatIsThere()
{
    // What the process finds: 0 all well, 1 no error, 2 the old file is not whole, 3 litter.
    const int status = inAnotherProcess([&] {
        const LocalPath disk = local({});
        if (unshare(isRoot() ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0 ||
            mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("tmpfs", disk, "tmpfs", 0, "size=16k") != 0)
            return skipped;
        if (!write(path("old.svdb"), oldContent))
            return skipped;
        if (exportTo("old.svdb").isEmpty() || exportTo("new.svdb").isEmpty())
            return 1;
        if (contentOf(path("old.svdb")) != oldContent)
            return 2;
        return entries() == QStringList("old.svdb") ? 0 : 3;
    });
    if (status == skipped)
        QSKIP("A DISK OF ITS OWN CANNOT BE MOUNTED HERE: only the limit on a file's size stands for a full "
              "disk");
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
}

void TestHostileExport::fileThatMayNotBeWrittenIsRefused()
{
    QCOMPARE(chmod(local("old.svdb"), 0444), 0);
    QCOMPARE(chmod(local({}), 0777), 0);
    const QStringList before = entries();
    const int status = inAnotherProcess([&] {
        if (isRoot() && !becomeNobody())
            return skipped;
        return exportTo("old.svdb").isEmpty() ? 1 : 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
    QCOMPARE(entries(), before);
}

void TestHostileExport::folderThatMayNotBeWrittenIsRefused()
{
    QCOMPARE(chmod(local("old.svdb"), 0666), 0);
    QCOMPARE(chmod(local({}), 0555), 0);
    const QStringList before = entries();
    const int status = inAnotherProcess([&] {
        if (isRoot() && !becomeNobody())
            return skipped;
        return exportTo("old.svdb").isEmpty() || exportTo("new.svdb").isEmpty() ? 1 : 0;
    });
    QCOMPARE(chmod(local({}), 0755), 0);
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
    QCOMPARE(entries(), before);
}

// All may write into the file and make others beside it, yet not put another in its place: that fails last.
void TestHostileExport::fileOfAnotherUserInASharedFolderIsWhole()
{
    if (!isRoot())
        QSKIP("NEEDS TWO USERS: only root can be another one");
    QCOMPARE(chmod(local("old.svdb"), 0666), 0);
    QCOMPARE(chmod(local({}), 01777), 0);
    const QStringList before = entries();
    const int status = inAnotherProcess([&] {
        if (!becomeNobody())
            return skipped;
        return exportTo("old.svdb").isEmpty() ? 1 : 0;
    });
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("old.svdb")), oldContent);
    QCOMPARE(entries(), before);
}

void TestHostileExport::folderThatIsGoneIsRefused()
{
    QCOMPARE(exportTo("new.svdb"), QString());
    QVERIFY(QDir(pathOf("place")).removeRecursively());
    QVERIFY(!exportTo("new.svdb").isEmpty());
    QVERIFY(!QFileInfo::exists(pathOf("place")));
}

void TestHostileExport::linkStaysALink_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("one link") << "link";
    QTest::newRow("a link to a link") << "link2";
    QTest::newRow("from another folder") << "folder/link3";
}

void TestHostileExport::linkStaysALink()
{
    QFETCH(QString, link);
    QVERIFY(QDir(path({})).mkdir("folder"));
    QCOMPARE(symlink("old.svdb", local("link")), 0);
    QCOMPARE(symlink("link", local("link2")), 0);
    QCOMPARE(symlink("../link2", local("folder/link3")), 0);
    const QStringList before = entries();
    QCOMPARE(exportTo(link), QString());
    for (const char* name : {"link", "link2", "folder/link3"})
        QVERIFY2(S_ISLNK(modeOf(local(name))), name);
    QVERIFY(S_ISREG(modeOf(local("old.svdb"))));
    QVERIFY(holdsADatabase("old.svdb"));
    QCOMPARE(entries(), before);
    QCOMPARE(offerFile(path(link)).error, QString());
}

void TestHostileExport::linkThatLeadsNowhereMakesItsFile()
{
    QVERIFY(QDir(path({})).mkdir("folder"));
    QCOMPARE(symlink("folder/made.svdb", local("link")), 0);
    QCOMPARE(symlink("link", local("link2")), 0);
    QCOMPARE(exportTo("link2"), QString());
    for (const char* name : {"link", "link2"})
        QVERIFY2(S_ISLNK(modeOf(local(name))), name);
    QVERIFY(holdsADatabase("folder/made.svdb"));
    QCOMPARE(entries().size(), 4);
}

void TestHostileExport::loopOfLinksIsRefused()
{
    QCOMPARE(symlink("loop2", local("loop1")), 0);
    QCOMPARE(symlink("loop1", local("loop2")), 0);
    const QStringList before = entries();
    QVERIFY(!exportTo("loop1").isEmpty());
    QVERIFY(S_ISLNK(modeOf(local("loop1"))) && S_ISLNK(modeOf(local("loop2"))));
    QCOMPARE(entries(), before);
}

void TestHostileExport::modeOfTheFileStays_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0660, 0666, 0755})
        QTest::addRow("%o", mode) << mode;
}

void TestHostileExport::modeOfTheFileStays()
{
    QFETCH(int, mode);
    QCOMPARE(chmod(local("old.svdb"), static_cast<mode_t>(mode)), 0);
    QCOMPARE(exportTo("old.svdb"), QString());
    QCOMPARE(static_cast<int>(modeOf(local("old.svdb")) & 07777), mode);
    QVERIFY(holdsADatabase("old.svdb"));
    // A new one is the user's to share, as any file that a program makes.
    const mode_t mask = umask(022);
    QCOMPARE(exportTo("new.svdb"), QString());
    umask(mask);
    QCOMPARE(static_cast<int>(modeOf(local("new.svdb")) & 07777), 0644);
}

void TestHostileExport::longNamesAreRefusedOrWritten_data()
{
    QTest::addColumn<int>("letters");
    QTest::addColumn<bool>("written");
    QTest::newRow("long") << 200 << true;
    QTest::newRow("as long as may be") << 255 << true;
    QTest::newRow("too long") << 256 << false;
    QTest::newRow("far too long") << 5000 << false;
}

void TestHostileExport::longNamesAreRefusedOrWritten()
{
    QFETCH(int, letters);
    QFETCH(bool, written);
    const QString name(letters, QLatin1Char('n'));
    QCOMPARE(exportTo(name).isEmpty(), written);
    QCOMPARE(entries().size(), written ? 2 : 1);
    if (written)
        QVERIFY(holdsADatabase(name));
}

void TestHostileExport::afterAFailureTheNextExportIsWhole()
{
    const QByteArray wanted = exported();
    QVERIFY(!exportTo("missing/new.svdb").isEmpty());
    QCOMPARE(exportTo("old.svdb"), QString());
    QCOMPARE(contentOf(path("old.svdb")), wanted);
    QCOMPARE(entries(), QStringList("old.svdb"));
    QCOMPARE(offerFile(path("old.svdb")).error, QString());
    QCOMPARE(faultAfter(), QString());
}

QTEST_MAIN(TestHostileExport)
#include "test_hostile_export.moc"
