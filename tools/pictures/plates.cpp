#include "tools/pictures/plates.h"

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"

namespace plates {
namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

QRectF inside(const QRectF& area)
{
    return area.adjusted(1, 1, -1, -1);
}

void paintRaised(QPainter& p, const QRectF& plate, double radius, bool hover)
{
    const QColor rim = mix(palette::ink, palette::well, hover ? 0.65 : 0);
    const QColor top = mix(palette::display, Qt::white, hover ? 0.95 : 0.62);
    const QColor bottom = mix(palette::display, Qt::white, hover ? 0.55 : 0.02);
    brush::fillRound(p, plate.translated(0, 1), radius, withAlpha(palette::ink, hover ? 150 : 110));
    brush::fillRound(p, plate, radius, vertical(plate, mix(rim, palette::display, 0.28), rim));
    const QRectF face = inside(plate);
    brush::fillRound(p, face, radius - 1, vertical(face, top, bottom));
    const double bend = radius - 1;
    p.fillRect(QRectF(face.left() + bend, face.top(), face.width() - 2 * bend, 1), withAlpha(Qt::white, 190));
    p.fillRect(QRectF(face.left(), face.top() + bend, 1, face.height() - 2 * bend), withAlpha(Qt::white, 90));
    p.fillRect(QRectF(face.left() + bend, face.bottom() - 1, face.width() - 2 * bend, 1),
               withAlpha(palette::ink, 48));
}

void paintSunk(QPainter& p, const QRectF& plate, double radius)
{
    brush::fillRound(p, plate.translated(0, 1), radius, withAlpha(Qt::white, 150)); // lower lip
    brush::fillRound(p, plate, radius, vertical(plate, mix(palette::ink, palette::well, 0.85), palette::ink));
    const QRectF face = inside(plate);
    p.save();
    brush::clipRound(p, face, radius - 1);
    p.fillRect(face, vertical(face, mix(palette::ink, palette::well, 0.45), sunkGround()));
    brush::fadeDown(p, QRectF(face.topLeft(), QSizeF(face.width(), 6)), withAlpha(Qt::black, 120));
    p.fillRect(QRectF(face.left(), face.top(), 1, face.height()), withAlpha(Qt::black, 40));
    p.restore();
}

} // namespace

void paintPlate(QPainter& p, const QRectF& plate, double radius, Look look)
{
    if (look == Look::disabled)
        brush::strokeRound(p, plate, radius, withAlpha(palette::ink, 80));
    else if (look == Look::pressed)
        paintSunk(p, plate, radius);
    else
        paintRaised(p, plate, radius, look == Look::hover);
}

QColor sunkGround()
{
    return mix(palette::ink, palette::well, 0.12);
}

QColor paneGround()
{
    return mix(palette::display, Qt::white, 0.3);
}

void paintPane(QPainter& p, const QRectF& area, double radius, const QColor& ground)
{
    brush::fillRound(p, area.translated(0, 1), radius, withAlpha(Qt::white, 140)); // lower lip
    brush::fillRound(
        p, area, radius,
        vertical(area, mix(palette::ink, palette::display, 0.12), mix(palette::ink, palette::display, 0.48)));
    const QRectF floor = inside(area);
    p.save();
    brush::clipRound(p, floor, radius - 1);
    p.fillRect(floor, ground);
    brush::fadeDown(p, QRectF(floor.topLeft(), QSizeF(floor.width(), 3)), withAlpha(palette::ink, 100));
    p.fillRect(QRectF(floor.left(), floor.top(), 1, floor.height()), withAlpha(palette::ink, 26));
    p.restore();
}

} // namespace plates
