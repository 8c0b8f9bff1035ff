// The one model, its ring, and how entries reach observers.

#include "logging/LoggerModel.h"

#include "logging/LocalClock.h"
#include "logging/LoggerItem.h"
#include "logging/LoggerObserver.h"
#include "logging/LoggerObserverThread.h"
#include "logging/LoggerStream.h"

#include <QScopedValueRollback>
#include <QThread>

#include <cstdlib>

namespace {

std::atomic<LoggerModel*> instance = nullptr;
std::mutex instanceLock;

// What an observer sets off may want to be logged in its turn, as a warning of Qt's does: it would wait for
// the locks that its own thread holds.
thread_local bool observersAreCalled = false;

unsigned long long currentThread()
{
    return (reinterpret_cast<quintptr>(QThread::currentThreadId()) & log_id::value) | log_id::number;
}

} // namespace

LoggerModel* LoggerModel::getInstance()
{
    if (LoggerModel* model = instance.load(std::memory_order_acquire))
        return model;
    const std::lock_guard lock(instanceLock);
    if (!instance) {
        instance = new LoggerModel; // deleteInstance() deletes it
        [[maybe_unused]] static const int once = std::atexit(deleteInstance);
    }
    return instance;
}

void LoggerModel::deleteInstance()
{
    if (!instance)
        return;
    // Before the model goes: the thread asks for it by getInstance().
    instance.load()->endThread();
    delete instance.exchange(nullptr);
}

LoggerModel::LoggerModel()
    : observerThread(std::make_unique<LoggerObserverThread>()), clock(std::make_unique<LocalClock>())
{
}

LoggerModel::~LoggerModel()
{
    removeObserver(nullptr, false); // behind who calls them
    qDeleteAll(items);
}

void LoggerModel::endThread()
{
    observerThread->stopThread();
    observerThread->terminate(); // it may have to sleep for long
    observerThread->wait();
}

void LoggerModel::registerObserver(LoggerObserver* observer)
{
    const std::unique_lock lock(observersLock);
    if (!observers.contains(observer))
        observers.append(observer);
}

void LoggerModel::removeObserver(LoggerObserver* observer, bool destroy)
{
    QList<LoggerObserver*> removed;
    {
        const std::unique_lock lock(observersLock);
        if (observer)
            observers.removeOne(observer);
        else
            removed.swap(observers);
    }
    if (destroy)
        qDeleteAll(removed);
}

void LoggerModel::setObserverUpdateInterval(unsigned intervalMs)
{
    observerThread->interval = intervalMs;
}

unsigned LoggerModel::getObserverUpdateInterval() const
{
    return observerThread->interval;
}

void LoggerModel::setQueueLength(unsigned length)
{
    if (length == 0)
        return;
    const std::unique_lock lock(itemsLock);
    queueLength = length;
    while (static_cast<unsigned>(items.size()) > queueLength)
        delete items.takeFirst();
}

unsigned LoggerModel::getQueueLength() const
{
    const std::shared_lock lock(itemsLock);
    return queueLength;
}

LoggerItem* LoggerModel::takeItem()
{
    return static_cast<unsigned>(items.size()) < queueLength ? new LoggerItem : items.takeFirst();
}

void LoggerModel::log(LoggerModelLogLevel level, const QString& text, unsigned long long id)
{
    if (observersAreCalled)
        return;
    const std::unique_lock lock(itemsLock);
    LoggerItem* item = takeItem();
    *item = {id ? id : currentThread(), level, text, clock->now(), false};
    items.append(item);
    if (mode != atOnce)
        return;
    const std::shared_lock observersHeld(observersLock);
    deliver(*item);
}

void LoggerModel::log(const QString& text, unsigned long long id)
{
    log(noLevel, text, id);
}

LoggerStream LoggerModel::log(LoggerModelLogLevel level, unsigned long long id)
{
    return {this, level, id};
}

void LoggerModel::deliver(LoggerItem& item)
{
    const QScopedValueRollback called(observersAreCalled, true);
    for (LoggerObserver* observer : qAsConst(observers))
        if (observer)
            observer->mpLogEvent(item);
    item.fired = true;
}

void LoggerModel::fireLogEntries()
{
    if (observersAreCalled)
        return;
    const std::lock_guard round(firing);
    const std::shared_lock lock(itemsLock);
    const std::shared_lock observersHeld(observersLock);
    for (LoggerItem* item : qAsConst(items))
        if (!item->fired)
            deliver(*item);
}

void LoggerModel::fireLogEntries(LoggerObserver* observer)
{
    if (observersAreCalled || !observer)
        return;
    const std::lock_guard round(firing);
    const std::shared_lock lock(itemsLock);
    const std::shared_lock observersHeld(observersLock);
    const QScopedValueRollback called(observersAreCalled, true);
    for (LoggerItem* item : qAsConst(items))
        observer->mpLogEvent(*item);
}

void LoggerModel::resetFired()
{
    const std::unique_lock lock(itemsLock);
    for (LoggerItem* item : qAsConst(items))
        item->fired = false;
}

void LoggerModel::setMode(LoggerModelMode newMode)
{
    if (newMode == mode)
        return;
    if (mode == atOnce) {
        observerThread->stopThread();
        if (!observerThread->wait(2UL * observerThread->interval))
            observerThread->terminate();
        fireLogEntries();
        mode = atOnce;
    } else {
        mode = fromThread;
        observerThread->start(QThread::InheritPriority);
    }
}

LoggerModel::LoggerModelMode LoggerModel::getMode() const
{
    return mode;
}
