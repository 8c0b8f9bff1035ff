#pragma once

#include "logging/LoggerObserver.h"

#include <QMutex>
#include <QString>

#include <cstdio>
#include <memory>

class QIODevice;
class QTextStream;

/// Writes the log's entries as lines of UTF-8 to a file, which it rotates by size, to a stream, or to a
/// socket. What cannot be written is dropped in silence. Any thread may call it.
class LoggerFile : public LoggerObserver
{
public:
    /// Appends to the file; with `uniqueName` the time of day stands in its name, before ".log". A file that
    /// exceeds `fileSizeKb` kilobytes (0: any size) is copied to the first of its backups and
    /// begun anew.
    LoggerFile(const QString& name, LoggerModel::LoggerModelLogLevel level, unsigned fileSizeKb,
               unsigned backups, bool uniqueName);
    /// The same; the name in the system's encoding.
    LoggerFile(const char* name, LoggerModel::LoggerModelLogLevel level, unsigned fileSizeKb,
               unsigned backups, bool uniqueName);
    /// Writes to a stream that stays its owner's. Without rotation.
    LoggerFile(FILE* opened, LoggerModel::LoggerModelLogLevel level);
    /// Sends each line as a UDP datagram to this port of the loopback address.
    LoggerFile(unsigned short port, LoggerModel::LoggerModelLogLevel level);
    ~LoggerFile() override;

    /// Writes the entry if neither the level nor a filter excludes it. A filter excludes no entry that has a
    /// thread's or process's number.
    void mpLogEvent(LoggerItem& item) override;
    /// Whether there is a device to write to.
    [[nodiscard]] bool mfIsValid() const;
    /// The file's name as it was given, with its time if it has one; "socket:PORT"; "" for a stream.
    [[nodiscard]] QString mfGetLogFileName() const;
    /// Leaves time and number out of the lines if the program's arguments hold "qv_simple_logging".
    void mpCheckForSimpleLogging();

    // Rotation (LoggerFile_rotation.cpp)
    /// Begins the file anew if it exceeds its size.
    void mpRenewLogFile();
    /// In bytes; 0 for any size.
    void mpSetFileSize(unsigned bytes);
    [[nodiscard]] qint64 mfGetFileSize() const;
    /// At most 1000 are kept. Kept: 0 leaves one backup, as 1 does.
    void mpSetBackupFileCount(unsigned count);
    [[nodiscard]] unsigned mfGetBackupFileCount() const;

private:
    void open(std::unique_ptr<QIODevice> device);
    // These want the mutex to be held.
    void writeLine(const LoggerItem& item, unsigned pid);
    [[nodiscard]] bool isWritable() const;
    void renew();
    void shiftBackups() const;
    void copyToFirstBackup();
    [[nodiscard]] QString backupName(unsigned number) const;

    QString fileName;
    std::unique_ptr<QIODevice> file;
    std::unique_ptr<QTextStream> stream;
    mutable QMutex mutex;
    qint64 fileSize = 0;
    unsigned backupFileCount = 0;
    QString dir, baseName, suffix; // of a named file only
    bool simpleLogging = false;
};
