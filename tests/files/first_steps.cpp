#include "first_steps.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace first_steps {

const QString path = QStringLiteral(SORVANE_DOCS "/examples/first-steps.svdb");

const QJsonObject& root()
{
    static const QJsonObject object = [] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }();
    return object;
}

scale_data scaleOf(const char* title)
{
    const QJsonArray scales = root().value(QStringLiteral("SorvaneDefaultScalesArray")).toArray();
    for (const QJsonValue& value : scales) {
        const auto text = [&](const char* key) {
            return value.toObject().value(QLatin1String(key)).toString();
        };
        if (text("Title") == QLatin1String(title))
            return {text("Scale"), text("Abbr1"), text("Abbr2"), text("Title"), text("LibBody")};
    }
    return {};
}

} // namespace first_steps
