// The power button in all its states: a lens in a frame above, and the clip that holds it on a black key.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

const QRectF square(3, 3, 13, 25); // what the pointer presses
const QRectF clip(4, 26, 11, 42);  // down the black key
const QPointF symbol(9.5, 13);     // middle of the ring
const QRectF lamp(8, 56, 3, 6);    // tells the state where a finger hides the lens

void paintClip(QPainter& p, bool on)
{
    brush::fillRound(p, clip, 3, palette::gap);
    QLinearGradient steel(clip.topLeft(), clip.topRight());
    steel.setColorAt(0, palette::metalEdge);
    steel.setColorAt(0.3, palette::metalLight);
    steel.setColorAt(0.6, palette::metal);
    steel.setColorAt(1, mix(palette::metalEdge, Qt::black, 0.25));
    const QRectF face = clip.adjusted(1, 0, -1, -1);
    brush::fillRound(p, face, 2, steel);
    for (const double y : {34.0, 37.0, 40.0, 43.0, 46.0, 49.0}) { // ribs to drag it by
        p.fillRect(QRectF(6, y, 7, 1), withAlpha(Qt::black, 90));
        p.fillRect(QRectF(6, y + 1, 7, 1), withAlpha(Qt::white, 80));
    }
    p.fillRect(QRectF(6, face.bottom() - 2, 7, 1), withAlpha(Qt::white, 90));
    brush::fadeDown(p, QRectF(5, 28, 9, 6), withAlpha(Qt::black, 150));
    brush::fillRound(p, lamp.adjusted(-1, -1, 1, 1), 2, withAlpha(Qt::black, 150));
    brush::fillRound(p, lamp, 1, on ? palette::emberLight : mix(palette::emberDark, palette::gap, 0.6));
    if (on)
        brush::halo(p, lamp, 1, 2, withAlpha(palette::ember, 200));
}

void paintSymbol(QPainter& p, const QColor& color)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(QRectF(symbol.x() - 3.5, symbol.y() - 3.5, 7, 7), 125 * 16, 290 * 16);
    p.fillRect(QRectF(symbol.x() - 0.5, symbol.y() - 5.5, 1, 5), color);
    p.fillRect(QRectF(symbol.x() - 1, symbol.y() - 5.5, 2, 5), withAlpha(color, color.alpha() / 3));
}

void paintLens(QPainter& p, bool on)
{
    const QColor dark = on ? palette::emberDark : mix(palette::graphite, Qt::black, 0.25);
    const QColor full = on ? palette::ember : mix(palette::graphite, palette::graphiteLight, 0.5);
    brush::fillRound(p, square, 3, vertical(square, mix(full, dark, 0.15), mix(full, dark, 0.55)));
    p.save();
    brush::clipRound(p, square, 3);
    if (on) {
        QRadialGradient light(symbol, 11);
        light.setColorAt(0, withAlpha(palette::emberLight, 235));
        light.setColorAt(0.45, withAlpha(palette::emberLight, 90));
        light.setColorAt(1, withAlpha(palette::emberLight, 0));
        p.fillRect(square, light);
    }
    brush::fadeDown(p, QRectF(4, 4, 11, 7), withAlpha(Qt::white, on ? 120 : 70)); // sky on the pane
    p.fillRect(QRectF(5, 26, 9, 1), withAlpha(Qt::white, on ? 90 : 45));
    p.restore();
}

void paintButton(QPainter& p, bool on)
{
    paintClip(p, on);
    if (on)
        brush::halo(p, square.adjusted(-1, -1, 1, 1), 4, 2, withAlpha(palette::ember, 230));
    const QRectF frame = square.adjusted(-1, -1, 1, 1);
    brush::fillRound(p, frame.adjusted(0, 0, 0, 1), 4, withAlpha(Qt::white, 70));
    brush::fillRound(p, frame, 4, palette::gap);
    paintLens(p, on);
    paintSymbol(p, on ? QColor(Qt::white) : palette::metal);
}

void paintPress(QPainter& p)
{
    brush::fillRound(p, square, 3, withAlpha(Qt::black, 45));
    brush::clipRound(p, square, 3);
    brush::fadeDown(p, QRectF(3, 3, 13, 14), withAlpha(Qt::black, 190));
    for (int i = 0; i < 2; ++i)
        brush::strokeRound(p, square.adjusted(i, i, -i, 6), 3, withAlpha(Qt::black, 110 - 60 * i));
}

void paintHover(QPainter& p)
{
    brush::fillRound(p, square, 3, vertical(square, withAlpha(Qt::white, 70), withAlpha(Qt::white, 14)));
    brush::strokeRound(p, square, 3, withAlpha(Qt::white, 170));
}

void paintLifted(QPainter& p, bool on)
{
    for (int i = 0; i < 4; ++i) { // lifted, it throws a wide soft shadow
        const double spread = 1.0 + i;
        QPainterPath lens, body;
        lens.addRoundedRect(square.adjusted(-spread, 3, spread, 2 + spread), 3 + spread, 3 + spread);
        body.addRoundedRect(clip.adjusted(-spread, 4, spread, 5 + spread), 3 + spread, 3 + spread);
        p.fillPath(lens.united(body), withAlpha(Qt::black, 36));
    }
    paintButton(p, on);
    brush::strokeRound(p, square.adjusted(-1, -1, 1, 1), 4, withAlpha(Qt::white, 190));
}

// A flag is held over it and would change places with it: it answers in the colour of active presets.
void paintOverTarget(QPainter& p)
{
    brush::halo(p, clip, 3, 4, palette::presetActive);
    brush::halo(p, square.adjusted(-1, -1, 1, 1), 4, 3, palette::presetActive);
    paintButton(p, true);
    brush::strokeRound(p, square.adjusted(-1, -1, 1, 1), 4, palette::presetActive);
    brush::fillRound(p, lamp, 1, palette::presetActive);
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
    add("Off_Drop", [](QPainter& p) { paintLifted(p, false); });
    add("On_Drop", [](QPainter& p) { paintLifted(p, true); });
    add("On_Switch", paintOverTarget);
}
