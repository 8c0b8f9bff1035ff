#pragma once

#include "logging/LoggerItem.h"
#include "logging/LoggerObserver.h"

#include <QStringList>
#include <QVector>

#include <chrono>
#include <condition_variable>
#include <thread>

/// Keeps what it is told: the entries as they were then, and on which thread. Any thread may ask it.
class RecordingObserver : public LoggerObserver
{
public:
    explicit RecordingObserver(LoggerModel::LoggerModelLogLevel level = LoggerModel::all)
        : LoggerObserver(level)
    {
    }

    void mpLogEvent(LoggerItem& item) override
    {
        const std::lock_guard lock(mutex);
        told.append(item);
        lastThread = std::this_thread::get_id();
        changed.notify_all();
    }

    QVector<LoggerItem> entries() const
    {
        const std::lock_guard lock(mutex);
        return told;
    }

    QStringList texts() const
    {
        QStringList texts;
        for (const LoggerItem& item : entries())
            texts.append(item.text);
        return texts;
    }

    std::thread::id thread() const
    {
        const std::lock_guard lock(mutex);
        return lastThread;
    }

    /// Whether so many entries have come, within that time.
    bool waitFor(int count, std::chrono::milliseconds patience = std::chrono::seconds(20)) const
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, patience, [&] { return told.size() >= count; });
    }

private:
    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    QVector<LoggerItem> told;
    std::thread::id lastThread;
};
