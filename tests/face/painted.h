#pragma once

#include <QImage>
#include <QRectF>

class QPixmap;

/// What a picture really shows.
namespace painted {

/// The pixels that are not transparent, in logical pixels. Kept for each picture.
[[nodiscard]] QRectF boundsOf(const QPixmap& picture);

/// The opacity, 0 to 255, at a place of a picture in logical pixels; 0 outside it.
[[nodiscard]] int alphaAt(const QPixmap& picture, QPointF place);

} // namespace painted
