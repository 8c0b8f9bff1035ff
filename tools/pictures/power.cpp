// The power button in all its states. It hangs over a black key: its square above, a sleeve down the key.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

const QRectF square(3, 3, 13, 25);
const QRectF sleeve(4, 18, 11, 64);

void paintSleeve(QPainter& p, bool on, int alpha)
{
    QLinearGradient metal(sleeve.topLeft(), sleeve.topRight());
    metal.setColorAt(0, withAlpha(palette::metalEdge, alpha));
    metal.setColorAt(0.35, withAlpha(palette::metalLight, alpha));
    metal.setColorAt(1, withAlpha(mix(palette::metalEdge, Qt::black, 0.3), alpha));
    brush::fillRound(p, sleeve, 2, withAlpha(palette::gap, alpha));
    brush::fillRound(p, sleeve.adjusted(1, 1, -1, -1), 1.5, metal);
    const QRectF slot(8, 36, 3, 38);
    brush::fillRound(p, slot, 1.5, withAlpha(palette::well, alpha));
    if (on)
        brush::fillRound(p, slot.adjusted(0.75, 1, -0.75, -1), 0.75, withAlpha(palette::ember, alpha));
}

void paintSymbol(QPainter& p, const QColor& color)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap));
    const QRectF ring(6, 12, 7, 7);
    p.drawArc(ring, 125 * 16, 290 * 16);
    p.drawLine(QPointF(9.5, 10.5), QPointF(9.5, 15));
}

void paintButton(QPainter& p, bool on, int alpha = 255)
{
    paintSleeve(p, on, alpha);
    if (on)
        brush::glow(p, square, 3, palette::ember, 120);
    const QRectF frame = square.adjusted(-1.5, -1.5, 1.5, 1.5);
    brush::fillRound(p, frame, 4, withAlpha(palette::gap, alpha));
    const QColor top = on ? mix(palette::ember, palette::emberLight, 0.35) : palette::graphiteLight;
    const QColor bottom = on ? mix(palette::ember, Qt::black, 0.15) : palette::graphite;
    brush::fillRound(p, square, 3, vertical(square, withAlpha(top, alpha), withAlpha(bottom, alpha)));
    brush::strokeRound(p, square, 2.5, withAlpha(Qt::white, on ? 120 : 60));
    paintSymbol(p, on ? QColor(Qt::white) : withAlpha(palette::metalLight, alpha));
}

void paintPress(QPainter& p)
{
    brush::fillRound(p, square, 3, vertical(square, withAlpha(Qt::black, 130), withAlpha(Qt::black, 30)));
}

void paintHover(QPainter& p)
{
    brush::fillRound(p, square, 3, vertical(square, withAlpha(Qt::white, 70), withAlpha(Qt::white, 10)));
    brush::strokeRound(p, square, 2.5, withAlpha(Qt::white, 150));
}

void paintDrop(QPainter& p, bool on)
{
    for (int i = 0; i < 3; ++i)
        brush::fillRound(p, sleeve.adjusted(-3 + i, 2 + i, 4 - i, 0), 4, withAlpha(Qt::black, 40));
    paintButton(p, on);
    brush::strokeRound(p, square.adjusted(-2, -2, 2, 2), 4, withAlpha(Qt::white, 130));
}

void paintSwitchTarget(QPainter& p)
{
    brush::glow(p, sleeve.adjusted(-1, 0, 1, -2), 3, palette::presetActive, 170);
    paintButton(p, true);
    brush::strokeRound(p, square.adjusted(-2, -2, 2, 2), 4, palette::presetActive);
}

} // namespace

void addPowerPictures(std::vector<Picture>& table)
{
    const auto add = [&table](const char* name, std::function<void(QPainter&)> paint) {
        table.push_back(
            {QStringLiteral("Power/POWERBUTTON%1.png").arg(QLatin1String(name)), {19, 82}, std::move(paint)});
    };
    add("Off", [](QPainter& p) { paintButton(p, false); });
    add("On", [](QPainter& p) { paintButton(p, true); });
    add("Press", paintPress);
    add("Hover", paintHover);
    add("Off_Drop", [](QPainter& p) { paintDrop(p, false); });
    add("On_Drop", [](QPainter& p) { paintDrop(p, true); });
    add("On_Switch", paintSwitchTarget);
}
