#include "logging/QtMessages.h"

#include "logging/LoggerModel.h"

#include <QScopedValueRollback>
#include <QtGlobal>

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace {

std::atomic<QtMessageHandler> before = nullptr;
std::atomic<int> living = 0;   // of QtMessages
std::atomic<int> underWay = 0; // messages on their way into the log
std::atomic<bool> isExiting = false;
std::mutex installing;
// A message that the log itself sets off is not for the log.
thread_local bool isLogging = false;
// A later handler may pass a message on to handOver, which has passed it on to that handler.
thread_local bool isPassingOn = false;

LoggerModel::LoggerModelLogLevel levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return LoggerModel::debug;
    case QtInfoMsg:
        return LoggerModel::info;
    case QtWarningMsg:
        return LoggerModel::warn;
    case QtCriticalMsg:
        return LoggerModel::error;
    case QtFatalMsg:
        return LoggerModel::fatal;
    }
    return LoggerModel::noLevel;
}

void toTheLog(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (isLogging)
        return;
    const QScopedValueRollback now(isLogging, true);
    ++underWay;
    if (living > 0 && !isExiting)
        LoggerModel::getInstance()->log(levelOf(type), qFormatLogMessage(type, context, text), 0);
    --underWay;
}

void handOver(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (isPassingOn)
        return;
    toTheLog(type, context, text);
    const QScopedValueRollback now(isPassingOn, true);
    if (const QtMessageHandler next = before)
        next(type, context, text);
}

/// Threads of the MIDI libraries may send messages until the end, while the model goes at the exit.
void endAtExit()
{
    isExiting = true;
    const int ofThisThread = isLogging ? 1 : 0;
    while (underWay > ofThisThread)
        std::this_thread::yield();
}

void install()
{
    const QtMessageHandler former = qInstallMessageHandler(handOver);
    if (former != handOver)
        before = former;
}

void uninstall()
{
    const QtMessageHandler present = qInstallMessageHandler(before);
    if (present != handOver)
        qInstallMessageHandler(present); // who came later, and passes messages on to handOver
}

} // namespace

QtMessages::QtMessages()
{
    // What handOver needs goes behind endAtExit(): the model, and Qt's pattern of messages.
    (void)LoggerModel::getInstance();
    (void)qFormatLogMessage(QtDebugMsg, {}, {});
    [[maybe_unused]] static const int once = std::atexit(endAtExit);
    const std::lock_guard lock(installing);
    if (++living == 1)
        install();
}

QtMessages::~QtMessages()
{
    const std::lock_guard lock(installing);
    if (--living == 0)
        uninstall();
}
