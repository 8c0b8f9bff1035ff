// What an entry is written to, and its line.

#include "logging/LoggerFile.h"

#include "logging/DatagramDevice.h"
#include "logging/LoggerItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMutexLocker>
#include <QTextStream>
#include <QTime>

#include <array>

namespace {

constexpr std::array<const char*, 7> levelWords = {"All\t",  "Debug\t", "Diag\t", "Info\t",
                                                   "Warn\t", "Error\t", "Fatal\t"};

const char* levelWord(LoggerModel::LoggerModelLogLevel level)
{
    const bool isKnown = level >= LoggerModel::all && level <= LoggerModel::fatal;
    return isKnown ? levelWords.at(static_cast<std::size_t>(level)) : "Unknown\t";
}

/// Qt would warn of the others.
bool isFileName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QChar(QChar::Null));
}

/// What the name means now, wherever the process goes. Not cleaned: behind a link ".." leads elsewhere.
QString atThisPlace(const QString& name)
{
    return QFileInfo(name).isRelative() ? QDir::currentPath() + QLatin1Char('/') + name : name;
}

/// In digits that tools sort and search by, whatever the user's language writes; without Qt's locales, which
/// may be gone while the process ends.
QString timeText(QTime time)
{
    if (!time.isValid())
        return {};
    return QString::asprintf("%02d:%02d:%02d.%03d", time.hour(), time.minute(), time.second(), time.msec());
}

QString withTimeOfDay(QString fileName)
{
    const QString ending = QStringLiteral(".log");
    if (fileName.endsWith(ending))
        fileName.chop(ending.size());
    return fileName + QLocale::c().toString(QTime::currentTime(), QStringLiteral("hh_mm_ss")) + ending;
}

} // namespace

LoggerFile::LoggerFile(const QString& name, LoggerModel::LoggerModelLogLevel level, unsigned fileSizeKb,
                       unsigned backups, bool uniqueName)
    : LoggerObserver(level), fileName(uniqueName ? withTimeOfDay(name) : name),
      fileSize(static_cast<qint64>(fileSizeKb) << 10), backupFileCount(backups)
{
    mpCheckForSimpleLogging();
    auto named = std::make_unique<QFile>();
    if (isFileName(fileName)) {
        const QFileInfo parts(atThisPlace(fileName));
        dir = parts.path();
        baseName = parts.completeBaseName(); // "a.b.log" and "a.c.log" must not share their backups
        suffix = parts.suffix();
        named->setFileName(parts.filePath());
        named->open(QIODevice::Append | QIODevice::Text);
    }
    open(std::move(named));
}

LoggerFile::LoggerFile(const char* name, LoggerModel::LoggerModelLogLevel level, unsigned fileSizeKb,
                       unsigned backups, bool uniqueName)
    : LoggerFile(QFile::decodeName(name), level, fileSizeKb, backups, uniqueName)
{
}

LoggerFile::LoggerFile(FILE* opened, LoggerModel::LoggerModelLogLevel level) : LoggerObserver(level)
{
    mpCheckForSimpleLogging();
    if (!opened)
        return;
    auto device = std::make_unique<QFile>();
    device->open(opened, QIODevice::WriteOnly);
    open(std::move(device));
}

LoggerFile::LoggerFile(unsigned short port, LoggerModel::LoggerModelLogLevel level)
    : LoggerObserver(level), fileName(QStringLiteral("socket:%1").arg(port))
{
    mpCheckForSimpleLogging();
    auto device = std::make_unique<DatagramDevice>(port);
    device->open(QIODevice::WriteOnly);
    open(std::move(device));
}

LoggerFile::~LoggerFile() = default;

void LoggerFile::open(std::unique_ptr<QIODevice> device)
{
    file = std::move(device);
    stream = std::make_unique<QTextStream>(file.get());
    stream->setCodec("UTF-8"); // whatever the locale of a stage machine is
    // Closed by another thread than this one, the device would have the stream flushed here, past the mutex.
    QObject::disconnect(file.get(), &QIODevice::aboutToClose, nullptr, nullptr);
}

void LoggerFile::mpCheckForSimpleLogging()
{
    if (!QCoreApplication::instance())
        return;
    const QMutexLocker lock(&mutex);
    if (QCoreApplication::arguments().contains(QLatin1String("qv_simple_logging")))
        simpleLogging = true;
}

void LoggerFile::mpLogEvent(LoggerItem& item)
{
    if (!stream)
        return;
    const unsigned pid = mfMatchPID(item.id);
    if (pid == 0 && mfMatchFilter(item.id))
        return;
    const QMutexLocker lock(&mutex);
    if (item.level != LoggerModel::noLevel && item.level < mfGetLogLevel())
        return;
    renew();
    if (isWritable())
        writeLine(item, pid);
}

void LoggerFile::writeLine(const LoggerItem& item, unsigned pid)
{
    stream->resetStatus(); // a disk that was full may have room again
    *stream << levelWord(item.level);
    if (simpleLogging) {
        *stream << ": ";
    } else {
        if (pid != 0)
            *stream << "PID " << pid << " : ";
        else
            *stream << "\t: ";
        *stream << timeText(item.time) << '\t';
    }
    *stream << item.text << '\n';
    stream->flush();
}

bool LoggerFile::mfIsValid() const
{
    const QMutexLocker lock(&mutex);
    return isWritable();
}

bool LoggerFile::isWritable() const
{
    return file && file->isWritable();
}

QString LoggerFile::mfGetLogFileName() const
{
    return fileName;
}
