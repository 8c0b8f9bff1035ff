// A disk without room: entries are dropped, nobody is told, no memory is taken for them, and what comes when
// there is room again is written.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <malloc.h>
#include <memory>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // whose header not every compiler brings
#endif

using namespace log_fixture;

namespace {

constexpr int manyEntries = 200000;
constexpr std::size_t mostGrowth = 200000; // bytes: a buffer or two, far less than those entries

std::size_t allocatedBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

/// Writes entries of these numbers; how much memory that took for good.
std::size_t writeNumbers(LoggerFile& log, int first, int behindLast)
{
    const std::size_t before = allocatedBytes();
    for (int number = first; number < behindLast; ++number)
        write(log, QString::number(number));
    const std::size_t after = allocatedBytes();
    return after > before ? after - before : 0;
}

/// Whether these are lines of entries of rising numbers, each of them whole, and the last of that number.
bool areWholeLines(const QByteArray& content, int lastNumber)
{
    const QByteArray head = errorLine({}).chopped(1);
    int before = -1;
    for (const QByteArray& line : content.chopped(content.endsWith('\n') ? 1 : 0).split('\n')) {
        const int number = line.mid(head.size()).toInt();
        if (line != head + QByteArray::number(number) || number <= before)
            return false;
        before = number;
    }
    return content.endsWith('\n') && before == lastNumber;
}

bool limitFiles(rlim_t bytes)
{
    const rlimit most = {bytes, RLIM_INFINITY};
    return signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &most) == 0;
}

} // namespace

class TestLoggerFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { messages.reset(); }
    void deviceWithoutRoomIsSilent();
    void fileThatCannotGrowTakesWhatComesLater();
    void longEntryWithoutRoomEndsBeforeTheNext();
    void rotationWithRoomAgainKeepsTheLimitsLine();
    void fullDiskTakesWhatComesLater();
    void fullDiskIsRotatedSilently();

private:
    QString path(const QString& name) const { return folder->filePath(name); }
    /// Runs in another process, with a disk of that size in place of the folder; its status.
    int onADiskOf(const char* size, const std::function<int()>& run) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<Messages> messages;
};

void TestLoggerFullDisk::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    messages = std::make_unique<Messages>();
}

int TestLoggerFullDisk::onADiskOf(const char* size, const std::function<int()>& run) const
{
    return inAnotherProcess([&] {
        const bool isMounted =
            unshare(isRoot() ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) == 0 &&
            mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
            mount("tmpfs", QFile::encodeName(folder->path()).constData(), "tmpfs", 0, size) == 0;
        return isMounted ? run() : skipped;
    });
}

void TestLoggerFullDisk::deviceWithoutRoomIsSilent()
{
    QVERIFY(QFile::link("/dev/full", path("a.log")));
    LoggerFile log(path("a.log"), LoggerModel::error, 0, 2, false);
    log.mpSetFileSize(1);
    if (!log.mfIsValid())
        QSKIP("NO /dev/full HERE: only the limit on a file's size stands for a full disk");
    messages.reset(); // Qt warns that a device has no end to go to
    messages = std::make_unique<Messages>();
    QVERIFY(writeNumbers(log, 0, manyEntries) < mostGrowth);
    QVERIFY(log.mfIsValid());
    QCOMPARE(namesIn(path({})), QStringList("a.log"));
    QCOMPARE(QFileInfo(path("a.log")).symLinkTarget(), QStringLiteral("/dev/full"));
    QCOMPARE(Messages::all().join("; "), QString());
}

