// The words of the levels.

#include "logging/LoggerModel.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 7> words = {"all", "debug", "diag", "info", "warn", "error", "fatal"};

} // namespace

LoggerModel::LoggerModelLogLevel LoggerModel::logLevelFromString(const QString& word)
{
    const auto* found = std::find_if(words.begin(), words.end(),
                                     [&](const char* known) { return word == QLatin1String(known); });
    return found == words.end() ? noLevel : static_cast<LoggerModelLogLevel>(found - words.begin());
}

QString LoggerModel::logLevelToString(LoggerModelLogLevel level)
{
    return level < all || level > fatal ? QString()
                                        : QString::fromLatin1(words.at(static_cast<std::size_t>(level)));
}
