#pragma once

#include <QByteArray>
#include <QImage>

/// A picture of at most 127 colours, one of them transparent, as GIF data; empty for more colours.
/// Qt reads the format but does not write it.
[[nodiscard]] QByteArray gifData(const QImage& image);
