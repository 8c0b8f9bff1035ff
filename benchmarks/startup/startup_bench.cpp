// startup_bench PROGRAM FILE [RUNS]: from the start of a process to its first painted frame, its memory once
// it rests, and how often it wakes up while nothing happens. Writes all values; the report beside these
// programs makes figures of them. Needs an X server whose screen the window covers: see startup_bench.sh.

#include <QColor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QVector>

#include <cstdio>

namespace {

constexpr int giveUpMs = 10000;
constexpr unsigned long settleMs = 2000, idleMs = 10000;
constexpr int memoryRuns = 3;

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

struct Sample
{
    const char *name, *unit;
    QJsonArray values;
};

double mebibytes(qint64 pid, const char* file, const char* field)
{
    return static_cast<double>(numberAfter(QStringLiteral("/proc/%1/%2").arg(pid).arg(file), field)) / 1024;
}

Sample firstFrames(const QString& program, int runs)
{
    Sample times{"firstFrame", "ms", {}};
    for (int run = 0; run < runs; ++run) {
        QProcess process;
        times.values.append(startToFrameMs(process, program));
        stop(process);
    }
    return times;
}

QVector<Sample> restsWithWindow(const QString& program)
{
    Sample resident{"resident", "MiB", {}}, proportional{"proportional", "MiB", {}},
        wakes{"wakeUps", "times", {}};
    for (int run = 0; run < memoryRuns; ++run) {
        QProcess process;
        startToFrameMs(process, program);
        QThread::msleep(settleMs);
        resident.values.append(mebibytes(process.processId(), "status", "VmRSS"));
        proportional.values.append(mebibytes(process.processId(), "smaps_rollup", "Pss"));
        if (run == 0) {
            const long before = wakeUps(process.processId());
            QThread::msleep(idleMs);
            wakes.values.append(static_cast<qint64>(wakeUps(process.processId()) - before));
        }
        stop(process);
    }
    return {resident, proportional, wakes};
}

Sample restsHeadless(const QString& program)
{
    Sample resident{"residentHeadless", "MiB", {}};
    for (int run = 0; run < memoryRuns; ++run) {
        QProcess process;
        process.start(program, {"--headless", "--no-virtual"});
        process.waitForStarted();
        QThread::msleep(settleMs);
        resident.values.append(mebibytes(process.processId(), "status", "VmRSS"));
        stop(process);
    }
    return resident;
}

bool write(const QString& path, const QVector<Sample>& samples)
{
    QJsonObject all;
    for (const Sample& sample : samples)
        all.insert(QLatin1String(sample.name),
                   QJsonObject{{"unit", QLatin1String(sample.unit)}, {"values", sample.values}});
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(QJsonObject{{"samples", all}}).toJson()) > 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc < 3)
        return 2;
    const QString program = QString::fromLocal8Bit(argv[1]);
    QVector<Sample> samples{firstFrames(program, argc > 3 ? QByteArray(argv[3]).toInt() : 21)};
    samples += restsWithWindow(program);
    samples += restsHeadless(program);
    return write(QString::fromLocal8Bit(argv[2]), samples) ? 0 : 2;
}
