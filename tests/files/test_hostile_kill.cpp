// A program that is killed while it writes leaves the file as it was before or as it should be after: whole.

#include "HostileFixture.h"

#include "library/SettingsStore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <csignal>
#include <ctime>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What the writer tells the one that kills it.
struct Progress
{
    volatile int writing; ///< 1 while it is between the start and the end of an export
    volatile int written; ///< exports that are done
};

void sleepMicroseconds(long microseconds)
{
    const timespec time = {microseconds / 1000000, microseconds % 1000000 * 1000};
    nanosleep(&time, nullptr);
}

} // namespace

class TestHostileKill : public HostileFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() {} // one state for all
    void killedWriterLeavesAWholeFile();

private:
    void turnTo(int state) const;
    [[noreturn]] void writeForEver() const;
    void killOnce(long microseconds) const;

    QString target;
    QByteArray whole[2]; ///< the file in each state
    Progress* progress = nullptr;
};

// A thousand scales: a write then takes a while. The two states differ near the end of the file.
void TestHostileKill::initTestCase()
{
    openOnce();
    QJsonArray scales;
    for (int i = 0; i < 1000; ++i)
        scales.append(QJsonObject{{"Category", QString::number(i % 9)},
                                  {"Title", QStringLiteral("Scale %1").arg(i)},
                                  {"LibBody", QStringLiteral("Words about it. ").repeated(10)},
                                  {"Scale", 'x' + QString::number(i + 4096, 2)}});
    QCOMPARE(offer(QJsonDocument(QJsonObject{{"SorvaneDefaultScalesArray", scales}}).toJson()).error,
             QString());
    SettingsStore::setSettingsProperty(QStringLiteral("SorvaneDefaultScalesArray"), 0); // a copy
    target = pathOf(QStringLiteral("session.svdb"));
    void* shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    QVERIFY(shared != MAP_FAILED);
    progress = static_cast<Progress*>(shared);
}

void TestHostileKill::turnTo(int state) const
{
    window->powerItem->setSwithOn(state == 1); // it is written, and nothing else follows
    SettingsStore::setSettingsProperty(QStringLiteral("Z"), QString(state * 5000, QLatin1Char('z')));
}

// The other process: it has the window as it was, and comes back from nothing.
void TestHostileKill::writeForEver() const
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (int turn = 0;; ++turn) {
        turnTo(turn % 2);
        progress->writing = 1;
        const QString error = SettingsStore::exportDatabase(target);
        progress->writing = 0;
        progress->written = progress->written + 1;
        if (!error.isEmpty())
            _exit(1);
    }
}

void TestHostileKill::killOnce(long microseconds) const
{
    const pid_t writer = fork();
    QVERIFY(writer >= 0);
    if (writer == 0)
        writeForEver();
    sleepMicroseconds(microseconds);
    kill(writer, SIGKILL);
    int status = 0;
    QCOMPARE(waitpid(writer, &status, 0), writer);
    QVERIFY(WIFSIGNALED(status)); // it had not ended by itself
}

void TestHostileKill::killedWriterLeavesAWholeFile()
{
    constexpr int kills = 200;
    QElapsedTimer timer;
    timer.start();
    for (int state = 0; state < 2; ++state) {
        turnTo(state);
        QCOMPARE(SettingsStore::exportDatabase(target), QString());
        whole[state] = contentOf(target);
        QVERIFY(whole[state].size() > 100000);
    }
    const int two = static_cast<int>(timer.nsecsElapsed() / 1000); // writes, in microseconds
    QRandomGenerator dice(1);
    int amidAWrite = 0, litter = 0, found[2] = {0, 0}, exports = 0;
    for (int i = 0; i < kills; ++i) {
        *progress = {0, 0};
        killOnce(dice.bounded(2 * two));
        amidAWrite += progress->writing;
        exports += progress->written;
        const QByteArray now = contentOf(target);
        QVERIFY2(now == whole[0] || now == whole[1],
                 qPrintable(
                     QStringLiteral("kill %1: %2 of %3 bytes").arg(i).arg(now.size()).arg(whole[0].size())));
        ++found[now == whole[1]];
        const QStringList others =
            QDir(folder.path()).entryList({"session.svdb.*"}, QDir::Files | QDir::Hidden);
        for (const QString& other : others)
            litter += QFile::remove(pathOf(other)) ? 1 : 0;
    }
    qDebug(
        "%d kills: %d amid a write, %d exports done, %d temporary files left, %d and %d times either state",
        kills, amidAWrite, exports, litter, found[0], found[1]);
    QVERIFY(amidAWrite > kills / 2);
    QVERIFY(exports > kills / 4);
    QVERIFY(found[0] > kills / 10 && found[1] > kills / 10);
    QCOMPARE(faultOfGood(offerFile(target)), QString());
}

QTEST_MAIN(TestHostileKill)
#include "test_hostile_kill.moc"
