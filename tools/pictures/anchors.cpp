// The anchors: numbered sliders on the input bar, enamel markers above the output bar, and the pointer that
// says which of the two can be moved.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <iterator>
#include <utility>

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

// A picture's pixel column 11 lies on the gap on the left of the anchor's key.
constexpr double axis = 11.5;

QRectF aroundAxis(double top, double width, double height)
{
    return {axis - width / 2, top, width, height};
}

/// Light that the needle throws on the keys. It fades upward, where hands and shines are.
void paintBeam(QPainter& p)
{
    const QColor light = mix(palette::blue, palette::blueDark, 0.12);
    for (const auto& [width, alpha] : {std::pair(7.0, 26), std::pair(5.0, 40), std::pair(3.0, 90)}) {
        const QRectF halo = aroundAxis(4, width, 31);
        p.fillRect(halo, vertical(halo, withAlpha(light, 0), withAlpha(light, alpha)));
    }
    const QRectF core = aroundAxis(0, 1, 35);
    QLinearGradient fade = vertical(core, withAlpha(light, 0), light);
    fade.setColorAt(0.6, withAlpha(light, 215));
    p.fillRect(core, fade);
}

void paintNeedle(QPainter& p, double top, double height, const QColor& light, const QColor& dark)
{
    p.fillRect(aroundAxis(top, 3, height), dark);
    p.fillRect(aroundAxis(top, 1, height), light);
}

// The program draws the slider a second time over its number, one pixel higher. So its walls are strips,
// the same in every row, its window is all but clear, and what it has below an edge shows one pixel longer.
const QRectF window(4, 53, 15, 13);

QPainterPath sliderPath()
{
    const QPointF corners[] = {{10, 49}, {13, 49}, {16, 50},  {21, 52.5}, {21, 66}, {20, 67},
                               {3, 67},  {2, 66},  {2, 52.5}, {7, 50},    {10, 49}};
    QPainterPath outline, hole;
    outline.addPolygon(QPolygonF(QVector<QPointF>(std::begin(corners), std::end(corners))));
    hole.addRect(window);
    return outline.subtracted(hole);
}

void paintSlider(QPainter& p)
{
    p.fillRect(window, withAlpha(palette::blue, 24));
    const QPainterPath body = sliderPath();
    p.fillPath(body.translated(0, -1).subtracted(body), palette::blueDark);
    QLinearGradient face = vertical(body.boundingRect(), palette::blueLight, palette::blue);
    face.setColorAt(0.22, palette::blue);
    p.fillPath(body, face);
    for (const double x : {2.0, 20.0}) // the outer sides of the walls
        p.fillRect(QRectF(x, 53, 1, 13), mix(palette::blue, palette::blueLight, 0.6));
    for (const double x : {8.0, 11.0, 14.0}) // a grip for the thumb
        p.fillRect(QRectF(x, 51, 1, 2), palette::blueDark);
}

void paintInputAnchor(QPainter& p)
{
    paintBeam(p);
    paintNeedle(p, 35, 15, mix(palette::blue, palette::blueLight, 0.3), palette::blueDark);
    paintSlider(p);
}

void paintPlate(QPainter& p)
{
    const QRectF plate = aroundAxis(4, 19, 14);
    brush::fillRound(p, plate.adjusted(-0.5, 0.5, 0.5, 1), 3.5, withAlpha(Qt::black, 70));
    brush::fillRound(p, plate, 3, palette::amberDark);
    const QRectF rim = plate.adjusted(1, 1, -1, -1), face = rim.adjusted(1, 1, -1, -1);
    brush::fillRound(p, rim, 2, vertical(rim, palette::amberLight, palette::amber));
    brush::fillRound(p, face, 1.5, vertical(face, palette::gap, palette::well));
}

// The needle ends above the numbers on the bar: the leading note's stands on the line that it points to.
void paintOutputAnchor(QPainter& p)
{
    paintNeedle(p, 18, 5, palette::amber, palette::amberDark);
    paintPlate(p);
}

/// Drawn about its middle, which is the hot spot.
void paintSlideCursor(QPainter& p)
{
    const QPointF corners[] = {{2, 7.5},  {7, 2.5},   {7, 6},  {14, 6}, {14, 2.5},
                               {19, 7.5}, {14, 12.5}, {14, 9}, {7, 9},  {7, 12.5}};
    const QPolygonF arrows(QVector<QPointF>(std::begin(corners), std::end(corners)));
    p.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawPolygon(arrows);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    p.drawPolygon(arrows);
}

} // namespace

void addAnchorPictures(std::vector<Picture>& table)
{
    table.push_back({"INPUTAnchor2.png", {22, 91}, paintInputAnchor});
    table.push_back({"OUTPUTAnchor2.png", {22, 36}, paintOutputAnchor});
    table.push_back({"Cursor/cursorHr.png", {21, 15}, paintSlideCursor});
}
