#include "library/LibraryInfo.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

enum key_index { key_category, key_abbr1, key_abbr2, key_scale, key_title, key_body };

} // namespace

LibraryInfo::LibraryInfo()
    : JsonInfo({QStringLiteral("Category"), QStringLiteral("Abbr1"), QStringLiteral("Abbr2"),
                QStringLiteral("Scale"), QStringLiteral("Title"), QStringLiteral("LibBody")})
{
}

void LibraryInfo::setData(const QMap<QString, scale_data>& data)
{
    scales = data;
}

void LibraryInfo::getData(QMap<QString, scale_data>& data) const
{
    data = scales;
}

void LibraryInfo::read(const QJsonArray& array)
{
    scales.clear();
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        const auto text = [&](key_index key) { return object.value(keys.at(key)).toString(); };
        scales.insert(text(key_category),
                      {text(key_scale), text(key_abbr1), text(key_abbr2), text(key_title), text(key_body)});
    }
}

void LibraryInfo::write(QJsonArray& array) const
{
    for (auto entry = scales.begin(); entry != scales.end(); ++entry)
        array.append(QJsonObject{{keys.at(key_category), entry.key()},
                                 {keys.at(key_title), entry->title},
                                 {keys.at(key_abbr1), entry->abbr1},
                                 {keys.at(key_abbr2), entry->abbr2},
                                 {keys.at(key_scale), entry->scale},
                                 {keys.at(key_body), entry->libBody}});
}
