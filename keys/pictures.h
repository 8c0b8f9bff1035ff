#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

/// The one door to the picture resources: decoded once, kept for the run, sharp on dense screens.
namespace pictures {

/// The picture at a ":/Resources/" path; its "@2x" neighbour where a screen asks for it. A missing picture is
/// null and is named once in the log.
[[nodiscard]] QPixmap load(const QString& path);

/// A part of a picture. The rectangle is in logical pixels, whatever the picture's device pixel ratio.
[[nodiscard]] QPixmap crop(const QPixmap& picture, const QRect& rectangle);

/// A copy of `base` with a logical rectangle of `top` drawn at its origin.
[[nodiscard]] QPixmap overlay(const QPixmap& base, const QPixmap& top, const QRect& rectangle);

/// A copy of a picture at an opacity of 0 to 1.
[[nodiscard]] QPixmap faded(const QPixmap& picture, qreal opacity);

/// A transparent picture of a logical size, as dense as load() would give it.
[[nodiscard]] QPixmap transparent(const QSize& size);

} // namespace pictures
