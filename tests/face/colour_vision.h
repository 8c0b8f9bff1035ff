#pragma once

#include <QColor>

/// How colours look to eyes that lack one kind of cone, and how far apart two colours look.
namespace colour_vision {

enum class Eyes { all_cones, protanopia, deuteranopia, tritanopia };

/// A colour as those eyes see it.
[[nodiscard]] QRgb seenBy(Eyes eyes, QRgb colour);

/// The distance of two colours in CIE L*a*b* under D65 (CIE 1976); 2 is hardly seen, 100 is black and white.
[[nodiscard]] double distance(QRgb one, QRgb other);

} // namespace colour_vision
