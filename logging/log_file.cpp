#include "logging/log_file.h"

#include "logging/LoggerFile.h"
#include "logging/LoggerStream.h"
#include "logging/categories.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

namespace {

constexpr unsigned fileSizeKb = 512;
constexpr unsigned backupFileCount = 5;

// Nobody deletes it, since it writes as long as the process lives; leak checks find it here.
[[gnu::used]] LoggerFile* programLog = nullptr;

QString logFolder()
{
    QString path = QStandardPaths::standardLocations(QStandardPaths::DataLocation).value(0);
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path;
}

void logStart()
{
    const QString line(86, QLatin1Char('-'));
    LoggerModel::getInstance()->log(LoggerModel::info, 0)
        << line << '\n'
        << "Sorvane app started : "
        << QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("ddMMMMyyyy")) << '\n'
        << line;
}

} // namespace

void initializeLogFile(LoggerModel::LoggerModelLogLevel level)
{
    const QString path = logFolder();
    qCDebug(lcLogging) << "Log file path " << path;
    QDir().mkpath(path);
    const QString name = QStringLiteral("%1.log").arg(QCoreApplication::applicationName());
    auto file = std::make_unique<LoggerFile>(QStringLiteral("%1%2").arg(path, name), level, fileSizeKb,
                                             backupFileCount, true);
    if (!file->mfIsValid())
        qCWarning(lcLogging).noquote() << "no log file can be written:" << file->mfGetLogFileName();
    programLog = file.release();
    LoggerModel::getInstance()->registerObserver(programLog);
    logStart();
}
