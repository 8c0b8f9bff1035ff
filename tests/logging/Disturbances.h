#pragma once

#include <atomic>
#include <functional>
#include <vector>

class LoggerFile;
class LoggerObserver;

/// What others do to the model, its observers and its file while eight threads log.
namespace traffic {

using Disturbance = std::function<void()>;

/// Lets all log so many entries, and each disturbance go on again and again on a thread of its own meanwhile.
void logAmid(int entriesOfEach, const std::vector<Disturbance>& disturbances);
/// What did not hold on a disturbance's thread, where Qt's own checks may not be used.
extern std::atomic<int> broken;

// Observers
/// One comes, goes, and is deleted at once.
void comeAndGo();
/// One comes that is deleted by whoever takes all off.
void comeToStay();
void takeAllOff();
[[nodiscard]] Disturbance changeObserver(LoggerObserver& observer);

// The model
void fire();
[[nodiscard]] Disturbance fireFor(LoggerObserver& observer);
void resetFired();
[[nodiscard]] Disturbance changeLengthUpTo(unsigned longest);
void changeInterval();
void readModel();
void flushByMode();
/// From either mode to the other. The thread is stopped at the first way back, for good.
void flipMode();

// The file
[[nodiscard]] Disturbance changeFile(LoggerFile& file);
[[nodiscard]] Disturbance readFile(LoggerFile& file);

} // namespace traffic
