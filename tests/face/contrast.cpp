#include "contrast.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace contrast {

namespace {

constexpr int differs = 6;        // of 255: less is rounding
constexpr double unlikeInk = 1.3; // a ratio to the ground that a stroke's edge hardly keeps below

double linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

bool same(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) < differs && std::abs(qGreen(a) - qGreen(b)) < differs &&
           std::abs(qBlue(a) - qBlue(b)) < differs;
}

void noteGround(Reading& reading, QRgb ground)
{
    const double here = ratio(reading.ink, ground);
    if (reading.worst > 0 && here >= reading.worst)
        return;
    reading.worst = here;
    reading.worstGround = ground;
}

} // namespace

double luminance(QRgb colour)
{
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double ratio(QRgb one, QRgb other)
{
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb laidOn(const QColor& ink, QRgb ground)
{
    const auto mix = [&ink](int top, int below) {
        return static_cast<int>(std::lround(below + (top - below) * ink.alphaF()));
    };
    return qRgb(mix(ink.red(), qRed(ground)), mix(ink.green(), qGreen(ground)),
                mix(ink.blue(), qBlue(ground)));
}

Reading read(const QImage& withText, const QImage& withoutText)
{
    Reading reading;
    double strongest = 1;
    for (int y = 0; y < withText.height(); ++y)
        for (int x = 0; x < withText.width(); ++x) {
            const QRgb ink = withText.pixel(x, y), ground = withoutText.pixel(x, y);
            if (same(ink, ground))
                continue;
            reading.box |= QRect(x, y, 1, 1);
            const double here = ratio(ink, ground);
            if (here > strongest) {
                strongest = here;
                reading.ink = ink;
            }
        }
    for (int y = reading.box.top(); y <= reading.box.bottom(); ++y)
        for (int x = reading.box.left(); x <= reading.box.right(); ++x)
            noteGround(reading, withoutText.pixel(x, y));
    return reading;
}

Reading readInPicture(const QImage& picture, const QRect& box)
{
    Reading reading;
    double strongest = 1;
    std::vector<bool> bare(static_cast<std::size_t>(box.width()), true); // nor next to a stroke
    for (int y = box.top(); y <= box.bottom(); ++y) {
        const QRgb common = picture.pixel(box.left(), y);
        for (int x = 0; x < box.width(); ++x) {
            const QRgb pixel = picture.pixel(box.left() + x, y);
            const double here = ratio(pixel, common);
            for (int column = x - 1; here >= unlikeInk && column <= x + 1; ++column)
                if (column >= 0 && column < box.width())
                    bare[static_cast<std::size_t>(column)] = false;
            if (here <= strongest)
                continue;
            strongest = here;
            reading.ink = pixel;
            reading.box = box;
        }
    }
    for (int x = 0; x < box.width(); ++x)
        for (int y = box.top(); bare[static_cast<std::size_t>(x)] && y <= box.bottom(); ++y)
            noteGround(reading, picture.pixel(box.left() + x, y));
    return reading;
}

} // namespace contrast
