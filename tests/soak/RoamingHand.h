#pragma once

#include "ChildProcess.h"

#include <QList>
#include <QStringList>

#include <memory>

/// A hand that works through its gestures while the caller does other things. A gesture is what xdotool
/// takes.
class RoamingHand
{
public:
    ~RoamingHand();

    void add(const QStringList& gesture) { ahead.append(gesture); }
    void add(const QList<QStringList>& gestures) { ahead.append(gestures); }
    /// Begins the next gesture if the last one is over. Never waits.
    void step();
    [[nodiscard]] bool isIdle() const { return !process && ahead.isEmpty(); }
    [[nodiscard]] int done() const { return doneCount; }
    [[nodiscard]] int failed() const { return failedCount; }
    /// Whether the last gesture did what it should: a search can find nothing.
    [[nodiscard]] bool succeeded() const { return lastSucceeded; }
    void giveUp();

private:
    std::unique_ptr<ChildProcess> process;
    QList<QStringList> ahead;
    int doneCount = 0, failedCount = 0;
    bool lastSucceeded = true;
};
