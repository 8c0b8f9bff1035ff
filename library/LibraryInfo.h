#pragma once

#include "library/JsonInfo.h"
#include "library/scale_data.h"

#include <QMultiMap>

class QJsonArray;

/// The scales of the library as JSON: one object for each scale in a category; an empty category is one
/// object with empty strings.
class LibraryInfo : public JsonInfo
{
public:
    LibraryInfo();

    /// Category to scales, as DatabaseLibrary::getData() gives them.
    void setData(const QMap<QString, scale_data>& data);
    void getData(QMap<QString, scale_data>& data) const;

    /// Replaces the data by what the array holds; nothing is tested here.
    void read(const QJsonArray& array);
    /// Appends: categories by their names, in each the last scale first. Reading turns it round again.
    void write(QJsonArray& array) const;

private:
    QMultiMap<QString, scale_data> scales;
};
