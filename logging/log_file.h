#pragma once

#include "logging/LoggerModel.h"

/// Begins the program's log: a file that is named by the program and the time of day, in the user's folder of
/// the program's data; 512 kB and five backups. Needs the application's names. Entries below the level are
/// not written. If the file cannot be opened a warning says so.
void initializeLogFile(LoggerModel::LoggerModelLogLevel level = LoggerModel::error);
