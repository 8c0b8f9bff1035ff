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
enum row { row_idle, row_lit_white, row_lit_black };

void paintWhites(QPainter& p, const QColor& top, const QColor& bottom)
{
    for (int i = 0; i < whiteCount; ++i) {
        const QRectF key(i * whiteWidth, 0, whiteWidth - 1, whiteHeight);
        p.save();
        p.setClipRect(key);
        brush::fillRound(p, key.adjusted(0, -4, 0, 0), 2, mix(bottom, palette::graphite, 0.4));
        const QRectF face = key.adjusted(0, -4, 0, -3);
        brush::fillRound(p, face, 2, vertical(key, top, bottom));
        p.fillRect(QRectF(key.left(), 0, 1, whiteHeight - 4), withAlpha(Qt::white, 90));
        p.fillRect(QRectF(key.right() - 1, 0, 1, whiteHeight - 4), withAlpha(Qt::black, 30));
        p.restore();
    }
}

void paintBlacks(QPainter& p, const QColor& body, const QColor& light)
{
    for (const int left : blackLefts) {
        const QRectF key(left, 0, blackWidth, blackHeight);
        p.fillRect(key, palette::gap);
        const QRectF face(left + 1.5, 0, blackWidth - 3, blackHeight - 6);
        p.fillRect(key.adjusted(1, 0, -1, -1), vertical(key, body, mix(body, Qt::black, 0.3)));
        brush::fillRound(p, face.adjusted(0, -3, 0, 0), 1.5, vertical(face, mix(body, light, 0.4), light));
        p.fillRect(QRectF(left + 2, face.bottom() - 1, blackWidth - 4, 1), withAlpha(Qt::white, 110));
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
    const QRectF shade(0, 0, whiteCount * whiteWidth, 6);
    p.fillRect(shade, vertical(shade, withAlpha(Qt::black, 80), withAlpha(Qt::black, 0)));
}

void paintIdle(QPainter& p, bool lettered)
{
    p.fillRect(QRectF(0, 0, whiteCount * whiteWidth, whiteHeight), palette::gap);
    paintWhites(p, mix(palette::ivory, palette::ivoryShade, 0.8),
                mix(palette::ivory, palette::ivoryShade, 0.3));
    paintBlacks(p, palette::graphite, palette::graphiteLight);
    paintShadeUnderCase(p);
    if (lettered)
        paintLetters(p, palette::ink);
}

void paintLit(QPainter& p, row kind, bool lettered, const QColor& full, const QColor& light)
{
    if (kind == row_lit_black) {
        paintBlacks(p, mix(full, Qt::black, 0.25), light);
        p.setCompositionMode(QPainter::CompositionMode_DestinationIn); // only the keys themselves
        QPainterPath keys;
        for (const int left : blackLefts)
            keys.addRect(left, 0, blackWidth, blackHeight);
        p.setClipRect(QRectF(0, 0, whiteCount * whiteWidth, whiteHeight));
        p.fillPath(keys, Qt::black);
        p.setCompositionMode(QPainter::CompositionMode_SourceOver);
        return;
    }
    paintWhites(p, full, light);
    if (lettered)
        paintLetters(p, mix(full, Qt::black, 0.65));
    clearBlacks(p);
}

void paintSelectorSheet(QPainter& p)
{
    struct Colors
    {
        QColor full, light;
    };
    const Colors rows[] = {
        {palette::amber, palette::amberLight},
        {mix(palette::presetIdle, palette::blue, 0.35), mix(palette::blueLight, Qt::white, 0.1)}};
    for (int selector = 0; selector < 2; ++selector) {
        const Colors& colors = rows[selector];
        for (const row kind : {row_idle, row_lit_white, row_lit_black}) {
            p.save();
            p.translate(0, (selector * 3 + kind) * whiteHeight);
            p.setClipRect(QRectF(0, 0, whiteCount * whiteWidth, whiteHeight));
            if (kind == row_idle)
                paintIdle(p, selector == 0);
            else
                paintLit(p, kind, selector == 0, colors.full, colors.light);
            p.restore();
        }
    }
}

void paintSquare(QPainter& p)
{
    const QRectF plate(0, 0, 15, 10);
    brush::fillRound(p, plate, 2, vertical(plate, mix(palette::display, Qt::white, 0.35), palette::display));
    brush::strokeRound(p, plate, 2, withAlpha(palette::ink, 150));
}

void paintTrack(QPainter& p)
{
    const QRectF track(1, 1, 38, 13);
    brush::recess(p, track, 6.5, palette::well, palette::wellLight);
}

void paintKnob(QPainter& p, double x, const QColor& tint)
{
    const QRectF knob(x, 2, 15, 11);
    brush::fillRound(p, knob.translated(0, 1), 5.5, withAlpha(Qt::black, 120));
    brush::fillRound(p, knob, 5.5,
                     vertical(knob, mix(palette::metalLight, tint, 0.3), mix(palette::metalDark, tint, 0.3)));
    brush::strokeRound(p, knob, 5, withAlpha(Qt::white, 90));
    for (const double line : {5.5, 7.5, 9.5})
        p.fillRect(QRectF(x + line - 0.5, 5, 1, 5), withAlpha(Qt::black, 90));
}

void paintSwitchOff(QPainter& p)
{
    paintTrack(p);
    paintKnob(p, 2, palette::metal);
}

void paintSwitchOn(QPainter& p, const QColor& light)
{
    paintTrack(p);
    const QRectF lit(2, 2, 36, 11);
    brush::fillRound(p, lit, 5.5, vertical(lit, mix(light, Qt::black, 0.35), light));
    paintKnob(p, 23, light);
}

void paintSwitchNeutral(QPainter& p)
{
    paintTrack(p);
    paintKnob(p, 12.5, palette::metalEdge);
    brush::fillRound(p, QRectF(1, 1, 38, 13), 6.5, withAlpha(palette::well, 90));
}

void paintOpenButton(QPainter& p, bool active)
{
    const QRectF plate(1, 1, 20, 20);
    brush::fillRound(p, plate.translated(0, 1), 4, withAlpha(Qt::black, 90));
    brush::fillRound(p, plate, 4,
                     active ? vertical(plate, palette::metalDark, palette::metal)
                            : vertical(plate, palette::metalLight, palette::metalDark));
    brush::strokeRound(p, plate, 4, withAlpha(active ? palette::blue : QColor(Qt::black), 130));
    brush::strokeRound(p, QRectF(6, 8, 8, 8), 1, palette::well);
    brush::strokeRound(p, QRectF(9, 5, 8, 8), 1, palette::well);
}

} // namespace

void paintSleepingOctave(QPainter& painter, const QPointF& topLeft)
{
    painter.save();
    painter.translate(topLeft);
    painter.fillRect(QRectF(0, 0, whiteCount * whiteWidth, whiteHeight), palette::gap);
    paintWhites(painter, mix(palette::wellLight, palette::metalEdge, 0.6),
                mix(palette::wellLight, palette::metalEdge, 0.8));
    paintBlacks(painter, palette::well, palette::wellLight);
    paintShadeUnderCase(painter);
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
