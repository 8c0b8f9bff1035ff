#include "logging/QtMessages.h"

#include "logging/LoggerModel.h"

#include <QtGlobal>

namespace {

QtMessageHandler before = nullptr;

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

void handOver(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    LoggerModel::getInstance()->log(levelOf(type), qFormatLogMessage(type, context, text), 0);
    if (before)
        before(type, context, text);
}

} // namespace

QtMessages::QtMessages()
{
    before = qInstallMessageHandler(handOver);
}

QtMessages::~QtMessages()
{
    qInstallMessageHandler(before);
}
