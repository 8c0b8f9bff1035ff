#include "keys/pictures.h"

#include "logging/categories.h"

#include <QCursor>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>

namespace pictures {
namespace {

using Cache = QHash<QString, QPixmap>;

// Below it a 1x file that is enlarged a little shows more than a 2x file that is nearly halved.
constexpr qreal denseFrom = 1.25;
// A screen that measures itself in whole millimetres comes so near to the ratio that is meant.
constexpr qreal near = 0.01;

Cache& cache()
{
    static Cache pictures;
    // Pixmaps must not outlive the application object.
    [[maybe_unused]] static const bool registered = [] {
        qAddPostRoutine([] { cache().clear(); });
        return true;
    }();
    return pictures;
}

QString denseNeighbour(const QString& path)
{
    const QFileInfo file(path);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral("@2x.") + file.suffix();
}

QPixmap decode(const QString& path)
{
    QPixmap picture(path);
    if (picture.isNull())
        qCWarning(lcKeys, "picture missing: %s", qUtf8Printable(path));
    return picture;
}

QPixmap decodeDense(const QString& path)
{
    const QString dense = denseNeighbour(path);
    if (!QFile::exists(dense))
        return decode(path);
    QPixmap picture = decode(dense);
    picture.setDevicePixelRatio(2.0);
    return picture;
}

QPixmap blank(const QSize& pixels, qreal ratio)
{
    QPixmap picture(pixels);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

QRect scaled(const QRect& rectangle, qreal ratio)
{
    return QRectF(QPointF(rectangle.topLeft()) * ratio, QSizeF(rectangle.size()) * ratio).toRect();
}

} // namespace

int densityFor(qreal densestScreen)
{
    return densestScreen < denseFrom - near ? 1 : 2;
}

int density()
{
    return densityFor(qGuiApp->devicePixelRatio());
}

bool needsSmoothing(qreal screen)
{
    return qAbs(screen - density()) > near;
}

QPixmap load(const QString& path)
{
    const bool dense = density() > 1;
    const QString key = dense ? path + QStringLiteral("@2x") : path;
    const auto known = cache().constFind(key);
    if (known != cache().constEnd())
        return *known;
    return *cache().insert(key, dense ? decodeDense(path) : decode(path));
}

QSize sizeOf(const QPixmap& picture)
{
    return picture.size() / picture.devicePixelRatio();
}

QPixmap crop(const QPixmap& picture, const QRect& rectangle)
{
    return picture.copy(scaled(rectangle, picture.devicePixelRatio()));
}

QPixmap overlay(const QPixmap& base, const QPixmap& top, const QRect& rectangle)
{
    if (base.isNull())
        return base;
    QPixmap result = base;
    QPainter painter(&result);
    painter.drawPixmap(QPointF(0, 0), top, QRectF(scaled(rectangle, top.devicePixelRatio())));
    return result;
}

QPixmap overlay(const QPixmap& base, const QPixmap& top)
{
    return overlay(base, top, QRect(QPoint(), sizeOf(top)));
}

QPixmap faded(const QPixmap& picture, qreal opacity)
{
    QPixmap result = picture;
    if (picture.isNull())
        return result;
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(opacity);
    painter.drawPixmap(QPointF(0, 0), picture);
    return result;
}

QPixmap transparent(const QSize& size)
{
    return transparent(size, density());
}

QPixmap transparent(const QSize& size, qreal screen)
{
    return blank((QSizeF(size) * screen).toSize(), screen);
}

QPixmap fitted(const QPixmap& picture, qreal screen)
{
    const qreal own = picture.devicePixelRatio();
    if (picture.isNull() || qAbs(own - screen) <= near)
        return picture;
    QPixmap result = blank((QSizeF(picture.size()) * screen / own).toSize(), screen);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QPointF(0, 0), picture);
    return result;
}

void smooth(QPainter& painter)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          needsSmoothing(painter.device()->devicePixelRatioF()));
}

void smooth(const QGraphicsScene& scene, qreal screen)
{
    const auto mode = needsSmoothing(screen) ? Qt::SmoothTransformation : Qt::FastTransformation;
    const QList<QGraphicsItem*> items = scene.items();
    for (QGraphicsItem* item : items)
        if (auto* picture = dynamic_cast<QGraphicsPixmapItem*>(item))
            picture->setTransformationMode(mode);
}

QCursor cursor(const QPixmap& picture, qreal screen)
{
    QPixmap shown = fitted(picture, screen);
    // X11 takes a pointer's pixels as they come, and counts the place that points in them.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        shown.setDevicePixelRatio(1.0);
    return QCursor(shown, -1, -1);
}

} // namespace pictures
