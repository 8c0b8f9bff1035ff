#pragma once

#include <QString>

/// Tells the user of what went wrong: one line on standard error, and an entry of the log.
void tell(const QString& line);
