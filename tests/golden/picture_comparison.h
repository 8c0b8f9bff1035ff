#pragma once

#include <QImage>
#include <QString>

/// How far a picture of the window is from the one that it should be.
namespace picture_comparison {

constexpr int channelTolerance = 24;   ///< of 255; a pixel differs if any channel is off by more
constexpr double largestShare = 0.001; ///< of all pixels
constexpr double largestMean = 0.5;    ///< of 255, over all channels of all pixels
constexpr int spotSide = 16;           ///< logical pixels; spots overlap by half
constexpr double largestSpot = 0.012;  ///< of a spot's pixels: three of 256

struct Difference
{
    bool sameSize = false;
    double share = 1; ///< of all pixels: those that differ
    double mean = 255;
    double spot = 1; ///< the share of the worst spot: a changed digit is nothing in the whole window

    [[nodiscard]] bool isSmall() const;
    /// For whoever reads the log.
    [[nodiscard]] QString inWords() const;
};

/// Both are taken as opaque. `ratio` is device pixels for each logical one, at least 1. Pictures of different
/// sizes, and null ones, are as far apart as can be.
[[nodiscard]] Difference compare(const QImage& seen, const QImage& expected, int ratio);

/// The expected picture in pale grey with the differing pixels in magenta; what one of them lacks counts as
/// differing.
[[nodiscard]] QImage pictureOf(const QImage& seen, const QImage& expected);

} // namespace picture_comparison
