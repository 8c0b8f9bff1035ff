#include "logging/categories.h"

Q_LOGGING_CATEGORY(lcApp, "sorvane.app")
Q_LOGGING_CATEGORY(lcKeys, "sorvane.keys")
Q_LOGGING_CATEGORY(lcHeaders, "sorvane.headers")
Q_LOGGING_CATEGORY(lcLibrary, "sorvane.library")
Q_LOGGING_CATEGORY(lcScreen, "sorvane.screen")
Q_LOGGING_CATEGORY(lcLogging, "sorvane.logging")
