// The rails and lines along the keyboards.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

constexpr double railWidth = 907;
constexpr int firstKey = 8, whiteKeyWidth = 17, whiteKeyCount = 52, whitesPerOctave = 7, firstC = 2;

// A ruler on the side of the keys: a mark at each white key's edge, a longer one below each C.
void paintMarks(QPainter& p, double railHeight, bool keysAbove)
{
    // Over the black keys the numbers of the upper rail stand on the marks: these keep clear of them.
    const double ordinary = keysAbove ? 3 : 2, ofC = keysAbove ? 5 : 3;
    for (int k = 0; k <= whiteKeyCount; ++k) {
        const double length = k % whitesPerOctave == firstC ? ofC : ordinary;
        const double y = keysAbove ? 1 : railHeight - 1 - length;
        const double x = firstKey + whiteKeyWidth * k;
        p.fillRect(QRectF(x, y, 1, length), withAlpha(palette::ink, 150));
        p.fillRect(QRectF(x + 1, y, 1, length), withAlpha(Qt::white, 110));
    }
}

void paintRail(QPainter& p, double height, const QColor& tint)
{
    const QRectF rail(0, 0, railWidth, height);
    const QColor face = mix(palette::metalLight, tint, 0.30);
    QLinearGradient shape(rail.topLeft(), rail.bottomLeft());
    shape.setColorAt(0, mix(face, Qt::white, 0.42));
    shape.setColorAt(0.45, face);
    shape.setColorAt(1, mix(face, palette::metalDark, 0.42));
    p.fillRect(rail, shape);
    brush::brushed(p, rail.adjusted(1, 1, -1, -1), 7);
    p.fillRect(QRectF(0, 0, railWidth, 1), withAlpha(Qt::white, 170));
    p.fillRect(QRectF(0, height - 1, railWidth, 1), withAlpha(Qt::black, 110));
    p.fillRect(QRectF(0, 0, 1, height), withAlpha(Qt::white, 110));
    p.fillRect(QRectF(railWidth - 1, 0, 1, height), withAlpha(Qt::black, 90));
}

void paintInputRail(QPainter& p)
{
    paintRail(p, 33, palette::blueLight);
    brush::fadeDown(p, QRectF(0, 0, railWidth, 4), withAlpha(Qt::black, 90)); // the keys stand over it
    paintMarks(p, 33, true);
    // Degrees above; below them the slot in which the anchors slide, dark behind their numbers.
    brush::recess(p, QRectF(2, 17, railWidth - 4, 14), 2, palette::well,
                  mix(palette::well, palette::blueDark, 0.4));
}

void paintOutputRail(QPainter& p)
{
    paintRail(p, 21, palette::amberLight);
    paintMarks(p, 21, false);
}

// A rod of glass that the overlay of the panel makes shine.
void paintRod(QPainter& p, double width, const QColor& color)
{
    p.fillRect(QRectF(0, 0, width, 3), palette::well);
    p.fillRect(QRectF(1, 1, width - 2, 1), mix(palette::wellLight, color, 0.42));
    p.fillRect(QRectF(0, 2, width, 1), mix(palette::well, Qt::black, 0.35));
}

void paintHeaderGround(QPainter& p)
{
    const QRectF ground(0, 0, railWidth, 46);
    p.fillRect(ground, vertical(ground, mix(palette::well, palette::blueDark, 0.20),
                                mix(palette::wellLight, palette::blueDark, 0.38)));
    for (int y = 2; y < 46; y += 3) { // fine ribs, so that the ground stays behind the flags
        p.fillRect(QRectF(0, y, railWidth, 1), withAlpha(Qt::white, 7));
        p.fillRect(QRectF(0, y + 1, railWidth, 1), withAlpha(Qt::black, 22));
    }
    brush::fadeDown(p, QRectF(0, 0, railWidth, 12), withAlpha(Qt::black, 150));
    p.fillRect(QRectF(0, 0, 1, 46), withAlpha(Qt::black, 120));
    p.fillRect(QRectF(railWidth - 1, 0, 1, 46), withAlpha(Qt::black, 120));
    p.fillRect(QRectF(0, 44, railWidth, 1), withAlpha(Qt::white, 40)); // the sill before the keys
    p.fillRect(QRectF(0, 45, railWidth, 1), withAlpha(Qt::black, 160));
}

} // namespace

void addBars(std::vector<Picture>& table)
{
    table.push_back({"INPUTanchorbar.png", {907, 33}, paintInputRail});
    table.push_back({"OUTPUTanchorbar.png", {907, 21}, paintOutputRail});
    table.push_back({"hlineIn.png", {903, 3}, [](QPainter& p) { paintRod(p, 903, palette::blue); }});
    table.push_back({"hlineOut.png", {907, 3}, [](QPainter& p) { paintRod(p, 907, palette::amber); }});
    table.push_back({"INPUTheaderBG.png", {907, 46}, paintHeaderGround});
}
