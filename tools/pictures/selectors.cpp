// The selector octaves, their number squares and switches.

#include "tools/pictures/selectors.h"

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

constexpr int whiteCount = 7, whiteWidth = 17, whiteHeight = 60, blackWidth = 10, blackHeight = 38;
constexpr int blackLefts[] = {12, 29, 63, 80, 97};
constexpr char letters[] = "CDEFGAB";

/// How a row of keys takes the light.
struct RowLook
{
    QColor top, bottom;     ///< of the white faces
    QColor black, blackEnd; ///< of the black tops
    int edge;               ///< what the edges catch, 0 to 255
};

void paintWhites(QPainter& p, const RowLook& look)
{
    constexpr double faceEnd = 56;
    for (int i = 0; i < whiteCount; ++i) {
        const QRectF key(i * whiteWidth, 0, whiteWidth - 1, whiteHeight); // the gap is the last column
        const QRectF lip(key.left(), faceEnd - 2, key.width(), 6);
        const QColor front = mix(look.bottom, palette::graphite, 0.3);
        p.save();
        p.setClipRect(key);
        brush::fillRound(p, key.adjusted(0, -4, 0, -1), 2, vertical(lip, front, mix(front, Qt::black, 0.3)));
        brush::fillRound(p, QRectF(key.left(), -4, key.width(), faceEnd + 4), 2,
                         vertical(key, look.top, look.bottom));
        p.fillRect(QRectF(key.left(), 0, 1, faceEnd - 1), withAlpha(Qt::white, look.edge * 2 / 3));
        p.fillRect(QRectF(key.right() - 1, 0, 1, faceEnd - 1), withAlpha(Qt::black, 36));
        p.fillRect(QRectF(key.left() + 1, faceEnd - 1, key.width() - 2, 1), withAlpha(Qt::white, look.edge));
        p.restore();
    }
    for (const int left : blackLefts) // black keys shade what lies before them
        brush::fadeDown(p, QRectF(left - 1, blackHeight, blackWidth + 2, 4), withAlpha(Qt::black, 70));
}

void paintBlacks(QPainter& p, const RowLook& look)
{
    constexpr double end = blackHeight - 6;
    for (const int left : blackLefts) {
        const QRectF key(left, 0, blackWidth, blackHeight), top(left + 1, 0, blackWidth - 2, end);
        const QRectF slope(left + 1, end, blackWidth - 2, blackHeight - 1 - end);
        p.fillRect(key, palette::gap);
        p.save();
        p.setClipRect(key);
        const QColor front = mix(look.black, look.blackEnd, 0.4);
        p.fillRect(slope, vertical(slope, front, mix(front, Qt::black, 0.45)));
        brush::fillRound(p, top.adjusted(0, -4, 0, 0), 1.5, vertical(top, look.black, look.blackEnd));
        p.fillRect(QRectF(left + 1, 0, 1, end - 1), withAlpha(Qt::white, look.edge / 4));
        p.fillRect(QRectF(left + 8, 0, 1, end), withAlpha(Qt::black, 90));
        p.fillRect(QRectF(left + 2, end - 1, blackWidth - 4, 1), withAlpha(Qt::white, look.edge * 2 / 3));
        p.restore();
    }
}

void clearBlacks(QPainter& p)
{
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const int left : blackLefts)
        p.fillRect(QRectF(left, 0, blackWidth, blackHeight), Qt::black);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void paintLetters(QPainter& p, const QColor& color)
{
    for (int i = 0; i < whiteCount; ++i)
        brush::text(p, QRectF(i * whiteWidth, 43, whiteWidth - 1, 12), QString(QLatin1Char(letters[i])), 9,
                    true, color);
}

void paintShadeUnderCase(QPainter& p)
{
    brush::fadeDown(p, QRectF(0, 0, whiteCount * whiteWidth, 8), withAlpha(Qt::black, 130));
}

RowLook idleLook()
{
    using namespace palette;
    return {mix(ivory, ivoryShade, 0.9), mix(ivory, ivoryShade, 0.15), graphite,
            mix(graphite, graphiteLight, 0.65), 180};
}

RowLook sleepingLook()
{
    using namespace palette;
    return {mix(wellLight, metalEdge, 0.55), mix(wellLight, metalEdge, 0.85), well, mix(well, wellLight, 0.9),
            45};
}

RowLook litLook(const QColor& full, const QColor& light)
{
    return {full, mix(light, Qt::white, 0.15), mix(full, Qt::black, 0.35), light, 210};
}

void paintIdle(QPainter& p, const RowLook& look)
{
    p.fillRect(QRectF(0, 0, whiteCount * whiteWidth, whiteHeight), palette::gap);
    paintWhites(p, look);
    paintBlacks(p, look);
    paintShadeUnderCase(p);
}

void paintSelector(QPainter& p, bool lettered, const RowLook& lit, const QColor& letterOnLit)
{
    paintIdle(p, idleLook());
    if (lettered)
        paintLetters(p, palette::ink);
    p.translate(0, whiteHeight);
    paintWhites(p, lit);
    if (lettered)
        paintLetters(p, letterOnLit);
    clearBlacks(p);
    p.translate(0, whiteHeight);
    paintBlacks(p, lit);
}

