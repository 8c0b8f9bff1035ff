#include "painted.h"

#include <QHash>
#include <QPixmap>

namespace painted {

namespace {

constexpr int seen = 24; // fainter is a breath of shade

const QImage& imageOf(const QPixmap& picture)
{
    static QHash<qint64, QImage> kept;
    QImage& image = kept[picture.cacheKey()];
    if (image.isNull())
        image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    return image;
}

QRectF measure(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > seen)
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

QRectF boundsOf(const QPixmap& picture)
{
    static QHash<qint64, QRectF> kept;
    const auto found = kept.constFind(picture.cacheKey());
    if (found != kept.constEnd())
        return *found;
    const QRectF box = measure(imageOf(picture));
    const qreal ratio = picture.devicePixelRatio();
    return kept[picture.cacheKey()] = QRectF(box.topLeft() / ratio, box.size() / ratio);
}

int alphaAt(const QPixmap& picture, QPointF place)
{
    if (picture.isNull() || place.x() < 0 || place.y() < 0)
        return 0;
    const QImage& image = imageOf(picture);
    const QPoint pixel(static_cast<int>(place.x() * picture.devicePixelRatio()),
                       static_cast<int>(place.y() * picture.devicePixelRatio()));
    return image.rect().contains(pixel) ? qAlpha(image.pixel(pixel)) : 0;
}

} // namespace painted
