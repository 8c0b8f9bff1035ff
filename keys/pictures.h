#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

class QCursor;
class QGraphicsScene;
class QPainter;

/// The one door to the picture resources: decoded once, kept for the run, sharp on dense screens.
namespace pictures {

// The choice

/// How many of a file's pixels make a logical one: 2 where the densest screen has a device pixel ratio
/// of 1.25 or more, else 1.
[[nodiscard]] int densityFor(qreal densestScreen);
/// The density of what is loaded now.
[[nodiscard]] int density();
/// True where a screen of that ratio does not show the pixels of the files as they are, or nearly so.
[[nodiscard]] bool needsSmoothing(qreal screen);

// Pictures

/// The picture at a ":/Resources/" path; its "@2x" neighbour where a screen asks for it. A missing picture is
/// null and is named once in the log.
[[nodiscard]] QPixmap load(const QString& path);

/// In logical pixels.
[[nodiscard]] QSize sizeOf(const QPixmap& picture);

/// A part of a picture. The rectangle is in logical pixels, whatever the picture's device pixel ratio.
[[nodiscard]] QPixmap crop(const QPixmap& picture, const QRect& rectangle);

/// A copy of `base` with a logical rectangle of `top` drawn at its origin.
[[nodiscard]] QPixmap overlay(const QPixmap& base, const QPixmap& top, const QRect& rectangle);

/// The same with all of `top`.
[[nodiscard]] QPixmap overlay(const QPixmap& base, const QPixmap& top);

/// A copy of a picture at an opacity of 0 to 1.
[[nodiscard]] QPixmap faded(const QPixmap& picture, qreal opacity);

/// A transparent picture of a logical size, as dense as load() would give it.
[[nodiscard]] QPixmap transparent(const QSize& size);

// On a screen of a device pixel ratio

/// A transparent picture of a logical size, rounded to whole pixels of that screen: its size in
/// logical ones rounds back to the same.
[[nodiscard]] QPixmap transparent(const QSize& size, qreal screen);

/// The picture in that screen's own pixels, for who draws it without smoothing.
[[nodiscard]] QPixmap fitted(const QPixmap& picture, qreal screen);

/// Lets a painter smooth pictures if its device asks for that.
void smooth(QPainter& painter);

/// Lets the pictures in a scene be smoothed if that screen asks for it, and only then.
void smooth(const QGraphicsScene& scene, qreal screen);

/// The picture as a pointer whose middle points.
[[nodiscard]] QCursor cursor(const QPixmap& picture, qreal screen);

} // namespace pictures
