#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

/// Helpers that all painters share. Rectangles are in logical pixels; light comes from the top.
namespace brush {

[[nodiscard]] QColor mix(const QColor& a, const QColor& b, double share);
[[nodiscard]] QColor withAlpha(const QColor& color, int alpha);
[[nodiscard]] QLinearGradient vertical(const QRectF& area, const QColor& top, const QColor& bottom);

void fillRound(QPainter& painter, const QRectF& area, double radius, const QBrush& fill);
void strokeRound(QPainter& painter, const QRectF& area, double radius, const QColor& color);
/// A recess in the case: dark ground, shadow under its upper edge, light on its lower lip.
void recess(QPainter& painter, const QRectF& area, double radius, const QColor& top, const QColor& bottom);
/// A soft light around an area.
void glow(QPainter& painter, const QRectF& area, double radius, const QColor& color, int alpha);
/// The head of a screw that holds a plate, seven pixels across.
void screw(QPainter& painter, const QPointF& centre);
void text(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, bool bold,
          const QColor& color, int alignment = Qt::AlignCenter, double spacing = 0);

} // namespace brush
