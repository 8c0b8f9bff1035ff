// The case with everything on it asleep: what lies below all scenes.

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
    metal.setColorAt(0, mix(palette::metal, palette::metalLight, 0.85));
    metal.setColorAt(0.32, palette::metal);
    metal.setColorAt(0.60, mix(palette::metal, palette::metalLight, 0.30));
    metal.setColorAt(1, mix(palette::metal, palette::metalDark, 0.70));
    p.fillRect(all, metal);
    brush::brushed(p, all, 9);
    brush::fadeDown(p, QRectF(0, 0, stage::width, 3), withAlpha(Qt::white, 190));
    brush::fadeUp(p, QRectF(0, stage::height - 4, stage::width, 4), withAlpha(Qt::black, 150));
    p.fillRect(QRectF(0, 0, 1, stage::height), withAlpha(Qt::white, 110));
    p.fillRect(QRectF(stage::width - 1, 0, 1, stage::height), withAlpha(Qt::black, 90));
}

// The blocks at the ends of a keyboard; the light beside the outermost keys falls on them.
void paintCheeks(QPainter& p, const QRectF& keys)
{
    for (const QRectF& cheek :
         {QRectF(QPointF(stage::wellLeft, keys.top()), QPointF(keys.left(), keys.bottom())),
          QRectF(QPointF(keys.right(), keys.top()), QPointF(stage::wellRight, keys.bottom()))}) {
        p.fillRect(cheek,
                   vertical(cheek, palette::graphite, mix(palette::graphite, palette::graphiteLight, 0.5)));
        p.fillRect(QRectF(cheek.left(), cheek.top(), 1, cheek.height()), withAlpha(Qt::white, 26));
        p.fillRect(QRectF(cheek.right() - 1, cheek.top(), 1, cheek.height()), palette::gap);
        p.fillRect(QRectF(cheek.left(), cheek.bottom() - 3, cheek.width(), 1), withAlpha(Qt::white, 60));
        p.fillRect(QRectF(cheek.left(), cheek.bottom() - 2, cheek.width(), 2), palette::gap);
        brush::fadeDown(p, QRectF(cheek.topLeft(), QSizeF(cheek.width(), 12)), withAlpha(Qt::black, 150));
    }
}

void paintWell(QPainter& p, const QRectF& keys)
{
    brush::recess(
        p, QRectF(stage::wellLeft, keys.top() - 2, stage::wellRight - stage::wellLeft, keys.height() + 2), 2,
        palette::well, palette::well);
    paintCheeks(p, keys);
}

void paintWells(QPainter& p)
{
    for (const QRectF& rail : {stage::outRail, stage::headerGround, stage::inRail})
        brush::recess(p, rail, 2, palette::well, palette::well);
    paintWell(p, stage::outKeys);
    paintWell(p, stage::inKeys);
    for (const double x : {27.0, 932.0}) // the rod of the lower keyboard is shorter than its groove
        p.fillRect(QRectF(x, 298, 2, 3),
                   vertical(QRectF(x, 298, 2, 3), palette::metalDark, palette::metalEdge));
}

void paintDisplay(QPainter& p)
{
    const QRectF pane = stage::display, frame = pane.adjusted(-6, -6, 6, 6);
    brush::halo(p, frame, 5, 4, withAlpha(Qt::black, 90));
    brush::recess(p, frame, 5, palette::well, palette::wellLight);
    brush::strokeRound(p, pane.adjusted(-2, -2, 2, 2), 1, withAlpha(Qt::black, 120));
    p.fillRect(pane.adjusted(-1, -1, 1, 1), palette::gap);
    p.fillRect(pane, palette::display);
    p.fillRect(QRectF(pane.left(), 274, pane.width(), 6), palette::displayShade);
    brush::shadeOfFrame(p, pane);
}

void paintPanel(QPainter& p, const QRectF& area, const QRectF& octave, double captionLeft,
                const QString& caption)
{
    brush::fillRound(p, area.adjusted(-1, 0, 1, 2), 6, withAlpha(Qt::white, 85)); // lower lip
    brush::fillRound(p, area.adjusted(-1, -1, 1, 1), 6, withAlpha(Qt::black, 70));
    const QColor ground = mix(palette::metalDark, palette::metal, 0.45);
    brush::fillRound(p, area, 5, vertical(area, mix(ground, Qt::black, 0.12), ground));
    p.save();
    brush::clipRound(p, area, 5);
    brush::brushed(p, area, 6);
    brush::fadeDown(p, QRectF(area.topLeft(), QSizeF(area.width(), 6)), withAlpha(Qt::black, 80));
    p.restore();
    brush::recess(p, octave.adjusted(-3, -2, 3, 3), 3, palette::well, palette::wellLight);
    paintSleepingOctave(p, octave.topLeft());
    brush::engraved(p, QRectF(captionLeft, octave.bottom() + 8, 76, 16), caption, 10,
                    Qt::AlignLeft | Qt::AlignVCenter);
}

// Covers of the openings in the right margin.
void paintPlates(QPainter& p)
{
    for (const QRectF& plate : {QRectF(937, 47, 12, 41), QRectF(937, 429, 12, 41)}) {
        brush::halo(p, plate, 3, 2, withAlpha(Qt::black, 140));
        brush::fillRound(p, plate, 3, vertical(plate, palette::metalLight, palette::metal));
        brush::strokeRound(p, plate, 3, withAlpha(Qt::black, 60));
        p.fillRect(QRectF(plate.left() + 2, plate.top(), plate.width() - 4, 1), withAlpha(Qt::white, 180));
        brush::screw(p, {plate.center().x(), plate.top() + 6}, 2, 20);
        brush::screw(p, {plate.center().x(), plate.bottom() - 6}, 2, -35);
    }
}

void paintEngravings(QPainter& p)
{
    constexpr int left = Qt::AlignLeft | Qt::AlignVCenter, right = Qt::AlignRight | Qt::AlignVCenter;
    brush::engraved(p, QRectF(28, 148, 160, 12), QStringLiteral("OUTPUT"), 9, left);
    brush::engraved(p, QRectF(760, 148, 168, 12), QStringLiteral("SORVANE"), 9, right);
    brush::engraved(p, QRectF(28, 284, 160, 12), QStringLiteral("INPUT"), 9, left);
}

void paintCase(QPainter& p)
{
    paintMetal(p);
    paintWells(p);
    paintPanel(p, stage::leftPanel, stage::tonicOctave, 35, QStringLiteral("TONIC"));
    paintPanel(p, stage::rightPanel, stage::scaleOctave, 814, QStringLiteral("SCALE"));
    paintDisplay(p);
    paintPlates(p);
    paintEngravings(p);
    brush::screw(p, {13.5, 14}, 3.5, 25);
    brush::screw(p, {13.5, 221}, 3.5, -50);
    brush::screw(p, {13.5, 465}, 3.5, 70);
    brush::screw(p, {943, 221}, 3.5, 10);
}

} // namespace

void addBackgrounds(std::vector<Picture>& table)
{
    table.push_back({"Background/BG_off.png", {stage::width, stage::height}, paintCase});
}
