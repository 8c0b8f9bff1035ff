// When the file exceeds its size: its backups, and how it is begun anew.

#include "logging/LoggerFile.h"

#include <QFile>
#include <QMutexLocker>
#include <QTextStream>

namespace {

void replaceByCopy(const QString& target, const QString& source)
{
    if (QFile::exists(target))
        QFile::remove(target);
    QFile::copy(source, target);
}

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
    file->open(QIODevice::WriteOnly | QIODevice::Text);
}

void LoggerFile::shiftBackups() const
{
    for (unsigned number = backupFileCount; number > 1; --number)
        replaceByCopy(backupName(number), backupName(number - 1));
}

void LoggerFile::copyToFirstBackup()
{
    stream->resetStatus();
    *stream << "------------------------------------------------" << '\n'
            << "Maximum file size reached (" << fileSize / 1024 << " kB)." << '\n';
    stream->flush();
    replaceByCopy(backupName(1), fileName);
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
