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
[[nodiscard]] QLinearGradient horizontal(const QRectF& area, const QColor& left, const QColor& right);

/// Fills an area with a colour that fades out softly, away from the named edge.
void fadeDown(QPainter& painter, const QRectF& area, const QColor& color);
void fadeUp(QPainter& painter, const QRectF& area, const QColor& color);

void fillRound(QPainter& painter, const QRectF& area, double radius, const QBrush& fill);
void strokeRound(QPainter& painter, const QRectF& area, double radius, const QColor& color);
/// A recess in the case: dark ground, shadow under its upper edge, light on its lower lip.
void recess(QPainter& painter, const QRectF& area, double radius, const QColor& top, const QColor& bottom);
/// What a display's frame throws on the pane that lies deep in it.
void shadeOfFrame(QPainter& painter, const QRectF& pane);
/// Keeps what is painted from now on within an area with round corners.
void clipRound(QPainter& painter, const QRectF& area, double radius);
/// A soft light, or with a dark colour a soft shadow, around an area and outside it only.
void halo(QPainter& painter, const QRectF& area, double radius, double reach, const QColor& color);
/// Fine streaks along the length of brushed metal.
void brushed(QPainter& painter, const QRectF& area, int strength);
void screw(QPainter& painter, const QPointF& centre, double radius, double turn);

void text(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, bool bold,
          const QColor& color, int alignment = Qt::AlignCenter, double spacing = 0);
/// Words cut into the case: their lower edge catches the light.
void engraved(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, int alignment);

} // namespace brush
