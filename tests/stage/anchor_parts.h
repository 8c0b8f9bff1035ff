#pragma once

#include <QGraphicsPixmapItem>
#include <QImage>

// What anchors of both keyboards are made of.

constexpr int side = 1, pitchRole = 2, nameRole = 99; // their data

[[nodiscard]] inline QImage imageOf(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The i-th picture of an anchor, from below.
[[nodiscard]] inline const QGraphicsPixmapItem* part(const QGraphicsItem* anchor, int i)
{
    return qgraphicsitem_cast<const QGraphicsPixmapItem*>(anchor->childItems().value(i));
}
