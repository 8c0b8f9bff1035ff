#include "logging/LoggerStream.h"

LoggerStream::LoggerStream(LoggerModel* target, LoggerModel::LoggerModelLogLevel entryLevel,
                           unsigned long long entryId)
    : model(target), level(entryLevel), id(entryId)
{
    setString(&text, QIODevice::WriteOnly);
}

LoggerStream::LoggerStream(const LoggerStream& other) : LoggerStream(other.model, other.level, other.id) {}

LoggerStream::~LoggerStream()
{
    flush();
    model->log(level, text, id);
    setString(nullptr); // the text goes before the stream does
}

LoggerStream& LoggerStream::operator<<(QTextStreamFunction manipulator)
{
    manipulator(*this);
    return *this;
}
