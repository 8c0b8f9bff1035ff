#pragma once

#include <QList>
#include <QString>

#include <sys/types.h>

/// What a process holds, sampled over a long run, and whether it has stayed flat.
class ResourceLog
{
public:
    struct Sample
    {
        double seconds;
        qint64 resident, proportional, privateDirty; ///< KiB
        qint64 serverDirty;                          ///< of the X server, which keeps the program's pixmaps
        int files, threads;
    };

    ResourceLog(pid_t watched, pid_t xServer) : program(watched), server(xServer) {}

    void take(double seconds);
    [[nodiscard]] const QList<Sample>& all() const { return samples; }
    [[nodiscard]] bool writeCsv(const QString& path) const;

    /// What has grown, in words: the median of the last third of the samples after the warm-up against that
    /// of the first third. Empty if nothing has; not a word on too few samples.
    [[nodiscard]] QStringList growth(double warmUpSeconds) const;
    [[nodiscard]] QString table() const;

private:
    const pid_t program, server;
    QList<Sample> samples;
};
