#pragma once

#include <QImage>
#include <QString>

/// The sizes of the application's icon, in pixels.
inline constexpr int iconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

/// Where the icon of a size goes, below Resources/.
[[nodiscard]] QString iconPath(int size);

/// The drawing an icon of a size is rendered from: small icons have one of their own, with fewer details.
[[nodiscard]] QString iconSource(int size);

/// Renders the icon of a size from its drawing. Null if that cannot be read.
[[nodiscard]] QImage paintIcon(int size);
