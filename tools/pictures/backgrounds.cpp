// The case: the sleeping panel below everything, and the two sheets of light and shadow above the keys.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"
#include "tools/pictures/selectors.h"
#include "tools/pictures/stage.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

void paintMetal(QPainter& p)
{
    const QRectF all(0, 0, stage::width, stage::height);
    QLinearGradient metal(all.topLeft(), all.bottomLeft());
    metal.setColorAt(0, mix(palette::metal, palette::metalLight, 0.7));
    metal.setColorAt(0.30, palette::metal);
    metal.setColorAt(0.62, mix(palette::metal, palette::metalLight, 0.25));
    metal.setColorAt(1, mix(palette::metal, palette::metalDark, 0.55));
    p.fillRect(all, metal);
    for (int y = 0; y < stage::height; y += 2) // brushed along its length
        p.fillRect(QRectF(0, y, stage::width, 1), withAlpha(Qt::white, y % 6 == 0 ? 14 : 7));
    p.fillRect(QRectF(0, 0, stage::width, 1), withAlpha(Qt::white, 140));
    p.fillRect(QRectF(0, 0, 1, stage::height), withAlpha(Qt::white, 90));
    p.fillRect(QRectF(stage::width - 1, 0, 1, stage::height), withAlpha(Qt::black, 70));
    p.fillRect(QRectF(0, stage::height - 1, stage::width, 1), withAlpha(Qt::black, 110));
}

void paintDisplay(QPainter& p)
{
    const QRectF frame = stage::display.adjusted(-6, -6, 6, 5);
    brush::recess(p, frame, 5, palette::well, palette::wellLight);
    p.fillRect(stage::display, palette::display);
    p.fillRect(QRectF(stage::display.left(), 274, stage::display.width(), 6), palette::displayShade);
    for (int i = 0; i < 4; ++i) // the pane lies behind the frame
        p.fillRect(QRectF(stage::display.left(), stage::display.top() + i, stage::display.width(), 1),
                   withAlpha(Qt::black, 46 - 11 * i));
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(stage::display.left() + i, stage::display.top(), 1, stage::display.height()),
                   withAlpha(Qt::black, 26 - 8 * i));
    p.fillRect(QRectF(frame.left() + 4, frame.bottom() + 1, frame.width() - 8, 1), withAlpha(Qt::white, 90));
}

void paintPanel(QPainter& p, const QRectF& area, QPointF octave, const QString& caption)
{
    const QRectF plate = area.adjusted(0, -1, 0, 4);
    brush::fillRound(p, plate, 6,
                     vertical(plate, mix(palette::metalDark, palette::metal, 0.25), palette::metalDark));
    brush::strokeRound(p, plate, 6, withAlpha(Qt::black, 70));
    brush::strokeRound(p, plate.adjusted(0, 1, 0, 1), 6, withAlpha(Qt::white, 60));
    brush::recess(p, QRectF(octave.x() - 3, octave.y() - 3, 125, 66), 3, palette::well, palette::wellLight);
    paintSleepingOctave(p, octave);
    brush::text(p, QRectF(octave.x(), octave.y() + 68, 76, 16), caption, 10, true, palette::well,
                Qt::AlignLeft | Qt::AlignVCenter, 2);
}

void paintWells(QPainter& p)
{
    brush::recess(p, QRectF(26, 21, 909, 127), 3, palette::well, palette::well);
    brush::recess(p, QRectF(26, 297, 909, 190), 3, palette::well, palette::well);
}

void paintPlates(QPainter& p)
{
    for (const QRectF& plate : {QRectF(937, 45, 12, 45), QRectF(937, 427, 12, 45)}) {
        brush::recess(p, plate, 4, mix(palette::metalDark, palette::well, 0.55), palette::metalDark);
        brush::fillRound(p, QRectF(plate.left() + 3, plate.top() + 6, 6, 16), 3,
                         vertical(plate, palette::metalLight, palette::metalEdge));
    }
}

void paintEngravings(QPainter& p)
{
    const auto caption = [&p](const QRectF& area, const char* words, int alignment) {
        brush::text(p, area.translated(0, 1), QLatin1String(words), 9, true, withAlpha(Qt::white, 110),
                    alignment, 2);
        brush::text(p, area, QLatin1String(words), 9, true, palette::engraving, alignment, 2);
    };
    caption(QRectF(28, 149, 200, 12), "OUTPUT", Qt::AlignLeft | Qt::AlignVCenter);
    caption(QRectF(724, 149, 204, 12), "SORVANE", Qt::AlignRight | Qt::AlignVCenter);
    caption(QRectF(28, 284, 200, 12), "INPUT", Qt::AlignLeft | Qt::AlignVCenter);
}

void paintCase(QPainter& p)
{
    paintMetal(p);
    paintWells(p);
    paintPanel(p, QRectF(27, 162, 170, 112), stage::tonicOctave, QStringLiteral("TONIC"));
    paintPanel(p, QRectF(749, 162, 177, 112), stage::scaleOctave, QStringLiteral("SCALE"));
    paintDisplay(p);
    paintPlates(p);
    paintEngravings(p);
    for (const QPointF& place : {QPointF(13, 14), QPointF(13, 222), QPointF(13, 466), QPointF(943, 222)})
        brush::screw(p, place);
}

void paintCaseShadow(QPainter& p, int alpha)
{
    for (const double top : {48.0, 348.0}) {
        const QRectF shade(34, top, 886, 9);
        p.fillRect(shade, vertical(shade, withAlpha(Qt::black, alpha), withAlpha(Qt::black, 0)));
    }
}

void paintSpill(QPainter& p, double y, const QColor& color)
{
    const QRectF spill(34, y, 886, 16);
    p.fillRect(spill, vertical(spill, withAlpha(color, 56), withAlpha(color, 0)));
}

void paintOn(QPainter& p)
{
    paintCaseShadow(p, 70);
    p.fillRect(QRectF(34, 46, 886, 2), withAlpha(palette::amber, 150));
    paintSpill(p, 48, palette::amber);
    paintSpill(p, 348, palette::blue);
    brush::glow(p, stage::display, 1, QColor(255, 255, 240), 130);
}

void paintOff(QPainter& p)
{
    paintCaseShadow(p, 100);
    for (const QRectF& keys : {QRectF(34, 48, 886, 99), QRectF(34, 348, 886, 99)})
        p.fillRect(keys, withAlpha(palette::well, 20)); // dusk
}

} // namespace

void addBackgrounds(std::vector<Picture>& table)
{
    const QSize size(stage::width, stage::height);
    table.push_back({"Background/BG_off.png", size, paintCase});
    table.push_back({"Background/BG_t_on-CM.png", size, paintOn});
    table.push_back({"Background/BG_t_off.png", size, paintOff});
}
