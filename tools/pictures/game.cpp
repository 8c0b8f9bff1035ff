// The small game: a paper note that somebody stuck on the case, and the two marks drawn on it by hand.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <cmath>

namespace {

using brush::mix;
using brush::withAlpha;

/// A stroke of a pen along a curve: dots that swell and thin out as the hand presses.
void paintStroke(QPainter& p, const QPainterPath& curve, double width, const QColor& color)
{
    QPainterPath stroke;
    stroke.setFillRule(Qt::WindingFill);
    constexpr int dots = 160;
    for (int i = 0; i <= dots; ++i) {
        const double t = static_cast<double>(i) / dots;
        const double press = 0.62 + 0.38 * std::sin(3.1 * t + 0.25);
        const double radius = width * press / 2;
        stroke.addEllipse(curve.pointAtPercent(t), radius, radius);
    }
    p.fillPath(stroke, color);
}

void paintCross(QPainter& p)
{
    QPainterPath falling(QPointF(2.8, 2.2));
    falling.cubicTo(6, 4.6, 9, 7.4, 13.4, 12.2);
    QPainterPath rising(QPointF(13.2, 1.6));
    rising.cubicTo(10, 4.4, 6.2, 7.8, 2.4, 12);
    paintStroke(p, falling, 2.1, palette::inkPen);
    paintStroke(p, rising, 2.1, palette::inkPen);
}

void paintNought(QPainter& p)
{
    QPainterPath loop(QPointF(9.4, 1.9));
    loop.cubicTo(5.2, 0.6, 2.2, 3.6, 2.4, 7.2);
    loop.cubicTo(2.6, 10.8, 5.6, 12.6, 8.6, 12.2);
    loop.cubicTo(12, 11.8, 13.8, 9.2, 13.6, 6.4);
    loop.cubicTo(13.4, 3.6, 11.2, 1.8, 7.6, 2.5);
    paintStroke(p, loop, 2.0, palette::redPen);
}

QPainterPath sheetOutline()
{
    QPainterPath sheet(QPointF(1.5, 2));
    sheet.lineTo(64.5, 2);
    sheet.lineTo(64.5, 56);
    sheet.quadTo(63.6, 58.6, 59, 59.4); // a corner that lifts
    sheet.lineTo(1.5, 59.4);
    sheet.closeSubpath();
    return sheet;
}

// It ends between the lines that the game draws, so that none of them begins on it.
void paintTape(QPainter& p)
{
    QPainterPath strip(QPointF(25, 0.2));
    for (const QPointF& corner : {QPointF(41.6, 0.6), QPointF(41.2, 6.4), QPointF(24.6, 6)})
        strip.lineTo(corner);
    strip.closeSubpath();
    p.fillPath(strip.translated(0.3, 0.8), withAlpha(Qt::black, 40));
    p.fillPath(strip, withAlpha(palette::tape, 225));
    p.setClipPath(strip);
    p.fillRect(QRectF(24, 1.6, 18, 0.8), withAlpha(Qt::white, 70)); // where it bends over the sheet's edge
    p.setClipping(false);
}

void paintPaper(QPainter& p)
{
    const QPainterPath sheet = sheetOutline();
    for (int i = 4; i >= 1; --i)
        p.fillPath(sheet.translated(0.25 * i, 0.6 * i), withAlpha(Qt::black, 24));
    QLinearGradient tone(0, 2, 66, 60);
    tone.setColorAt(0, mix(palette::note, Qt::white, 0.35));
    tone.setColorAt(0.75, palette::note);
    tone.setColorAt(1, mix(palette::note, palette::ivoryShade, 0.8));
    p.fillPath(sheet, tone);
    p.strokePath(sheet, QPen(withAlpha(palette::metalEdge, 60), 0.6));
    paintTape(p);
}

} // namespace

void addGamePictures(std::vector<Picture>& table)
{
    table.push_back({"Games/tictactoe_paper.png", {66, 62}, paintPaper});
    table.push_back({"Games/tictactoe_x.png", {16, 14}, paintCross});
    table.push_back({"Games/tictactoe_o.png", {16, 14}, paintNought});
}
