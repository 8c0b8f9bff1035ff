#pragma once

#include <QRectF>

/// Where things stand on the 952 by 480 stage.
namespace stage {

inline constexpr int width = 952, height = 480;

// Keyboards, with a cheek at each end, and the rails along them; the rails reach farther to the right.
inline constexpr QRectF outKeys(35, 48, 884, 99), inKeys(35, 348, 884, 99);
inline constexpr double wellLeft = 27, wellRight = 926, railRight = 934;
inline constexpr QRectF outRail(27, 22, 907, 26), headerGround(27, 298, 907, 50), inRail(27, 447, 907, 33);

inline constexpr QRectF display(207, 167, 532, 116);
// The paper note, before it is turned about its upper left corner.
inline constexpr QRectF note(721, 184, 66, 60);
inline constexpr double noteAngle = 8; // degrees
inline constexpr QRectF leftPanel(27, 161, 170, 116), rightPanel(749, 161, 177, 116);
inline constexpr QRectF tonicOctave(35, 185, 119, 60), scaleOctave(799, 185, 119, 60);

} // namespace stage
