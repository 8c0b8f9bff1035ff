#include "likeness.h"

#include <cstdlib>

namespace likeness {

QImage inSize(const QImage& picture, QSize size)
{
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

double difference(const QImage& one, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
            sum +=
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    return sum / 3 / one.width() / one.height();
}

double contrast(const QImage& picture)
{
    double sum = 0;
    const auto step = [&](int x, int y, int nextX, int nextY) {
        const double rise = qGray(picture.pixel(nextX, nextY)) - qGray(picture.pixel(x, y));
        sum += rise * rise;
    };
    for (int y = 1; y < picture.height(); ++y)
        for (int x = 1; x < picture.width(); ++x) {
            step(x - 1, y, x, y);
            step(x, y - 1, x, y);
        }
    return sum / picture.width() / picture.height();
}

} // namespace likeness
