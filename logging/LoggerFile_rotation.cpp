// When the file exceeds its size: its backups, and how it is begun anew.

#include "logging/LoggerFile.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr unsigned mostBackups = 1000; // looked for at each rotation

} // namespace

void LoggerFile::mpRenewLogFile()
{
    const QMutexLocker lock(&mutex);
    renew();
}

void LoggerFile::renew()
{
    // A file that cannot be written to would be copied over its backups by entry after entry.
    if (dir.isEmpty() || !isWritable() || fileSize <= 0 || file->size() <= fileSize)
        return;
    shiftBackups();
    copyToFirstBackup();
    file->close();
    // Another program that writes to it, or empties it, must not be written over.
    file->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Append | QIODevice::Text);
}

void LoggerFile::shiftBackups() const
{
    for (unsigned number = std::min(backupFileCount, mostBackups); number > 1; --number) {
        const QString lower = backupName(number - 1);
        QFile::remove(backupName(number));
        // Leaves what a copy would, since the lower one goes next, and does not wait for the disk.
        if (QFileInfo(lower).isFile())
            QFile::rename(lower, backupName(number));
    }
}

void LoggerFile::copyToFirstBackup()
{
    stream->resetStatus();
    *stream << "------------------------------------------------" << '\n'
            << "Maximum file size reached (" << fileSize / 1024 << " kB)." << '\n';
    stream->flush();
    QFile::remove(backupName(1));
    QFile::copy(static_cast<const QFile&>(*file).fileName(), backupName(1));
}

QString LoggerFile::backupName(unsigned number) const
{
    return dir + QLatin1Char('/') + baseName + QLatin1Char('_') + QString::number(number) + QLatin1Char('.') +
           suffix;
}

void LoggerFile::mpSetFileSize(unsigned bytes)
{
    const QMutexLocker lock(&mutex);
    fileSize = bytes;
}

qint64 LoggerFile::mfGetFileSize() const
{
    const QMutexLocker lock(&mutex);
    return fileSize;
}

void LoggerFile::mpSetBackupFileCount(unsigned count)
{
    const QMutexLocker lock(&mutex);
    backupFileCount = count;
}

unsigned LoggerFile::mfGetBackupFileCount() const
{
    const QMutexLocker lock(&mutex);
    return backupFileCount;
}
