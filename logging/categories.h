#pragma once

#include <QLoggingCategory>

// One category a room. Debug lines are on by default; the program filters them unless it is asked for them.
Q_DECLARE_LOGGING_CATEGORY(lcApp)     // "sorvane.app"
Q_DECLARE_LOGGING_CATEGORY(lcKeys)    // "sorvane.keys"
Q_DECLARE_LOGGING_CATEGORY(lcHeaders) // "sorvane.headers"
Q_DECLARE_LOGGING_CATEGORY(lcLibrary) // "sorvane.library"
Q_DECLARE_LOGGING_CATEGORY(lcScreen)  // "sorvane.screen"
Q_DECLARE_LOGGING_CATEGORY(lcLogging) // "sorvane.logging"
