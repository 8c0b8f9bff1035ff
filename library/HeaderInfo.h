#pragma once

#include "headers/header_data.h"
#include "library/JsonInfo.h"

#include <QList>
#include <QPointF>

class QJsonArray;

/// The presets as JSON, one object each, with the places of their flags if wanted.
class HeaderInfo : public JsonInfo
{
public:
    explicit HeaderInfo(bool usePositions);

    void setData(const QList<header_data>& data) { records = data; }
    void getData(QList<header_data>& data) const { data = records; }
    /// In scene coordinates.
    void setPositions(const QList<QPointF>& places) { positions = places; }
    void getPositions(QList<QPointF>& places) const { places = positions; }

    /// Appends what the array holds to the records and, if they are used, to the positions.
    void read(const QJsonArray& array);
    /// Appends; a record without a position has none in its object.
    void write(QJsonArray& array) const;

private:
    const bool withPositions;
    QList<header_data> records;
    QList<QPointF> positions;
};
