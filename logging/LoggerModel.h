#pragma once

#include <QList>
#include <QString>

#include <atomic>
#include <memory>
#include <mutex>
#include <shared_mutex>

class LocalClock;
class LoggerObserver;
class LoggerObserverThread;
class LoggerStream;
struct LoggerItem;

/// The log of the process: a ring of the latest entries, which are handed to observers. Any thread may call
/// it. No observer is called by two threads at once; what observers log themselves is dropped, and they must
/// call nothing else here, since the locks are held meanwhile.
class LoggerModel
{
public:
    /// How grave an entry is, in rising order. An entry without a level passes every threshold.
    enum LoggerModelLogLevel : int { noLevel = -1, all, debug, diag, info, warn, error, fatal };
    /// Who hands entries out: the observer thread, or the thread that logs.
    enum LoggerModelMode : int { fromThread = 0, atOnce = 1 };

    LoggerModel(const LoggerModel&) = delete;
    LoggerModel& operator=(const LoggerModel&) = delete;

    /// Makes the model at the first call; it goes at the process's exit. Never null.
    [[nodiscard]] static LoggerModel* getInstance();
    /// Deletes the model, not its observers. No other thread may use it then.
    static void deleteInstance();

    // Words: "all", "debug", "diag", "info", "warn", "error", "fatal" (LoggerModel_levels.cpp)
    /// noLevel for any other word.
    [[nodiscard]] static LoggerModelLogLevel logLevelFromString(const QString& word);
    /// "" for any other value.
    [[nodiscard]] static QString logLevelToString(LoggerModelLogLevel level);

    // Observers (LoggerModel.cpp)
    /// Appends it unless it is there already. It stays its maker's, who takes it off before it goes.
    void registerObserver(LoggerObserver* observer);
    /// Takes off that one, or with null all of them; only those are deleted, if `destroy` is true. Behind it
    /// nobody calls them any more.
    void removeObserver(LoggerObserver* observer, bool destroy);
    /// Milliseconds between two rounds of the observer thread.
    void setObserverUpdateInterval(unsigned intervalMs);
    [[nodiscard]] unsigned getObserverUpdateInterval() const;

    // Entries (LoggerModel.cpp)
    /// How many entries are kept; 0 is ignored. Fewer than there are drop the oldest at once.
    void setQueueLength(unsigned length);
    [[nodiscard]] unsigned getQueueLength() const;
    /// Adds an entry in place of the oldest, if the ring is full. An id of 0 means the current thread's.
    void log(LoggerModelLogLevel level, const QString& text, unsigned long long id);
    /// An entry without a level.
    void log(const QString& text, unsigned long long id);
    /// An entry that is made by what is written to the stream, at its end (LoggerStream.h).
    LoggerStream log(LoggerModelLogLevel level, unsigned long long id);

    // Handing out (LoggerModel.cpp)
    /// Hands the entries that have not been handed out to every observer.
    void fireLogEntries();
    /// Hands all entries to that observer and leaves them as they are. Null is ignored.
    void fireLogEntries(LoggerObserver* observer);
    /// Makes all entries count as not handed out.
    void resetFired();
    /// Kept: the present mode decides, not the wanted one. From atOnce any other only hands out what is left
    /// and stays; from fromThread any other starts the thread. So fromThread is never reached from the start.
    void setMode(LoggerModelMode newMode);
    [[nodiscard]] LoggerModelMode getMode() const;

private:
    friend struct LoggerProbe; // the tests' way into fromThread

    LoggerModel();
    ~LoggerModel();

    LoggerItem* takeItem();
    void deliver(LoggerItem& item);
    void endThread();

    QList<LoggerItem*> items; // owned; oldest first
    QList<LoggerObserver*> observers;
    unsigned queueLength = 512;
    // Of the standard library, since the race detectors know these.
    mutable std::shared_mutex itemsLock;
    std::shared_mutex observersLock; // taken after itemsLock
    std::unique_ptr<LoggerObserverThread> observerThread;
    std::atomic<LoggerModelMode> mode = atOnce;
    std::mutex firing; // one round at a time; taken before itemsLock
    std::unique_ptr<LocalClock> clock;
};
