#include "logging/LoggerObserver.h"

#include "logging/LoggerItem.h"

LoggerObserver::LoggerObserver(LoggerModel::LoggerModelLogLevel level) : threshold(level) {}

LoggerObserver::~LoggerObserver() = default;

bool LoggerObserver::mfMatchFilter(unsigned long long id) const
{
    if (id & log_id::firstFilter)
        return id & firstFilter & log_id::value;
    if (id & log_id::secondFilter)
        return id & secondFilter & log_id::value;
    return false;
}

unsigned LoggerObserver::mfMatchPID(unsigned long long id) const
{
    return id & log_id::number ? static_cast<unsigned>(id & 0xffffffffULL) : 0;
}

void LoggerObserver::mpSetFilter(unsigned long long id)
{
    if (id & log_id::firstFilter)
        firstFilter |= id & log_id::value;
    else if (id & log_id::secondFilter)
        secondFilter |= id & log_id::value;
}

void LoggerObserver::mpUnsetFilter(unsigned long long id)
{
    if (id & log_id::firstFilter)
        firstFilter &= ~(id & log_id::value);
    else if (id & log_id::secondFilter)
        secondFilter &= ~(id & log_id::value);
}

void LoggerObserver::mpSetLogLevel(LoggerModel::LoggerModelLogLevel level)
{
    threshold = level;
}

LoggerModel::LoggerModelLogLevel LoggerObserver::mfGetLogLevel() const
{
    return threshold;
}
