#include "library/HeaderInfo.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

enum key_index {
    key_name1,
    key_name2,
    key_name_tonic,
    key_tonic_on,
    key_tonic,
    key_scale_on,
    key_scale,
    key_anchor_valid,
    key_anchor_pos,
    key_x,
    key_y
};

} // namespace

HeaderInfo::HeaderInfo(bool usePositions)
    : JsonInfo({QStringLiteral("NameScenic1"), QStringLiteral("NameScenic2"), QStringLiteral("NameTonic"),
                QStringLiteral("TonicOn"), QStringLiteral("TonicData"), QStringLiteral("ScaleOn"),
                QStringLiteral("ScaleData"), QStringLiteral("AnchorValid"), QStringLiteral("AnchorPos"),
                QStringLiteral("XPos"), QStringLiteral("YPos")}),
      withPositions(usePositions)
{
}

void HeaderInfo::read(const QJsonArray& array)
{
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        const auto member = [&](key_index key) { return object.value(keys.at(key)); };
        header_data record(member(key_name1).toString(), member(key_name2).toString(),
                           member(key_name_tonic).toString(), member(key_tonic_on).toBool(),
                           member(key_tonic).toString(), member(key_scale_on).toBool(),
                           member(key_scale).toString());
        record.anchorValid = member(key_anchor_valid).toBool();
        record.anchorPos = member(key_anchor_pos).toInt();
        records.append(record);
        if (withPositions)
            positions.append({member(key_x).toDouble(), member(key_y).toDouble()});
    }
}

void HeaderInfo::write(QJsonArray& array) const
{
    for (int i = 0; i < records.size(); ++i) {
        const header_data& record = records.at(i);
        QJsonObject object{
            {keys.at(key_name1), record.nameScenic1},    {keys.at(key_name2), record.nameScenic2},
            {keys.at(key_name_tonic), record.nameTonic}, {keys.at(key_tonic_on), record.tonicOn},
            {keys.at(key_tonic), record.tonicData},      {keys.at(key_scale_on), record.scaleOn},
            {keys.at(key_scale), record.scaleData},      {keys.at(key_anchor_valid), record.anchorValid},
            {keys.at(key_anchor_pos), record.anchorPos}};
        if (withPositions && i < positions.size()) {
            object.insert(keys.at(key_x), positions.at(i).x());
            object.insert(keys.at(key_y), positions.at(i).y());
        }
        array.append(object);
    }
}
