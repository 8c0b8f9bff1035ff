// Words, keys and records that the tests of the headers share.

#include "header_records.h"

#include "library/default_tables.h"

header_data factoryRow(int index)
{
    return resetHeaderData.at(static_cast<std::size_t>(index));
}

header_data fullRecord()
{
    header_data data("a", "b", "E", true, "E", true, lydian);
    data.anchorValid = true;
    data.anchorPos = 51;
    return data;
}

header_data scaleRecord(const QString& word, bool scaleOn)
{
    return {"Old1", "Old2", "F#", true, "F#", scaleOn, word};
}

QString onOrOff(bool flag)
{
    return flag ? QStringLiteral("on") : QStringLiteral("off");
}

QStringList fields(const header_data& data)
{
    return {data.nameScenic1,
            data.nameScenic2,
            data.nameTonic,
            onOrOff(data.tonicOn),
            data.tonicData,
            onOrOff(data.scaleOn),
            data.scaleData,
            onOrOff(data.anchorValid),
            QString::number(data.anchorPos)};
}

QString asText(const header_data& data)
{
    return QStringLiteral("'%1'").arg(fields(data).join(QStringLiteral("' '")));
}

QStringList names(const HeaderItem* header)
{
    return {header->record.nameScenic1, header->record.nameScenic2};
}
