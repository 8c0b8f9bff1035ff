#pragma once

#include "logging/categories.h"

#include <QRegularExpression>
#include <QtTest>

/// Lets the debug lines of the headers through as long as it lives.
class HeaderLog
{
public:
    HeaderLog() { category.setEnabled(QtDebugMsg, true); }
    ~HeaderLog() { category.setEnabled(QtDebugMsg, before); }
    Q_DISABLE_COPY(HeaderLog)

private:
    QLoggingCategory& category = const_cast<QLoggingCategory&>(lcHeaders());
    const bool before = category.isDebugEnabled();
};

/// The test fails unless a debug line that matches is written.
inline void expectLine(const char* pattern)
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QLatin1String(pattern)));
}
