#pragma once

#include "logging/LoggerModel.h"

#include <QString>
#include <QTime>

/// The kinds that the high bits of an entry's id tell, and its value.
namespace log_id {

inline constexpr unsigned long long firstFilter = 1ULL << 63;  ///< the value is a mask for the first filter
inline constexpr unsigned long long number = 1ULL << 61;       ///< the low 32 bits number a thread or process
inline constexpr unsigned long long secondFilter = 1ULL << 60; ///< the value is a mask for the second filter
inline constexpr unsigned long long value = secondFilter - 1;

} // namespace log_id

/// One entry of the log.
struct LoggerItem
{
    unsigned long long id = 0; ///< kind and value, see log_id
    LoggerModel::LoggerModelLogLevel level = LoggerModel::noLevel;
    QString text;
    QTime time;         ///< local time of day
    bool fired = false; ///< already handed to the observers
};
