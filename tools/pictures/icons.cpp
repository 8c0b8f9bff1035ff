// The application's icon: drawings in Resources/Icons are its source, its pictures are rendered from them.

#include "tools/pictures/icons.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int largestSmall = 24; // above it the keys are wide enough for their details

} // namespace

QString iconPath(int size)
{
    return QStringLiteral("Icons/sorvane-%1.png").arg(size);
}

QString iconSource(int size)
{
    const QString name =
        size > largestSmall ? QStringLiteral("sorvane.svg") : QStringLiteral("sorvane-small.svg");
    return QStringLiteral(SORVANE_ICON_SOURCES "/") + name;
}

QImage paintIcon(int size)
{
    QSvgRenderer drawing(iconSource(size));
    if (!drawing.isValid())
        return {};
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
