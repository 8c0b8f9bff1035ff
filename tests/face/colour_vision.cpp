#include "colour_vision.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace colour_vision {

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

// G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: A Physiologically-based Model for Simulation of Color
// Vision Deficiency. IEEE Transactions on Visualization and Computer Graphics 15 (6), 2009. Severity 1.0, for
// linear RGB.
constexpr Matrix protanopia{
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix deuteranopia{
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix tritanopia{
    {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};

// IEC 61966-2-1, D65.
constexpr Matrix toXyz{{{0.4124564, 0.3575761, 0.1804375},
                        {0.2126729, 0.7151522, 0.0721750},
                        {0.0193339, 0.1191920, 0.9503041}}};
constexpr Triple white{0.95047, 1.0, 1.08883};

Triple times(const Matrix& m, const Triple& v)
{
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row)
        result[row] = m[row][0] * v[0] + m[row][1] * v[1] + m[row][2] * v[2];
    return result;
}

double decoded(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

int encoded(double light)
{
    const double c = std::clamp(light, 0.0, 1.0);
    return static_cast<int>(
        std::lround(255 * (c <= 0.0031308 ? 12.92 * c : 1.055 * std::pow(c, 1 / 2.4) - 0.055)));
}

Triple linear(QRgb colour)
{
    return {decoded(qRed(colour)), decoded(qGreen(colour)), decoded(qBlue(colour))};
}

Triple lab(QRgb colour)
{
    const Triple xyz = times(toXyz, linear(colour));
    Triple f{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double t = xyz[i] / white[i];
        f[i] = t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

} // namespace

QRgb seenBy(Eyes eyes, QRgb colour)
{
    if (eyes == Eyes::all_cones)
        return colour;
    const Matrix& matrix = eyes == Eyes::protanopia     ? protanopia
                           : eyes == Eyes::deuteranopia ? deuteranopia
                                                        : tritanopia;
    const Triple seen = times(matrix, linear(colour));
    return qRgb(encoded(seen[0]), encoded(seen[1]), encoded(seen[2]));
}

double distance(QRgb one, QRgb other)
{
    const Triple a = lab(one), b = lab(other);
    return std::sqrt((a[0] - b[0]) * (a[0] - b[0]) + (a[1] - b[1]) * (a[1] - b[1]) +
                     (a[2] - b[2]) * (a[2] - b[2]));
}

} // namespace colour_vision
