#include "GoldenStore.h"

#include "picture_comparison.h"

#include <QDir>
#include <QImageWriter>
#include <QPainter>

namespace {

constexpr int smallest = 0, quickest = 100; // the writer's quality, which is its compression
const char* const kinds[] = {"seen", "expected", "difference"};

bool write(const QString& path, const QImage& image, int quality)
{
    QDir().mkpath(QFileInfo(path).path());
    QImageWriter writer(path, "png");
    writer.setQuality(quality);
    return writer.write(image);
}

/// Without alpha, density and resolution.
QImage plain(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_RGB32);
    result.setDevicePixelRatio(1);
    result.setDotsPerMeterX(0);
    result.setDotsPerMeterY(0);
    result.setOffset({});
    return result;
}

/// The smallest rectangle that holds all that differs; of equal pictures the first pixel.
QRect partThatDiffers(const QImage& one, const QImage& other)
{
    QRect part;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y))
                part |= QRect(x, y, 1, 1);
    return part.isNull() ? QRect(0, 0, 1, 1) : part;
}

} // namespace

GoldenStore::GoldenStore(const QString& pictures, const QString& evidence, int ratio)
    : folder(pictures), evidenceFolder(evidence),
      suffix(ratio == 1 ? QString() : QStringLiteral("@%1x").arg(ratio))
{
}

QString GoldenStore::nameOf(const QString& scene) const
{
    return scene + suffix + QStringLiteral(".png");
}

QString GoldenStore::pathOf(const QString& scene) const
{
    return folder + QLatin1Char('/') + nameOf(scene);
}

QString GoldenStore::evidencePath(const QString& scene, const char* kind) const
{
    return QStringLiteral("%1/%2%3.%4.png").arg(evidenceFolder, scene, suffix, QLatin1String(kind));
}

QImage GoldenStore::file(const QString& scene) const
{
    const QImage image(pathOf(scene));
    const QPoint place = image.offset();
    QImage result = plain(image);
    result.setOffset(place);
    return result;
}

QImage GoldenStore::golden(const QString& scene, const QString& base) const
{
    const QImage part = file(scene);
    if (base.isEmpty())
        return part;
    QImage whole = file(base);
    if (part.isNull() || whole.isNull())
        return {};
    QPainter painter(&whole);
    painter.drawImage(part.offset(), part);
    return whole;
}

bool GoldenStore::renew(const QString& scene, const QString& base, const QImage& picture) const
{
    QImage image = plain(picture);
    if (!base.isEmpty()) {
        const QImage below = file(base);
        if (below.size() != image.size())
            return false;
        const QRect part = partThatDiffers(image, below);
        image = image.copy(part);
        image.setOffset(part.topLeft());
    }
    return write(pathOf(scene), image, smallest);
}

bool GoldenStore::show(const QString& scene, const QImage& picture) const
{
    return write(QStringLiteral("%1/whole/%2").arg(evidenceFolder, nameOf(scene)), plain(picture), quickest);
}

QStringList GoldenStore::strangers(const QStringList& scenes) const
{
    QStringList rest;
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString& file : files) {
        const bool dense = file.contains(QLatin1Char('@'));
        if (dense == !suffix.isEmpty())
            rest << file;
    }
    for (const QString& scene : scenes)
        rest.removeOne(nameOf(scene));
    return rest;
}

bool GoldenStore::remove(const QString& picture) const
{
    return QFile::remove(folder + QLatin1Char('/') + picture);
}

QString GoldenStore::keepEvidence(const QString& scene, const QImage& seen, const QImage& expected) const
{
    const QImage images[] = {seen, expected, picture_comparison::pictureOf(seen, expected)};
    for (int i = 0; i < 3; ++i)
        if (!images[i].isNull() && !write(evidencePath(scene, kinds[i]), images[i], quickest))
            return QStringLiteral("(nothing could be written to %1)").arg(evidenceFolder);
    return evidenceFolder + QLatin1Char('/') + scene + suffix;
}

void GoldenStore::clearEvidence(const QString& scene) const
{
    for (const char* kind : kinds)
        QFile::remove(evidencePath(scene, kind));
}
