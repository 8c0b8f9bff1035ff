// The five key sheets and the light that lies on idle keys.

#include "tools/pictures/brush.h"
#include "tools/pictures/key_looks.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

constexpr double whiteWidth = 17, whiteHeight = 99, blackWidth = 10, blackHeight = 64, notch = 5;

/// A white key's place on the sheet and the sides on which a black key stands over it.
struct WhiteShape
{
    double x;
    bool left, right;
    bool pressed;
};

/// The key without its notches, as wide as given; round corners at the front only.
QPainterPath keyPath(const WhiteShape& key, double left, double front, double radius)
{
    QPainterPath body;
    body.addRoundedRect(QRectF(left, -9, key.x + whiteWidth - left, front + 9), radius, radius);
    QPainterPath cut;
    cut.addRect(key.x, -10, whiteWidth, 10);
    if (key.left)
        cut.addRect(key.x, -10, notch, blackHeight + 10);
    if (key.right)
        cut.addRect(key.x + whiteWidth - notch, -10, notch, blackHeight + 10);
    return body.subtracted(cut);
}

// Black keys stand higher: they shade the white face below their ends and along their sides.
void paintShadowsOfBlacks(QPainter& p, const WhiteShape& key)
{
    const double right = key.x + whiteWidth;
    const int depth = key.pressed ? 120 : 85;
    const double reach = key.pressed ? 9 : 6;
    if (key.left) {
        p.fillRect(QRectF(key.x + notch, 0, 1, blackHeight), withAlpha(Qt::black, depth / 2));
        p.fillRect(QRectF(key.x + notch + 1, 0, 1, blackHeight + 1), withAlpha(Qt::black, depth / 5));
        brush::fadeDown(p, QRectF(key.x, blackHeight, notch + 1, reach), withAlpha(Qt::black, depth));
    }
    if (key.right) {
        p.fillRect(QRectF(right - notch - 1, 0, 1, blackHeight), withAlpha(Qt::black, depth / 2));
        p.fillRect(QRectF(right - notch - 2, 0, 1, blackHeight + 1), withAlpha(Qt::black, depth / 5));
        brush::fadeDown(p, QRectF(right - notch - 1, blackHeight, notch + 1, reach),
                        withAlpha(Qt::black, depth));
    }
}

// A pressed key lies below its neighbours and reaches farther under the case.
void paintDip(QPainter& p, const WhiteShape& key)
{
    const double left = key.x + 1, right = key.x + whiteWidth;
    brush::fadeDown(p, QRectF(left, 0, whiteWidth, 46), withAlpha(Qt::black, 150));
    for (int i = 0; i < 3; ++i) {
        const QColor shade = withAlpha(Qt::black, 80 - 27 * i);
        p.fillRect(QRectF(left + i, 0, 1, whiteHeight), shade);
        p.fillRect(QRectF(right - 1 - i, 0, 1, whiteHeight), shade);
    }
}

void paintGlow(QPainter& p, const WhiteShape& key, const QColor& glow)
{
    if (glow.alpha() == 0)
        return;
    p.save();
    p.translate(key.x + (whiteWidth + 1) / 2, 80);
    p.scale(1, 3.2); // the light is as long as the key
    QRadialGradient light(QPointF(), 13);
    light.setColorAt(0, glow);
    light.setColorAt(0.5, withAlpha(glow, glow.alpha() / 2));
    light.setColorAt(1, withAlpha(glow, 0));
    p.fillRect(QRectF(-whiteWidth, -40, 2 * whiteWidth, 80), light);
    p.restore();
}

void paintEdges(QPainter& p, const WhiteShape& key, int edge)
{
    const double left = key.x + 1, right = key.x + whiteWidth;
    p.fillRect(QRectF(left, 0, 1, whiteHeight), withAlpha(Qt::white, edge * 3 / 4));
    p.fillRect(QRectF(left + 1, 0, 1, whiteHeight), withAlpha(Qt::white, edge / 4));
    p.fillRect(QRectF(right - 1, 0, 1, whiteHeight), withAlpha(Qt::black, 46));
    p.fillRect(QRectF(right - 2, 0, 1, whiteHeight), withAlpha(Qt::black, 16));
}

