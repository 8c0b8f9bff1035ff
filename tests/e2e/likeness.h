#pragma once

#include <QImage>

/// How like two pictures of one thing are to the eye.
namespace likeness {

/// The picture in another size, each pixel the mean of what it covers, or of what lies around it.
[[nodiscard]] QImage inSize(const QImage& picture, QSize size);

/// The mean difference of two pictures of one size, 0 to 255.
[[nodiscard]] double difference(const QImage& one, const QImage& other);

/// How much neighbouring pixels differ: the mean square of the steps of brightness, to the right and down.
[[nodiscard]] double contrast(const QImage& picture);

} // namespace likeness
