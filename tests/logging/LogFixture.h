#pragma once

#include "logging/LoggerItem.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <initializer_list>
#include <memory>

class LoggerFile;

/// What the tests of the log's files share.
namespace log_fixture {

/// Every level, and some that are none.
inline constexpr std::array<int, 10> levels = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 99};
/// The word in the line of an entry of that level.
[[nodiscard]] QByteArray wordOf(int level);
/// Tab, line break, letters of two, three and four bytes.
extern const QString everyKindOfText;

/// An entry of no thread, at 14:03:59.007.
[[nodiscard]] LoggerItem entry(const QString& text,
                               LoggerModel::LoggerModelLogLevel level = LoggerModel::error);
/// The line that an entry of level error gives.
[[nodiscard]] QByteArray errorLine(const QString& text);

/// A log with a limit in bytes.
[[nodiscard]] std::unique_ptr<LoggerFile> openedLog(const QString& path, unsigned bytes, unsigned backups);
/// Gives it an entry of level error.
void write(LoggerFile& log, const QString& text);

[[nodiscard]] QByteArray contentOf(const QString& path);
/// False if not all of it could be written.
bool put(const QString& path, const QByteArray& content);
/// The names in a folder, in order.
[[nodiscard]] QStringList namesIn(const QString& folder);

/// A test that could not be made, as the status of another process.
inline constexpr int skipped = 77;
/// Runs in another process of this one's state; its status, -1 if it crashed. What it changes for itself, as
/// limits, users and mounts, ends with it. It has a minute.
[[nodiscard]] int inAnotherProcess(const std::function<int()>& run);
/// The first of the rules that does not hold, from 1; 0 if they all do. The status of another process.
[[nodiscard]] int firstBreach(std::initializer_list<bool> rules);
[[nodiscard]] bool isRoot();
/// False if there is no right to.
[[nodiscard]] bool becomeNobody();

/// Collects Qt's messages as long as it lives, in place of showing them. One at a time.
class Messages
{
public:
    Messages();
    ~Messages();
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    /// "CATEGORY: TEXT" each.
    [[nodiscard]] static QStringList all();
    /// Those that are graver than debug lines.
    [[nodiscard]] static QStringList warnings();
};

} // namespace log_fixture
