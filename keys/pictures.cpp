#include "keys/pictures.h"

#include "logging/categories.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>

namespace pictures {
namespace {

using Cache = QHash<QString, QPixmap>;

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

bool isScreenDense()
{
    return qGuiApp->devicePixelRatio() > 1.0;
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

QRect scaled(const QRect& rectangle, qreal ratio)
{
    return QRectF(QPointF(rectangle.topLeft()) * ratio, QSizeF(rectangle.size()) * ratio).toRect();
}

} // namespace

QPixmap load(const QString& path)
{
    const bool dense = isScreenDense();
    const QString key = dense ? path + QStringLiteral("@2x") : path;
    const auto known = cache().constFind(key);
    if (known != cache().constEnd())
        return *known;
    return *cache().insert(key, dense ? decodeDense(path) : decode(path));
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
    const qreal ratio = isScreenDense() ? 2.0 : 1.0;
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

} // namespace pictures
