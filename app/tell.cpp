#include "app/tell.h"

#include "logging/LoggerModel.h"

#include <cstdio>

void tell(const QString& line)
{
    std::fprintf(stderr, "sorvane: %s\n", qUtf8Printable(line));
    LoggerModel::getInstance()->log(LoggerModel::error, line, 0);
}
