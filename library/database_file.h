#pragma once

#include <QJsonObject>
#include <QString>

/// The database file as a file: what can be told before anything in it is believed, or written.
namespace database_file {

struct Content
{
    QJsonObject root;
    QString error; ///< in the user's words, "" if the root was read
};

/// Reads regular files of at most 16 MiB that hold one JSON object, nested at most 8 deep. Anything else
/// gives an error; nothing blocks.
[[nodiscard]] Content read(const QString& file);

/// Why no file could be written there, as far as it can be told before; else "".
[[nodiscard]] QString whyNotWritable(const QString& file);

} // namespace database_file
