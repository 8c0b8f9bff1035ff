#pragma once

#include <QImage>
#include <QPixmap>

/// A pixmap's pixels in one format, so that two can be compared.
[[nodiscard]] inline QImage imageOf(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}
