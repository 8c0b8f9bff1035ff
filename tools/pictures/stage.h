#pragma once

#include <QRectF>

/// Where things stand on the 952 by 480 stage.
namespace stage {

inline constexpr int width = 952, height = 480;
inline constexpr QRectF display(207, 167, 532, 116);
inline constexpr QPointF tonicOctave(35, 185), scaleOctave(799, 185);

} // namespace stage
