#include "logging/LoggerObserverThread.h"

#include "logging/LoggerModel.h"

void LoggerObserverThread::stopThread()
{
    running = false;
}

void LoggerObserverThread::run()
{
    // Terminated in the middle of a round it would leave the model locked for ever, and terminated while Qt
    // ends it, it would take the program along: only its sleep may be cut short.
    setTerminationEnabled(false);
    while (running) {
        LoggerModel::getInstance()->fireLogEntries();
        setTerminationEnabled(true);
        msleep(interval);
        setTerminationEnabled(false);
    }
}
