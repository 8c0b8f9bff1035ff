#pragma once

#include <QColor>
#include <QImage>

/// How well ink can be read on its ground: the contrast ratio of the Web Content Accessibility
/// Guidelines 2.1, from 1 for no difference to 21 for black on white. Colours are opaque sRGB.
namespace contrast {

/// What small text needs.
inline constexpr double readable = 4.5;

/// Relative luminance, 0 to 1.
[[nodiscard]] double luminance(QRgb colour);
[[nodiscard]] double ratio(QRgb one, QRgb other);

/// A colour of any opacity, laid on a ground.
[[nodiscard]] QRgb laidOn(const QColor& ink, QRgb ground);

/// What two pictures of one size tell of a text that stands in the first and not in the second.
struct Reading
{
    QRect box;            ///< of the text; empty if there is none
    QRgb ink = 0;         ///< its strongest pixel
    QRgb worstGround = 0; ///< the pixel of the box's ground that is nearest to the ink in luminance
    double worst = 0;     ///< their ratio
};

[[nodiscard]] Reading read(const QImage& withText, const QImage& withoutText);

/// The same for a text that is part of its picture. The box begins beside the letters; the ground is what
/// stands in the columns of the box that no stroke crosses or touches, between the letters and beside them.
[[nodiscard]] Reading readInPicture(const QImage& picture, const QRect& box);

} // namespace contrast