// As on a full disk: the write comes back short.
void TestLoggerFullDisk::fileThatCannotGrowTakesWhatComesLater()
{
    const int status = inAnotherProcess([this] {
        LoggerFile log(path("a.log"), LoggerModel::error, 0, 2, false);
        if (!limitFiles(10000))
            return skipped;
        const std::size_t growth = writeNumbers(log, 0, manyEntries);
        const qint64 size = QFileInfo(path("a.log")).size();
        if (!limitFiles(RLIM_INFINITY))
            return skipped;
        write(log, QString::number(manyEntries));
        return firstBreach({growth < mostGrowth, size == 10000, log.mfIsValid(),
                            areWholeLines(contentOf(path("a.log")), manyEntries), Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
}

void TestLoggerFullDisk::longEntryWithoutRoomEndsBeforeTheNext()
{
    const int status = inAnotherProcess([this] {
        LoggerFile log(path("a.log"), LoggerModel::error, 0, 2, false);
        if (!limitFiles(10000))
            return skipped;
        const std::size_t before = allocatedBytes();
        for (int times = 0; times < 200; ++times)
            write(log, QString(50000, 'x'));
        const std::size_t after = allocatedBytes();
        if (!limitFiles(RLIM_INFINITY))
            return skipped;
        write(log, "next");
        return firstBreach({after < before + mostGrowth,
                            contentOf(path("a.log")).startsWith(errorLine(QString(9000, 'x')).chopped(1)),
                            contentOf(path("a.log")).endsWith('\n' + errorLine("next")),
                            Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
}

void TestLoggerFullDisk::rotationWithRoomAgainKeepsTheLimitsLine()
{
    const int status = inAnotherProcess([this] {
        LoggerFile log(path("a.log"), LoggerModel::error, 0, 1, false);
        if (!limitFiles(10000))
            return skipped;
        writeNumbers(log, 0, 1000); // the last of them found no room
        if (!limitFiles(RLIM_INFINITY))
            return skipped;
        log.mpSetFileSize(5000);
        write(log, "next");
        return firstBreach({contentOf(path("a.log")) == errorLine("next"),
                            contentOf(path("a_1.log")).endsWith("\nMaximum file size reached (4 kB).\n"),
                            Messages::all().isEmpty()});
    });
    QCOMPARE(status, 0);
}

void TestLoggerFullDisk::fullDiskTakesWhatComesLater()
{
    const int status = onADiskOf("size=128k", [this] {
        if (!put(path("ballast"), QByteArray(64 << 10, 'b')))
            return skipped;
        LoggerFile log(path("a.log"), LoggerModel::error, 0, 2, false);
        const std::size_t growth = writeNumbers(log, 0, manyEntries);
        const bool isRemoved = QFile::remove(path("ballast"));
        write(log, QString::number(manyEntries));
        const QByteArray content = contentOf(path("a.log"));
        return firstBreach({growth<mostGrowth, isRemoved, content.size()> 64 << 10, log.mfIsValid(),
                            areWholeLines(content, manyEntries), Messages::all().isEmpty()});
    });
    if (status == skipped)
        QSKIP("A DISK OF ITS OWN CANNOT BE MOUNTED HERE: only the limit on a file's size stands for a full "
              "disk");
    QCOMPARE(status, 0);
}

void TestLoggerFullDisk::fullDiskIsRotatedSilently()
{
    const int status = onADiskOf("size=64k", [this] {
        if (!put(path("ballast"), QByteArray(44 << 10, 'b')))
            return skipped;
        LoggerFile log(path("a.log"), LoggerModel::error, 8, 2, false);
        const std::size_t growth = writeNumbers(log, 0, 5000); // twenty rotations
        const bool isRemoved = QFile::remove(path("ballast"));
        write(log, QString::number(5000));
        QStringList names = namesIn(path({}));
        for (const char* possible : {"a.log", "a_1.log", "a_2.log"})
            names.removeOne(possible);
        return firstBreach({growth < mostGrowth, isRemoved, log.mfIsValid(),
                            areWholeLines(contentOf(path("a.log")), 5000), names.isEmpty(),
                            Messages::all().isEmpty()});
    });
    if (status == skipped)
        QSKIP("A DISK OF ITS OWN CANNOT BE MOUNTED HERE: a rotation on a full disk is not shown");
    QCOMPARE(status, 0);
}

QTEST_GUILESS_MAIN(TestLoggerFullDisk)
#include "test_logger_full_disk.moc"
