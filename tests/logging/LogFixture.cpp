#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QFile>
#include <QMutex>

#include <algorithm>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;
constexpr unsigned secondsOfAProcess = 60;

QMutex collecting; // any thread may have something to say
QStringList collected, collectedWarnings;
QtMessageHandler before = nullptr;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QMutexLocker lock(&collecting);
    const QString message = QStringLiteral("%1: %2").arg(QString::fromUtf8(context.category), text);
    collected.append(message);
    if (type != QtDebugMsg)
        collectedWarnings.append(message);
}

} // namespace

namespace log_fixture {

const QString everyKindOfText =
    QStringLiteral("tab\there\nsecond line \u00e4\u00f6\u00fc\u00df \u20ac \U0001F3B9");

QByteArray wordOf(int level)
{
    constexpr std::array<const char*, 7> words = {"All", "Debug", "Diag", "Info", "Warn", "Error", "Fatal"};
    return level >= 0 && level < int(words.size()) ? words.at(std::size_t(level)) : "Unknown";
}

LoggerItem entry(const QString& text, LoggerModel::LoggerModelLogLevel level)
{
    constexpr unsigned long long ofNoKind = 1;
    return {ofNoKind, level, text, QTime(14, 3, 59, 7), false};
}

QByteArray errorLine(const QString& text)
{
    return "Error\t\t: 14:03:59.007\t" + text.toUtf8() + '\n';
}

std::unique_ptr<LoggerFile> openedLog(const QString& path, unsigned bytes, unsigned backups)
{
    auto log = std::make_unique<LoggerFile>(path, LoggerModel::error, 0, backups, false);
    log->mpSetFileSize(bytes);
    return log;
}

void write(LoggerFile& log, const QString& text)
{
    LoggerItem item = entry(text);
    log.mpLogEvent(item);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

int inAnotherProcess(const std::function<int()>& run)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        alarm(secondsOfAProcess);
        _exit(run());
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int firstBreach(std::initializer_list<bool> rules)
{
    const auto* breach = std::find(rules.begin(), rules.end(), false);
    return breach == rules.end() ? 0 : int(breach - rules.begin()) + 1;
}

bool isRoot()
{
    return geteuid() == 0;
}

bool becomeNobody()
{
    return setresgid(nobody, nobody, nobody) == 0 && setresuid(nobody, nobody, nobody) == 0;
}

Messages::Messages()
{
    collected.clear();
    collectedWarnings.clear();
    before = qInstallMessageHandler(collect);
}

Messages::~Messages()
{
    qInstallMessageHandler(before);
}

QStringList Messages::all()
{
    const QMutexLocker lock(&collecting);
    return collected;
}

QStringList Messages::warnings()
{
    const QMutexLocker lock(&collecting);
    return collectedWarnings;
}

} // namespace log_fixture
