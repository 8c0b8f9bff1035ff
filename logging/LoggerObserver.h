#pragma once

#include "logging/LoggerModel.h"

#include <atomic>

/// Who is told of the log's entries. Threshold and masks may be changed by any thread.
class LoggerObserver
{
public:
    explicit LoggerObserver(LoggerModel::LoggerModelLogLevel level);
    LoggerObserver(const LoggerObserver&) = delete;
    LoggerObserver& operator=(const LoggerObserver&) = delete;

    /// Called for each entry with the model's locks held: it must neither log, nor throw, nor call the model,
    /// nor end the process.
    virtual void mpLogEvent(LoggerItem& item) = 0;
    /// Whether the id is of one of the two filter kinds and shares a bit with that kind's mask. An id of both
    /// kinds counts as one of the first.
    [[nodiscard]] virtual bool mfMatchFilter(unsigned long long id) const;
    /// The number of the thread or process in an id, else 0.
    [[nodiscard]] virtual unsigned mfMatchPID(unsigned long long id) const;
    virtual ~LoggerObserver();

    /// Adds the id's bits to the mask of its kind; an id of neither filter kind changes nothing.
    void mpSetFilter(unsigned long long id);
    void mpUnsetFilter(unsigned long long id);

    void mpSetLogLevel(LoggerModel::LoggerModelLogLevel level);
    [[nodiscard]] LoggerModel::LoggerModelLogLevel mfGetLogLevel() const;

private:
    std::atomic<LoggerModel::LoggerModelLogLevel> threshold;
    std::atomic<unsigned long long> firstFilter = 0;
    std::atomic<unsigned long long> secondFilter = 0;
};
