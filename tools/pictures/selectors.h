#pragma once

#include <QPainter>

/// An octave of selector keys as it looks with the power off.
void paintSleepingOctave(QPainter& painter, const QPointF& topLeft);
