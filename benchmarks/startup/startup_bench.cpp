// startup_bench PROGRAM [RUNS]: from the start of a process to its first painted frame, its memory once it
// rests, and how often it wakes up while nothing happens. Needs an X server whose screen the window covers:
// see startup_bench.sh beside this file.

#include <QColor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int giveUpMs = 10000;
constexpr unsigned long settleMs = 2000, idleMs = 10000;

bool isPainted()
{
    const QRect middle(QGuiApplication::primaryScreen()->geometry().center(), QSize(1, 1));
    const QPixmap grabbed = QGuiApplication::primaryScreen()->grabWindow(0, middle.x(), middle.y(), 1, 1);
    return grabbed.toImage().pixelColor(0, 0).lightness() > 0; // the bare root window is black
}

long numberAfter(const QString& file, const QByteArray& field)
{
    QFile status(file);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const int at = text.indexOf("\n" + field + ":");
    return at < 0 ? 0
                  : text.mid(at + field.size() + 2).trimmed().split('\n').first().split(' ').first().toLong();
}

long wakeUps(qint64 pid)
{
    long sum = 0;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        sum += numberAfter(tasks.filePath(task) + QStringLiteral("/status"), "voluntary_ctxt_switches");
    return sum;
}

qint64 startToFrameMs(QProcess& process, const QString& program)
{
    QElapsedTimer timer;
    timer.start();
    process.start(program, QStringList());
    while (!isPainted() && timer.elapsed() < giveUpMs)
        QThread::msleep(1);
    return timer.elapsed();
}

void stop(QProcess& process)
{
    process.terminate();
    process.waitForFinished(giveUpMs);
    while (isPainted())
        QThread::msleep(5);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const QString program = QString::fromLocal8Bit(argv[1]);
    const int runs = argc > 2 ? QByteArray(argv[2]).toInt() : 21;

    QVector<qint64> times;
    for (int run = 0; run < runs; ++run) {
        QProcess process;
        times.append(startToFrameMs(process, program));
        stop(process);
    }
    std::sort(times.begin(), times.end());
    std::printf("start to first painted frame: median %lld ms, worst %lld ms of %d runs\n",
                times.at(times.size() / 2), times.last(), runs);

    QProcess process;
    startToFrameMs(process, program);
    QThread::msleep(settleMs);
    const QString status = QStringLiteral("/proc/%1/status").arg(process.processId());
    std::printf("resident memory: %.1f MiB\n", static_cast<double>(numberAfter(status, "VmRSS")) / 1024.0);
    const long before = wakeUps(process.processId());
    QThread::msleep(idleMs);
    std::printf("wake-ups in %lu s of rest: %ld\n", idleMs / 1000, wakeUps(process.processId()) - before);
    stop(process);
    return 0;
}
