// Qt's library is not built for the race detector, which therefore takes what QMutex and QThread set in order
// for races. These stand before Qt's functions of the same names, call them, and tell it of the order.

#ifdef __SANITIZE_THREAD__

#include <QMutex>
#include <QThread>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

template <typename Function>
Function* ofQt(const char* mangledName)
{
    void* found = dlsym(RTLD_NEXT, mangledName);
    Q_ASSERT(found);
    return reinterpret_cast<Function*>(found);
}

} // namespace

void QMutex::lock() noexcept
{
    static auto* const lock = ofQt<void(QMutex*)>("_ZN6QMutex4lockEv");
    lock(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static auto* const unlock = ofQt<void(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    unlock(this);
}

void QThread::start(Priority priority)
{
    static auto* const start = ofQt<void(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    // Emitted by the thread itself, terminated or not, when it has run.
    if (!isRunning())
        connect(this, &QThread::finished, [] { __tsan_release(currentThread()); });
    start(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static auto* const wait = ofQt<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = wait(this, deadline);
    if (hasEnded)
        __tsan_acquire(this);
    return hasEnded;
}

bool QThread::wait(unsigned long time)
{
    return wait(time == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(qint64(time)));
}

#endif
