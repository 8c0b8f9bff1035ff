// A test that was killed used to leave its X server, its daemon and the program behind, and the next runs met
// them. No destructor runs then, so the kernel must end the children.

#include "ChildProcess.h"

#include <QCoreApplication>
#include <QtTest>

#include <poll.h>
#include <unistd.h>

#include <cstring>

namespace {

constexpr int startMs = 10000, deathMs = 10000;
const QString motherOption = QStringLiteral("--mother");

/// Starts a child that would run for minutes, and waits to be killed.
int beMother(const QStringList& command)
{
    ChildProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(command.first(), command.mid(1));
    if (!child.waitForStarted(startMs))
        return 1;
    return child.waitForFinished(-1) ? 0 : 1;
}

/// A pipe whose write end every child inherits: the read end meets the end of file when all of them are dead.
class SharedPipe
{
public:
    SharedPipe() { open = ::pipe(ends) == 0; }
    ~SharedPipe()
    {
        ::close(ends[0]);
        closeOwnWriteEnd();
    }
    SharedPipe(const SharedPipe&) = delete;
    SharedPipe& operator=(const SharedPipe&) = delete;

    void closeOwnWriteEnd()
    {
        if (open)
            ::close(ends[1]);
        open = false;
    }
    [[nodiscard]] bool isHeld(int timeoutMs) const
    {
        pollfd reader{ends[0], POLLIN, 0};
        return ::poll(&reader, 1, timeoutMs) == 0;
    }
    bool open = false;

private:
    int ends[2] = {-1, -1};
};

} // namespace

class TestChildProcess : public QObject
{
    Q_OBJECT

private slots:
    void diesWithAKilledParent_data();
    void diesWithAKilledParent();
};

void TestChildProcess::diesWithAKilledParent_data()
{
    QTest::addColumn<QString>("script");

    QTest::newRow("started directly") << "echo started; exec sleep 300";
    QTest::newRow("started through a wrapper") << "exec sh -c 'echo started; exec sleep 300'";
    QTest::newRow("deaf to being asked") << "trap '' TERM HUP INT PIPE; echo started; exec sleep 300";
}

void TestChildProcess::diesWithAKilledParent()
{
    QFETCH(const QString, script);
    SharedPipe pipe;
    QVERIFY(pipe.open);
    ChildProcess mother;
    mother.start(QCoreApplication::applicationFilePath(), {motherOption, "sh", "-c", script});
    pipe.closeOwnWriteEnd();
    QVERIFY(QTest::qWaitFor([&] { return mother.readAllStandardOutput().contains("started"); }, startMs));
    QVERIFY(pipe.isHeld(0));
    mother.kill();
    QVERIFY(mother.waitForFinished());
    QVERIFY2(!pipe.isHeld(deathMs), "the child outlives its parent");
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == motherOption)
        return beMother(arguments.mid(2));
    TestChildProcess test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_child_process.moc"
