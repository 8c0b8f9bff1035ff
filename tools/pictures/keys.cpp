// The five key sheets and the light that lies on idle keys.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

constexpr double whiteWidth = 17, whiteHeight = 99, blackWidth = 10, blackHeight = 64, notch = 5;

/// The colours of one sheet: faces of idle and pressed keys, from back to front.
struct Look
{
    QColor whiteBack, whiteFront, whitePressedBack, whitePressedFront;
    QColor black, blackLight, blackPressed, blackPressedLight;
};

Look plainLook()
{
    using namespace palette;
    return {mix(ivory, ivoryShade, 0.35),
            ivory,
            mix(ivoryShade, metalDark, 0.35),
            ivoryShade,
            graphite,
            graphiteLight,
            mix(graphite, Qt::black, 0.3),
            mix(graphite, graphiteLight, 0.5)};
}

Look litLook(const QColor& light, const QColor& full, const QColor& dark)
{
    using namespace palette;
    return {
        mix(ivoryShade, light, 0.75), mix(ivory, light, 0.6), mix(full, dark, 0.25), mix(full, light, 0.35),
        mix(dark, graphite, 0.15),    mix(full, dark, 0.35),  mix(full, dark, 0.2),  light};
}

Look asleepLook()
{
    using namespace palette;
    const QColor back = mix(metalDark, ivoryShade, 0.15), front = mix(metalDark, ivoryShade, 0.35);
    return {back,
            front,
            mix(back, Qt::black, 0.12),
            mix(front, Qt::black, 0.12),
            mix(graphite, metalDark, 0.35),
            metalDark,
            mix(graphite, metalDark, 0.25),
            mix(graphite, metalDark, 0.6)};
}

QPainterPath whitePath(double x, bool left, bool right, double front)
{
    const double top = 0, edge = blackHeight, inner = 1; // the gap to the neighbour is the left column
    QPainterPath body;
    body.addRoundedRect(QRectF(x + inner, top - 4, whiteWidth - inner, front + 4), 2, 2);
    QPainterPath cut;
    cut.addRect(x, -4, left ? notch : 0, edge + 4);
    cut.addRect(x + whiteWidth - (right ? notch : 0), -4, right ? notch : 0, edge + 4);
    cut.addRect(x, -5, whiteWidth, 5);
    return body.subtracted(cut);
}

QPainterPath gapPath(double x, bool left, bool right)
{
    QPainterPath outline;
    outline.addRect(x, 0, whiteWidth, whiteHeight);
    QPainterPath cut;
    cut.addRect(x, 0, left ? notch : 0, blackHeight);
    cut.addRect(x + whiteWidth - (right ? notch : 0), 0, right ? notch : 0, blackHeight);
    return outline.subtracted(cut);
}

void paintWhite(QPainter& p, double x, bool left, bool right, bool pressed, const Look& look)
{
    const QRectF cell(x, 0, whiteWidth, whiteHeight);
    const double faceEnd = pressed ? 97 : 93;
    const QColor back = pressed ? look.whitePressedBack : look.whiteBack;
    const QColor front = pressed ? look.whitePressedFront : look.whiteFront;
    p.fillPath(gapPath(x, left, right), palette::gap);
    // The front of the key stands below its face; a pressed key shows almost none of it.
    p.fillPath(whitePath(x, left, right, 98), mix(back, palette::graphite, 0.25));
    const QPainterPath face = whitePath(x, left, right, faceEnd);
    p.fillPath(face, vertical(cell, back, front));
    p.save();
    p.setClipPath(face);
    const double l = x + 1, r = x + whiteWidth;
    p.fillRect(QRectF(l, 0, 1, whiteHeight), withAlpha(Qt::white, pressed ? 40 : 150));
    p.fillRect(QRectF(r - 1, 0, 1, whiteHeight), withAlpha(Qt::black, 34));
    if (left)
        p.fillRect(QRectF(x + notch, 0, 1, blackHeight), withAlpha(Qt::white, pressed ? 30 : 110));
    if (right)
        p.fillRect(QRectF(x + whiteWidth - notch - 1, 0, 1, blackHeight), withAlpha(Qt::black, 28));
    if (pressed) {
        const QRectF shade(x, 0, whiteWidth, 26);
        p.fillRect(shade, vertical(shade, withAlpha(Qt::black, 90), withAlpha(Qt::black, 0)));
        p.fillRect(QRectF(l, 0, 2, whiteHeight), withAlpha(Qt::black, 40));
    }
    p.fillRect(QRectF(x, faceEnd - 1, whiteWidth, 1), withAlpha(Qt::white, pressed ? 60 : 190));
    p.restore();
}

