#pragma once

#include <QThread>

#include <atomic>

/// Hands the model's entries out in rounds, as long as it runs.
class LoggerObserverThread : public QThread
{
public:
    /// Lets the round that is under way be the last one. Kept: a thread that was stopped runs no more rounds,
    /// however often it is started.
    void stopThread();

    std::atomic<unsigned> interval = 1000; ///< milliseconds from one round to the next
    std::atomic<bool> running = true;

protected:
    void run() override;
};