void paintWhite(QPainter& p, const WhiteShape& key, const WhiteLook& look)
{
    const double faceEnd = key.pressed ? 96 : 91;
    const QRectF cell(key.x, 0, whiteWidth, whiteHeight), lip(key.x, faceEnd - 2, whiteWidth, 100 - faceEnd);
    p.fillPath(keyPath(key, key.x, whiteHeight, 0), palette::gap);
    p.fillPath(keyPath(key, key.x + 1, 98, 2), vertical(lip, look.lip, mix(look.lip, Qt::black, 0.35)));
    const QPainterPath face = keyPath(key, key.x + 1, faceEnd, 2);
    p.save();
    p.setClipPath(face);
    p.fillPath(face, vertical(cell, look.back, look.front));
    paintGlow(p, key, look.glow);
    paintEdges(p, key, look.edge);
    paintShadowsOfBlacks(p, key);
    brush::fadeDown(p, QRectF(key.x, 0, whiteWidth, 9), withAlpha(Qt::black, 75)); // the case's shadow
    if (key.pressed)
        paintDip(p, key);
    p.fillRect(QRectF(key.x, faceEnd - 1, whiteWidth, 1), withAlpha(Qt::white, look.edge));
    p.restore();
}

void paintBlack(QPainter& p, double x, bool pressed, const BlackLook& look)
{
    const double end = pressed ? 59 : 54; // of the top; the slope follows
    const QRectF body(x + 1, 0, blackWidth - 2, blackHeight - 1), top(x + 1, 0, blackWidth - 2, end);
    const QRectF slope(x + 1, end, blackWidth - 2, blackHeight - 1 - end);
    p.fillRect(QRectF(x, 0, blackWidth, blackHeight), palette::gap);
    p.save();
    p.setClipRect(QRectF(x, 0, blackWidth, blackHeight));
    brush::fillRound(p, body.adjusted(0, -4, 0, 0), 1.5,
                     vertical(slope, look.slope, mix(look.slope, Qt::black, 0.55)));
    brush::fillRound(p, top.adjusted(0, -4, 0, 0), 1.5, vertical(top, look.back, look.front));
    p.fillRect(QRectF(x + 1, 0, 1, end - 1), withAlpha(Qt::white, look.edge * 2 / 5)); // round shoulders
    p.fillRect(QRectF(x + 2, 0, 1, end - 1), withAlpha(Qt::white, look.edge / 6));
    p.fillRect(QRectF(x + 7, 0, 1, end - 1), withAlpha(Qt::black, 40));
    p.fillRect(QRectF(x + 8, 0, 1, end), withAlpha(Qt::black, 95));
    p.fillRect(QRectF(x + 2, end - 1, blackWidth - 4, 1), withAlpha(Qt::white, look.edge));
    brush::fadeDown(p, QRectF(x + 1, 0, blackWidth - 2, pressed ? 40 : 14), withAlpha(Qt::black, 170));
    p.restore();
}

void paintSheet(QPainter& p, const KeyLook& look)
{
    constexpr WhiteShape shapes[] = {{19, false, false, false},
                                     {53, true, true, false},
                                     {87, false, true, false},
                                     {121, true, false, false}};
    for (WhiteShape shape : shapes) {
        paintWhite(p, shape, look.white);
        shape.x += whiteWidth;
        shape.pressed = true;
        paintWhite(p, shape, look.whitePressed);
    }
    paintBlack(p, 0, false, look.black);
    paintBlack(p, 10, true, look.blackPressed);
}

// The same in every column, so that the light runs on from key to key.
// Deepest under the case there is shadow yet.
void paintShine(QPainter& p, const QColor& color, int alpha)
{
    constexpr double peak = 9, end = 43;
    const QRectF shadow(0, 0, 33, peak), light(0, peak, 33, end - peak);
    p.fillRect(shadow, vertical(shadow, withAlpha(color, alpha / 8), withAlpha(color, alpha)));
    brush::fadeDown(p, light, withAlpha(color, alpha));
}

} // namespace

void addKeyPictures(std::vector<Picture>& table)
{
    for (const KeyLook& look : keyLooks())
        table.push_back({QStringLiteral("Keyboard/%1.png").arg(look.name), {155, 99}, [look](QPainter& p) {
                             paintSheet(p, look);
                         }});
    table.push_back({"INPUTblueShine.png", {33, 43}, [](QPainter& p) { paintShine(p, palette::blue, 74); }});
    table.push_back(
        {"OUTPUTyellowShine.png", {33, 43}, [](QPainter& p) { paintShine(p, palette::amber, 60); }});
}