void paintBlack(QPainter& p, double x, bool pressed, const Look& look)
{
    const QRectF cell(x, 0, blackWidth, blackHeight);
    const QColor body = pressed ? look.blackPressed : look.black;
    const QColor light = pressed ? look.blackPressedLight : look.blackLight;
    p.fillRect(cell, palette::gap);
    const QRectF sides(x + 1, 0, blackWidth - 2, blackHeight - 1);
    brush::fillRound(p, sides.adjusted(0, -4, 0, 0), 1.5, vertical(sides, body, mix(body, Qt::black, 0.35)));
    const double end = pressed ? 60 : 54;
    const QRectF top(x + 2, 0, blackWidth - 4, end);
    brush::fillRound(p, top.adjusted(0, -4, 0, 0), 1.5,
                     vertical(top, mix(body, light, 0.35), mix(body, light, 0.8)));
    p.fillRect(QRectF(x + 2, 0, 1, end - 1), withAlpha(Qt::white, pressed ? 20 : 50));
    p.fillRect(QRectF(x + 3, end - 1, blackWidth - 6, 1), withAlpha(Qt::white, pressed ? 70 : 110));
    const QRectF shade(x + 1, 0, blackWidth - 2, pressed ? 20 : 7);
    p.fillRect(shade, vertical(shade, withAlpha(Qt::black, 110), withAlpha(Qt::black, 0)));
}

void paintSheet(QPainter& p, const Look& look)
{
    struct White
    {
        double x;
        bool left, right;
    };
    constexpr White shapes[] = {{19, false, false}, {53, true, true}, {87, false, true}, {121, true, false}};
    paintBlack(p, 0, false, look);
    paintBlack(p, 10, true, look);
    for (const White& shape : shapes)
        for (const bool pressed : {false, true})
            paintWhite(p, shape.x + (pressed ? whiteWidth : 0), shape.left, shape.right, pressed, look);
}

void paintShine(QPainter& p, const QColor& color, int alpha)
{
    const QRectF area(0, 0, 33, 43);
    p.fillRect(area, vertical(area, withAlpha(color, alpha), withAlpha(color, 0)));
    p.fillRect(QRectF(0, 0, 33, 1), withAlpha(color, alpha));
}

} // namespace

void addKeyPictures(std::vector<Picture>& table)
{
    using namespace palette;
    const QSize size(155, 99);
    const auto sheet = [&](const char* name, const Look& look) {
        table.push_back({QStringLiteral("Keyboard/") + QLatin1String(name), size,
                         [look](QPainter& p) { paintSheet(p, look); }});
    };
    sheet("keyboardB.png", plainLook());
    sheet("keyboardB_IN.png", litLook(blueLight, blue, blueDark));
    sheet("keyboardB_OUT.png", litLook(amberLight, amber, amberDark));
    sheet("keyboardB_deactive.png", asleepLook());
    sheet("keyboardB_LEARN.png", litLook(greenLight, green, greenDark));
    table.push_back({"INPUTblueShine.png", {33, 43}, [](QPainter& p) { paintShine(p, blue, 64); }});
    table.push_back({"OUTPUTyellowShine.png", {33, 43}, [](QPainter& p) { paintShine(p, amber, 64); }});
}
