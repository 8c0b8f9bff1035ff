#pragma once

#include "tools/pictures/icons.h"

#include <QImage>
#include <QtTest>

// The pictures as the program carries them. All are of the same format, with a pixel for each of the file's.

[[nodiscard]] inline QString denseName(const QString& path)
{
    return QString(path).replace(QLatin1Char('.'), QStringLiteral("@2x."));
}

[[nodiscard]] inline QImage committed(const QString& path)
{
    QImage image(QStringLiteral(":/Resources/") + path);
    image.setDevicePixelRatio(1.0);
    return image.convertToFormat(QImage::Format_ARGB32);
}

[[nodiscard]] inline QImage committedIcon(int size)
{
    return committed(iconPath(size));
}

/// One data row for each icon, in the column "size".
inline void eachIconSize()
{
    QTest::addColumn<int>("size");
    for (const int size : iconSizes)
        QTest::addRow("%d", size) << size;
}
