#pragma once

#include <QJsonArray>
#include <QJsonObject>

/// One value of each type of JSON.
inline QList<QJsonValue> oneOfEachType()
{
    return {QJsonValue(), true, 17.5, QStringLiteral("text"), QJsonArray{1}, QJsonObject{{"a", 1}}};
}