void paintSelectorSheet(QPainter& p)
{
    using namespace palette;
    p.save();
    paintSelector(p, true, litLook(amber, amberLight), mix(amberDark, Qt::black, 0.25));
    p.restore();
    p.translate(0, 3 * whiteHeight);
    paintSelector(p, false, litLook(mix(presetIdle, blueDark, 0.12), mix(blueLight, presetIdle, 0.12)),
                  blueDark);
}

// A little window of the display, just large enough for two digits.
void paintSquare(QPainter& p)
{
    const QRectF frame(0, 0, 15, 10), pane(1, 1, 13, 8);
    brush::fillRound(p, frame, 2, vertical(frame, palette::ink, mix(palette::ink, palette::metalDark, 0.4)));
    p.fillRect(pane, mix(palette::display, Qt::white, 0.35));
    p.fillRect(QRectF(1, 1, 13, 1), withAlpha(palette::ink, 46));
}

void paintTrack(QPainter& p)
{
    brush::recess(p, QRectF(1, 1, 38, 13), 6.5, palette::well, palette::wellLight);
}

void paintKnob(QPainter& p, double x, const QColor& top, const QColor& bottom)
{
    const QRectF knob(x, 2, 16, 11);
    brush::halo(p, knob, 5.5, 2, withAlpha(Qt::black, 200));
    brush::fillRound(p, knob, 5.5, vertical(knob, top, bottom));
    brush::strokeRound(p, knob, 5.5, withAlpha(Qt::black, 80));
    p.fillRect(QRectF(x + 4, 2, 8, 1), mix(top, Qt::white, 0.4));
    for (const int line : {5, 7, 9}) {
        p.fillRect(QRectF(x + line, 5, 1, 5), withAlpha(Qt::black, 100));
        p.fillRect(QRectF(x + line + 1, 5, 1, 5), withAlpha(Qt::white, 90));
    }
}

void paintSwitchOff(QPainter& p)
{
    paintTrack(p);
    paintKnob(p, 2, palette::metalLight, palette::metalDark);
}

void paintSwitchOn(QPainter& p, const QColor& light)
{
    paintTrack(p);
    const QRectF lit(2, 2, 36, 11);
    brush::fillRound(p, lit, 5.5, vertical(lit, mix(light, Qt::black, 0.30), mix(light, Qt::white, 0.2)));
    brush::fadeDown(p, QRectF(6, 2, 28, 4), withAlpha(Qt::black, 110));
    paintKnob(p, 22, mix(palette::metalLight, Qt::white, 0.4), palette::metal);
}

void paintSwitchNeutral(QPainter& p)
{
    paintTrack(p);
    paintKnob(p, 12, mix(palette::metalDark, palette::metalEdge, 0.5), palette::metalEdge);
    brush::fillRound(p, QRectF(1, 1, 38, 13), 6.5, withAlpha(palette::well, 80));
}

void paintOpenButton(QPainter& p, bool active)
{
    const QRectF plate(1, 1, 20, 20);
    brush::fillRound(p, plate.translated(0, 1), 4, withAlpha(Qt::black, 90));
    brush::fillRound(p, plate, 4,
                     active ? vertical(plate, palette::metalDark, palette::metal)
                            : vertical(plate, palette::metalLight, palette::metalDark));
    brush::strokeRound(p, plate, 4, withAlpha(active ? palette::blue : QColor(Qt::black), 130));
    const QRectF back(9, 5, 8, 8), front(5, 9, 8, 8); // one window behind another
    brush::strokeRound(p, back, 1, palette::well);
    p.fillRect(front, palette::metal);
    brush::strokeRound(p, front, 1, palette::well);
    p.fillRect(QRectF(front.left() + 1, front.top() + 1, 6, 1), palette::well);
}

} // namespace

void paintSleepingOctave(QPainter& painter, const QPointF& topLeft)
{
    painter.save();
    painter.translate(topLeft);
    paintIdle(painter, sleepingLook());
    painter.restore();
}

void addSelectorPictures(std::vector<Picture>& table)
{
    table.push_back({"KeyboardTonic.png", {119, 360}, paintSelectorSheet});
    table.push_back({"SquareButton.png", {15, 10}, paintSquare});
    const QSize size(40, 16);
    for (const bool scale : {false, true}) {
        const QString name = QStringLiteral("Switch/%1Switch").arg(QLatin1String(scale ? "Scale" : "Tonic"));
        const QColor light = scale ? palette::presetIdle : palette::amber;
        table.push_back({name + QStringLiteral("Neutral.png"), size, paintSwitchNeutral});
        table.push_back({name + QStringLiteral("Off.png"), size, paintSwitchOff});
        table.push_back(
            {name + QStringLiteral("On.png"), size, [light](QPainter& p) { paintSwitchOn(p, light); }});
    }
    table.push_back({"Switch/OpenWnd.png", {22, 22}, [](QPainter& p) { paintOpenButton(p, false); }});
    table.push_back({"Switch/OpenWnd_active.png", {22, 22}, [](QPainter& p) { paintOpenButton(p, true); }});
}
