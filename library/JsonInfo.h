#pragma once

#include <QStringList>

#include <utility>

/// What turns a list of records into a JSON array and back. Nothing fails: a missing key or a wrong type
/// reads as "", false or 0.
class JsonInfo
{
public:
    JsonInfo(const JsonInfo&) = delete;
    JsonInfo& operator=(const JsonInfo&) = delete;
    virtual ~JsonInfo() = default;

    const QStringList keys; ///< the names in each object

protected:
    explicit JsonInfo(QStringList names) : keys(std::move(names)) {}
};
