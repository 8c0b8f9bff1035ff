#include "ResourceLog.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {

constexpr qint64 allowedKilobytes = 1024;
constexpr double allowedShare = 0.02;
constexpr int fewestSamples = 6;

QByteArray procFile(pid_t pid, const char* name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number behind a label at the beginning of a line.
qint64 field(const QByteArray& text, const QByteArray& label)
{
    for (const QByteArray& line : text.split('\n'))
        if (line.startsWith(label + ':'))
            return line.mid(label.size() + 1).simplified().split(' ').first().toLongLong();
    return -1;
}

struct Series
{
    const char* name;
    qint64 (*value)(const ResourceLog::Sample&);
    qint64 allowed; ///< more than this is growth
    double share;   ///< and so is more than this part of what there was; 0: any part may
    const char* unit;
};

// The proportional set is only told: it grows when other processes stop sharing pages.
const Series series[] = {
    {"resident", [](const ResourceLog::Sample& s) { return s.resident; }, allowedKilobytes, allowedShare,
     "KiB"},
    {"private dirty", [](const ResourceLog::Sample& s) { return s.privateDirty; }, allowedKilobytes,
     allowedShare, "KiB"},
    {"X server's dirty", [](const ResourceLog::Sample& s) { return s.serverDirty; }, allowedKilobytes,
     allowedShare, "KiB"},
    {"open files", [](const ResourceLog::Sample& s) { return qint64(s.files); }, 2, 0, ""},
    {"threads", [](const ResourceLog::Sample& s) { return qint64(s.threads); }, 0, 0, ""},
};

qint64 median(QList<qint64> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

void ResourceLog::take(double seconds)
{
    const QByteArray memory = procFile(program, "smaps_rollup");
    const QDir files(QStringLiteral("/proc/%1/fd").arg(program));
    samples.append({seconds, field(memory, "Rss"), field(memory, "Pss"), field(memory, "Private_Dirty"),
                    field(procFile(server, "smaps_rollup"), "Private_Dirty"),
                    files.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size(),
                    static_cast<int>(field(procFile(program, "status"), "Threads"))});
}

bool ResourceLog::writeCsv(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("seconds,rss_kib,pss_kib,private_dirty_kib,x_server_dirty_kib,fds,threads\n");
    for (const Sample& s : samples)
        file.write(QStringLiteral("%1,%2,%3,%4,%5,%6,%7\n")
                       .arg(s.seconds, 0, 'f', 1)
                       .arg(s.resident)
                       .arg(s.proportional)
                       .arg(s.privateDirty)
                       .arg(s.serverDirty)
                       .arg(s.files)
                       .arg(s.threads)
                       .toUtf8());
    return file.flush();
}

QStringList ResourceLog::growth(double warmUpSeconds) const
{
    QList<Sample> warm;
    std::copy_if(samples.begin(), samples.end(), std::back_inserter(warm),
                 [&](const Sample& s) { return s.seconds >= warmUpSeconds; });
    QStringList grown;
    if (warm.size() < fewestSamples)
        return grown;
    const int third = warm.size() / 3;
    for (const Series& each : series) {
        QList<qint64> first, last;
        for (int i = 0; i < third; ++i) {
            first.append(each.value(warm.at(i)));
            last.append(each.value(warm.at(warm.size() - 1 - i)));
        }
        const qint64 before = median(first), after = median(last), by = after - before;
        if (by > each.allowed || (each.share > 0 && double(by) > each.share * double(before)))
            grown += QStringLiteral("%1 grew from %2 to %3 %4")
                         .arg(QLatin1String(each.name))
                         .arg(before)
                         .arg(after)
                         .arg(QLatin1String(each.unit));
    }
    return grown;
}

QString ResourceLog::table() const
{
    QString text = QStringLiteral("%1 %2 %3 %4 %5 %6 %7\n")
                       .arg("seconds", 8)
                       .arg("RSS KiB", 9)
                       .arg("PSS KiB", 9)
                       .arg("dirty", 9)
                       .arg("X dirty", 9)
                       .arg("files", 6)
                       .arg("threads", 8);
    for (const Sample& s : samples)
        text += QStringLiteral("%1 %2 %3 %4 %5 %6 %7\n")
                    .arg(s.seconds, 8, 'f', 0)
                    .arg(s.resident, 9)
                    .arg(s.proportional, 9)
                    .arg(s.privateDirty, 9)
                    .arg(s.serverDirty, 9)
                    .arg(s.files, 6)
                    .arg(s.threads, 8);
    return text;
}
