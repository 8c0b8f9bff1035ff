#pragma once

#include "logging/LoggerModel.h"

#include <QStringList>

/// What the tests of the model say all the time.
inline LoggerModel* model()
{
    return LoggerModel::getInstance();
}

/// Logs each at level info, with an id of no kind.
inline void logTexts(const QStringList& texts)
{
    for (const QString& text : texts)
        model()->log(LoggerModel::info, text, 1);
}
