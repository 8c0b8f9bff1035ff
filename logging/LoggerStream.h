#pragma once

#include "logging/LoggerModel.h"

#include <QTextStream>

/// A text that becomes an entry of the log when its stream goes. For one thread.
class LoggerStream : public QTextStream
{
public:
    LoggerStream(LoggerModel* target, LoggerModel::LoggerModelLogLevel entryLevel,
                 unsigned long long entryId);
    /// Shares model, level and id, not the text: it makes an entry of its own.
    LoggerStream(const LoggerStream& other);
    LoggerStream& operator=(const LoggerStream&) = delete;
    ~LoggerStream() override;

    /// Takes what a QTextStream takes.
    template <typename Value>
    LoggerStream& operator<<(const Value& value)
    {
        static_cast<QTextStream&>(*this) << value;
        return *this;
    }
    LoggerStream& operator<<(QTextStreamFunction manipulator);

private:
    LoggerModel* model;
    LoggerModel::LoggerModelLogLevel level;
    unsigned long long id;
    QString text;
};
