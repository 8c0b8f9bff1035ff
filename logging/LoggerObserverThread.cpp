#include "logging/LoggerObserverThread.h"

#include "logging/LoggerModel.h"

void LoggerObserverThread::stopThread()
{
    running = false;
}

void LoggerObserverThread::run()
{
    while (running) {
        // Terminated in the middle of a round it would leave the model locked for ever.
        setTerminationEnabled(false);
        LoggerModel::getInstance()->fireLogEntries();
        setTerminationEnabled(true);
        msleep(interval);
    }
}
