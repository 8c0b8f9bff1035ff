#pragma once

#include "RealWindow.h"
#include "XServer.h"

#include <QtTest>

/// The main of a test that shows the window in its own process: on an X server of its own, and ended if it
/// hangs.
template <typename Test, typename Application>
int runInRealWindow(int argc, char** argv, const char* watchdogMs = "60000")
{
    qputenv("QTEST_FUNCTION_TIMEOUT", watchdogMs);
    XServer server(RealWindow::screenSize());
    if (!RealWindow::prepare(server))
        return 1;
    Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
