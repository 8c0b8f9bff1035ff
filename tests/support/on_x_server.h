#pragma once

#include "XServer.h"

#include <QGuiApplication>
#include <QtTest>

/// The main of a test that watches the program's window: on an X server of its own, and ended if it hangs.
template <typename Test>
int runOnXServer(int argc, char** argv, QSize screen = {952, 480})
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "120000"); // milliseconds
    XServer server(screen);
    if (!server.start())
        return 1;
    QGuiApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
