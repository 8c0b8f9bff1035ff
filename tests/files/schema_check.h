#pragma once

#include <QStringList>

/// The project's JSON Schema of database files, asked through Python's jsonschema.
namespace schema_check {

struct Answer
{
    QStringList verdicts; ///< "valid", or "invalid: " and what is wrong; one a file
    QString error;        ///< why nothing could be checked, else ""
};

[[nodiscard]] Answer ask(const QStringList& files);

} // namespace schema_check
