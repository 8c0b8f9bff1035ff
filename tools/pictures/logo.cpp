// The wordmark: drawn letters of one stroke, and below them the twelve notes of an octave with a scale in
// them.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <QPainterPath>

namespace {

using brush::withAlpha;

constexpr double top = 14, middle = 28, bottom = 42; // of the strokes' middles
constexpr double capTop = 12, capBottom = 44, stroke = 4, bend = 14;

/// A letter of straight edges, given as points from its left and the top of the capitals.
QPainterPath edges(double x, const QPolygonF& points)
{
    QPainterPath path;
    path.addPolygon(points.translated(x, capTop));
    path.closeSubpath();
    return path;
}

/// A letter drawn with one stroke, as an area.
QPainterPath stroked(const QPainterPath& line)
{
    QPainterPathStroker pen;
    pen.setWidth(stroke);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen.createStroke(line);
}

QPainterPath letterS(double x)
{
    QPainterPath path({x + 20, top});
    path.lineTo(x + 7, top);
    path.arcTo(QRectF(x, top, bend, bend), 90, 180);
    path.lineTo(x + 13, middle);
    path.arcTo(QRectF(x + 6, middle, bend, bend), 90, -180);
    path.lineTo(x, bottom);
    return path;
}

QPainterPath letterO(double x)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(x, top, 24, bottom - top), 11, 11);
    return path;
}

QPainterPath letterR(double x)
{
    QPainterPath path({x, capBottom});
    path.lineTo(x, top);
    path.lineTo(x + 13, top);
    path.arcTo(QRectF(x + 6, top, bend, bend), 90, -180);
    path.lineTo(x + 6, middle);
    path.moveTo(x + 11, middle);
    path.lineTo(x + 20, capBottom);
    return path;
}

// V goes down and A comes up again: a note that is played, and the one that sounds.
QPainterPath letterV(double x)
{
    return edges(x, {{{0, 0}, {4.5, 0}, {12, 25}, {19.5, 0}, {24, 0}, {14, 32}, {10, 32}}});
}

QPainterPath letterA(double x)
{
    return edges(x, {{{0, 32}, {4.5, 32}, {12, 7}, {19.5, 32}, {24, 32}, {14, 0}, {10, 0}}});
}

QPainterPath letterN(double x)
{
    return edges(
        x,
        {{{0, 32}, {0, 0}, {4.5, 0}, {19, 24.5}, {19, 0}, {23, 0}, {23, 32}, {18.5, 32}, {4, 7.5}, {4, 32}}});
}

QPainterPath letterE(double x)
{
    QPainterPath path({x + 19, top});
    path.lineTo(x, top);
    path.lineTo(x, bottom);
    path.lineTo(x + 19, bottom);
    path.moveTo(x, middle);
    path.lineTo(x + 16, middle);
    return path;
}

void addNotes(QPainterPath& mark)
{
    constexpr char scale[] = "xoxoxxoxoxox";
    double x = 28;
    for (const char* note = scale; *note; ++note, x += 17)
        if (*note == 'x')
            mark.addRect(QRectF(x, 50, 15, 4));
        else
            mark.addRect(QRectF(x, 52, 15, 1));
}

void paintLogo(QPainter& p)
{
    QPainterPath mark;
    mark.setFillRule(Qt::WindingFill);
    for (const QPainterPath& letter : {stroked(letterS(30)), stroked(letterO(62)), stroked(letterR(98)),
                                       letterV(124), letterA(145), letterN(178), stroked(letterE(211))})
        mark.addPath(letter);
    addNotes(mark);
    p.save();
    p.setClipRect(QRectF(0, 0, 258, 55));                           // a flat label lies below
    p.fillPath(mark.translated(1, 1), withAlpha(palette::ink, 48)); // liquid crystal stands above its ground
    p.restore();
    p.fillPath(mark, palette::ink);
}

} // namespace

void addLogo(std::vector<Picture>& table)
{
    table.push_back({"CenterScreen/Sorvane-Logo-CM.png", {258, 65}, paintLogo});
}
