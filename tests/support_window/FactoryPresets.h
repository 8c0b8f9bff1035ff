#pragma once

#include "PresetModel.h"
#include "library/default_tables.h"

/// The model of a fresh start.
inline PresetModel factoryPresets()
{
    std::map<std::string, PresetModel::Names> catalogue;
    for (std::size_t block = 1; block < resetScaleData.size() - 1; ++block)
        for (int row = 0; row < numResetScales[block]; ++row) {
            const scale_data& scale = resetScaleData[block][static_cast<std::size_t>(row)];
            catalogue[scale.scale.toStdString()] = {scale.abbr1.toStdString(), scale.abbr2.toStdString()};
        }
    std::array<PresetModel::Record, PresetModel::count> records;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const header_data& row = resetHeaderData[i];
        records[i] = {{row.nameScenic1.toStdString(), row.nameScenic2.toStdString()},
                      row.nameTonic.toStdString(),
                      row.tonicOn,
                      row.tonicData.toStdString(),
                      row.scaleOn,
                      row.scaleData.toStdString(),
                      false};
    }
    return {catalogue, records};
}
