#pragma once

#include "logging/categories.h"

#include <QRegularExpression>
#include <QtTest>

/// Lets the debug lines of a room, the headers unless told otherwise, through as long as it lives.
class HeaderLog
{
public:
    explicit HeaderLog(const QLoggingCategory& room = lcHeaders())
        : category(const_cast<QLoggingCategory&>(room))
    {
        category.setEnabled(QtDebugMsg, true);
    }
    ~HeaderLog() { category.setEnabled(QtDebugMsg, before); }
    Q_DISABLE_COPY(HeaderLog)

private:
    QLoggingCategory& category;
    const bool before = category.isDebugEnabled();
};

/// The test fails unless a debug line that matches is written.
inline void expectLine(const char* pattern)
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QLatin1String(pattern)));
}
