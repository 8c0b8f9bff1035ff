#pragma once

#include <QMimeData>
#include <QString>

/// What a drag of a scale carries.
struct scale_payload
{
    QString category;
    QString word;
    QString title;
    int index = -1; ///< in its category when the drag began
};

/// Packs the payload under a MIME type; the caller owns the result.
[[nodiscard]] QMimeData* packPayload(const scale_payload& payload, const QString& mimeType);
/// An index of -1 for data that is no whole payload.
[[nodiscard]] scale_payload unpackPayload(const QMimeData* data, const QString& mimeType);
