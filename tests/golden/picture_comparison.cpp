#include "picture_comparison.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace picture_comparison {

namespace {

constexpr int channels = 3;
constexpr QRgb magenta = 0xFFFF00FF;

const QRgb* row(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

struct Distance
{
    int sum, most;
};

Distance distance(QRgb a, QRgb b)
{
    const int red = std::abs(qRed(a) - qRed(b)), green = std::abs(qGreen(a) - qGreen(b)),
              blue = std::abs(qBlue(a) - qBlue(b));
    return {red + green + blue, std::max({red, green, blue})};
}

/// Differing pixels by squares of half a spot's side.
class SpotCount
{
public:
    SpotCount(const QSize& size, int ratio)
        : side(std::max(1, spotSide / 2 * ratio)), columns(size.width() / side + 2),
          rows(size.height() / side + 2), counts(static_cast<std::size_t>(columns) * rows)
    {
    }
    void add(int x, int y) { ++at(x / side, y / side); }
    /// The worst spot's share of its four squares.
    [[nodiscard]] double worst()
    {
        int most = 0;
        for (int y = 0; y + 1 < rows; ++y)
            for (int x = 0; x + 1 < columns; ++x)
                most = std::max(most, at(x, y) + at(x + 1, y) + at(x, y + 1) + at(x + 1, y + 1));
        return most / (4.0 * side * side);
    }

private:
    int& at(int x, int y) { return counts[static_cast<std::size_t>(y) * columns + x]; }

    const int side, columns, rows;
    std::vector<int> counts;
};

QRgb paleGrey(QRgb pixel)
{
    const int grey = 128 + qGray(pixel) / 2;
    return qRgb(grey, grey, grey);
}

} // namespace

bool Difference::isSmall() const
{
    return sameSize && share <= largestShare && mean <= largestMean && spot <= largestSpot;
}

QString Difference::inWords() const
{
    if (!sameSize)
        return QStringLiteral("the sizes differ");
    return QStringLiteral("%1 % of the pixels differ (%2 % may), %3 % in one spot (%4 % may), %5 in the mean "
                          "(%6 may)")
        .arg(100 * share, 0, 'f', 3)
        .arg(100 * largestShare)
        .arg(100 * spot, 0, 'f', 1)
        .arg(100 * largestSpot)
        .arg(mean, 0, 'f', 3)
        .arg(largestMean);
}

Difference compare(const QImage& seen, const QImage& expected, int ratio)
{
    if (seen.isNull() || seen.size() != expected.size())
        return {};
    const QImage one = seen.convertToFormat(QImage::Format_RGB32),
                 other = expected.convertToFormat(QImage::Format_RGB32);
    SpotCount spots(one.size(), std::max(1, ratio));
    qint64 differing = 0, sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        const QRgb *a = row(one, y), *b = row(other, y);
        if (std::memcmp(a, b, sizeof(QRgb) * static_cast<std::size_t>(one.width())) == 0)
            continue;
        for (int x = 0; x < one.width(); ++x) {
            const Distance apart = distance(a[x], b[x]);
            sum += apart.sum;
            if (apart.most <= channelTolerance)
                continue;
            ++differing;
            spots.add(x, y);
        }
    }
    const double pixels = static_cast<double>(one.width()) * one.height();
    return {true, static_cast<double>(differing) / pixels, static_cast<double>(sum) / (channels * pixels),
            spots.worst()};
}

QImage pictureOf(const QImage& seen, const QImage& expected)
{
    const QImage one = seen.convertToFormat(QImage::Format_RGB32),
                 other = expected.convertToFormat(QImage::Format_RGB32);
    QImage picture(one.size().expandedTo(other.size()), QImage::Format_RGB32);
    picture.fill(magenta);
    const QRect common = one.rect() & other.rect();
    for (int y = 0; y < common.height(); ++y)
        for (int x = 0; x < common.width(); ++x)
            if (distance(one.pixel(x, y), other.pixel(x, y)).most <= channelTolerance)
                picture.setPixel(x, y, paleGrey(other.pixel(x, y)));
    return picture;
}

} // namespace picture_comparison
