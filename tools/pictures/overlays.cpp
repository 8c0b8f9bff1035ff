// The light and shadow of the case above the keys: one sheet while it sleeps, one while it is awake.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"
#include "tools/pictures/stage.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

const QRectF outRod(27, 43, 907, 3), inRod(29, 298, 903, 3);

// The case stands over the backs of the output keys. What lies on those of the input keys is painted with
// them: flags stand before them.
void paintCaseShadow(QPainter& p, int alpha)
{
    const double width = stage::wellRight - stage::wellLeft;
    brush::fadeDown(p, QRectF(stage::wellLeft, stage::outKeys.top(), width, 9), withAlpha(Qt::black, alpha));
}

void paintRodLight(QPainter& p, const QRectF& rod, const QColor& color, const QColor& core)
{
    p.fillRect(QRectF(rod.left() + 1, rod.top() + 1, rod.width() - 2, 1), withAlpha(core, 215));
    p.fillRect(QRectF(rod.left() + 1, rod.top(), rod.width() - 2, 1), withAlpha(color, 110));
    p.fillRect(QRectF(rod.left() + 1, rod.top() + 2, rod.width() - 2, 1), withAlpha(color, 110));
}

void spill(QPainter& p, double left, double right, double top, double reach, const QColor& color)
{
    brush::fadeDown(p, QRectF(left, top, right - left, reach), color);
}

void paintLightOfOutput(QPainter& p)
{
    paintRodLight(p, outRod, palette::amber, palette::amberLight);
    brush::fadeUp(p, QRectF(27, 37, 907, 6), withAlpha(palette::amber, 90));
    spill(p, stage::wellLeft, stage::wellRight, 46, 18, withAlpha(palette::amber, 84));
}

void paintLightOfInput(QPainter& p)
{
    paintRodLight(p, inRod, palette::blue, palette::blueLight);
    spill(p, 28, 933, 301, 16, withAlpha(palette::blue, 70));
}

// The paper note sticks out over the display's rim, which throws no light on it.
void paintRimOfDisplay(QPainter& p)
{
    QPainterPath room, note;
    room.addRect(0, 0, stage::width, stage::height);
    note.addRect(QRectF(QPointF(), stage::note.size()));
    QTransform turn = QTransform::fromTranslate(stage::note.x(), stage::note.y());
    turn.rotate(stage::noteAngle);
    p.save();
    p.setClipPath(room.subtracted(turn.map(note)));
    brush::halo(p, stage::display.adjusted(-1, -1, 1, 1), 1, 5, withAlpha(palette::rimLight, 150));
    p.restore();
}

void paintAwake(QPainter& p)
{
    paintCaseShadow(p, 50);
    paintLightOfOutput(p);
    paintLightOfInput(p);
    paintRimOfDisplay(p);
    brush::halo(p, stage::tonicOctave, 1, 3, withAlpha(palette::amber, 150));
    brush::halo(p, stage::scaleOctave, 1, 3, withAlpha(palette::presetIdle, 150));
}

// Dusk lies on the keys and the ends beside them, and the light on their backs goes out.
void paintDuskOfOutput(QPainter& p)
{
    const double width = stage::wellRight - stage::wellLeft;
    const QRectF keys(stage::wellLeft, stage::outKeys.top(), width, stage::outKeys.height());
    p.fillRect(keys, withAlpha(palette::well, 24));
    brush::fadeDown(p, QRectF(keys.topLeft(), QSizeF(width, 46)), withAlpha(palette::well, 70));
}

// Brown takes the blue away that lies on the backs of these keys. The power button stands before them: over
// it dusk begins and ends without an edge.
void paintDuskOfInput(QPainter& p)
{
    const QRectF keys(QPointF(stage::wellLeft, stage::inKeys.top()),
                      QPointF(stage::wellRight, stage::inKeys.bottom()));
    const QColor brown = mix(palette::amberDark, palette::well, 0.6);
    QLinearGradient dusk = vertical(keys, withAlpha(brown, 0), withAlpha(palette::well, 24));
    dusk.setColorAt(0.10, withAlpha(brown, 96));
    dusk.setColorAt(0.24, withAlpha(brown, 52));
    dusk.setColorAt(0.44, withAlpha(palette::well, 24));
    p.fillRect(keys, dusk);
}

void paintAsleep(QPainter& p)
{
    paintCaseShadow(p, 90);
    paintDuskOfOutput(p);
    paintDuskOfInput(p);
    p.fillRect(outRod, withAlpha(Qt::black, 70));
    p.fillRect(inRod, withAlpha(Qt::black, 70));
}

} // namespace

void addOverlays(std::vector<Picture>& table)
{
    const QSize size(stage::width, stage::height);
    table.push_back({"Background/BG_t_on-CM.png", size, paintAwake});
    table.push_back({"Background/BG_t_off.png", size, paintAsleep});
}
