#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

/// How far two pictures are apart to the eye: as they look on black and on white, so that a step of rounding
/// in what is all but transparent counts for what is seen of it.
namespace picture_distance {

struct Distance
{
    int worst = 0;   ///< of any channel of any pixel, 0 to 255
    double mean = 0; ///< of all channels of all pixels, 0 to 255
};

/// The picture as it looks on a ground; opaque.
[[nodiscard]] inline QImage onGround(const QImage& picture, const QColor& ground)
{
    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(ground);
    QPainter painter(&result);
    painter.drawImage(0, 0, picture);
    return result;
}

/// Of two opaque pictures of one size.
[[nodiscard]] inline Distance betweenOpaque(const QImage& a, const QImage& b)
{
    Distance result;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            const int red = std::abs(qRed(one) - qRed(other)), green = std::abs(qGreen(one) - qGreen(other)),
                      blue = std::abs(qBlue(one) - qBlue(other));
            result.worst = std::max({result.worst, red, green, blue});
            sum += red + green + blue;
        }
    result.mean = sum / 3 / std::max(1, a.width() * a.height());
    return result;
}

/// The larger of the distances on black and on white. Device pixel ratios are left out of account.
[[nodiscard]] inline Distance between(QImage a, QImage b)
{
    a.setDevicePixelRatio(1);
    b.setDevicePixelRatio(1);
    const Distance dark = betweenOpaque(onGround(a, Qt::black), onGround(b, Qt::black));
    const Distance light = betweenOpaque(onGround(a, Qt::white), onGround(b, Qt::white));
    return {std::max(dark.worst, light.worst), std::max(dark.mean, light.mean)};
}

/// True if nobody tells them apart: letters may be smoothed otherwise by another version of the font library,
/// but no colour may be another one.
[[nodiscard]] inline bool looksTheSame(const Distance& distance)
{
    return distance.worst <= 24 && distance.mean <= 0.3;
}

} // namespace picture_distance
