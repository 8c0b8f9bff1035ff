#pragma once

#include <QPainter>

/// What stands on the display and on the fields of dialogs: plates to press, and panes let into the ground.
namespace plates {

enum class Look { neutral, hover, pressed, disabled };

/// A plate to press. The row below it belongs to its shadow line, or to the lower lip of a sunk one.
void paintPlate(QPainter& painter, const QRectF& plate, double radius, Look look);
/// The lightest ground of a sunk plate: what light symbols stand on.
[[nodiscard]] QColor sunkGround();

/// A pane that lies deeper than the display. The row below it is its lower lip.
void paintPane(QPainter& painter, const QRectF& area, double radius, const QColor& ground);
/// The ground of panes: lighter than the display, so that ink reads well on it.
[[nodiscard]] QColor paneGround();

} // namespace plates
