#include "screen/scale_payload.h"

#include <QDataStream>
#include <QVariant>

QMimeData* packPayload(const scale_payload& payload, const QString& mimeType)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QVariant(payload.category) << QVariant(payload.word) << QVariant(payload.title)
           << payload.index;
    auto* data = new QMimeData;
    data->setData(mimeType, bytes);
    return data;
}

scale_payload unpackPayload(const QMimeData* data, const QString& mimeType)
{
    if (!data || !data->hasFormat(mimeType))
        return {};
    QByteArray bytes = data->data(mimeType);
    QDataStream stream(&bytes, QIODevice::ReadOnly);
    QVariant category, word, title;
    int index = -1;
    stream >> category >> word >> title >> index;
    if (stream.status() != QDataStream::Ok)
        return {};
    return {category.toString(), word.toString(), title.toString(), index};
}
