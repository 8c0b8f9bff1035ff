// The small buttons of the library browser, and the one on the case that opens it.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"
#include "tools/pictures/plates.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

/// Draws a symbol of the given ink into 16 by 16 pixels; `ground` is what lies behind it.
using Symbol = void (*)(QPainter& p, const QColor& ink, const QColor& ground);

void paintPlus(QPainter& p, const QColor& ink, const QColor& /*ground*/)
{
    p.fillRect(QRectF(4, 7, 8, 2), ink);
    p.fillRect(QRectF(7, 4, 2, 3), ink);
    p.fillRect(QRectF(7, 9, 2, 3), ink);
}

void paintMinus(QPainter& p, const QColor& ink, const QColor& /*ground*/)
{
    p.fillRect(QRectF(4, 7, 8, 2), ink);
}

// All edges run through corners of pixels, so that both sides look alike.
void paintPencil(QPainter& p, const QColor& ink, const QColor& ground)
{
    QPainterPath body(QPointF(3, 13));
    for (const QPointF& corner : {QPointF(4, 9), QPointF(10, 3), QPointF(13, 6), QPointF(7, 12)})
        body.lineTo(corner);
    body.closeSubpath();
    p.fillPath(body, ink);
    p.setPen(QPen(ground, 1));
    p.drawLine(QPointF(8.5, 4.5), QPointF(11.5, 7.5)); // before the rubber
}

void paintNewScale(QPainter& p, const QColor& ink, const QColor& /*ground*/)
{
    p.fillRect(QRectF(3, 5, 5, 1), ink);
    p.fillRect(QRectF(5, 3, 1, 2), ink);
    p.fillRect(QRectF(5, 6, 1, 2), ink);
    const double heights[] = {3, 6, 9};
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(4 + 3 * i, 13 - heights[i], 2, heights[i]), ink);
}

void paintSheet(QPainter& p, const QRectF& area, const QColor& ink, const QColor& ground)
{
    p.fillRect(area, ink);
    p.fillRect(area.adjusted(1, 1, -1, -1), ground);
}

void paintCopy(QPainter& p, const QColor& ink, const QColor& ground)
{
    paintSheet(p, QRectF(3, 3, 7, 8), ink, ground);
    p.fillRect(QRectF(5, 4, 8, 9), ground);
    paintSheet(p, QRectF(6, 5, 7, 8), ink, ground);
    p.fillRect(QRectF(8, 7, 3, 1), ink);
    p.fillRect(QRectF(8, 9, 3, 1), ink);
}

void paintMove(QPainter& p, const QColor& ink, const QColor& ground)
{
    paintSheet(p, QRectF(3, 3, 7, 10), ink, ground);
    p.fillRect(QRectF(6, 5, 7, 6), ground);
    p.fillRect(QRectF(5, 7, 5, 2), ink);
    QPainterPath head;
    head.moveTo(9.5, 4.5);
    head.lineTo(13.4, 8);
    head.lineTo(9.5, 11.5);
    head.closeSubpath();
    p.fillPath(head, ink);
}

void paintBin(QPainter& p, const QColor& ink, const QColor& ground)
{
    p.fillRect(QRectF(7, 3, 2, 1), ink);
    p.fillRect(QRectF(4, 4, 8, 1), ink);
    brush::fillRound(p, QRectF(5, 6, 6, 7), 0.8, ink);
    for (const double slit : {6.0, 9.0})
        p.fillRect(QRectF(slit, 7, 1, 4), ground);
}

void paintSmallButton(QPainter& p, bool active, Symbol symbol)
{
    plates::paintPlate(p, QRectF(0, 0, 16, 15), 3, active ? plates::Look::pressed : plates::Look::neutral);
    p.save();
    if (active) // it goes down with its plate
        p.translate(0, 1);
    p.setClipRect(QRectF(1, 1, 14, 13)); // of the plate's face
    symbol(p, active ? mix(palette::display, Qt::white, 0.6) : palette::wellLight,
           active ? plates::sunkGround() : mix(palette::display, Qt::white, 0.35));
    p.restore();
}

// Pressed, it stays light: its words are ink in both states.
void paintAbbreviation(QPainter& p, bool active)
{
    const QRectF plate(0, 0, 42, 15);
    if (active)
        plates::paintPane(p, plate, 3, mix(palette::blueLight, Qt::white, 0.4));
    else
        plates::paintPlate(p, plate, 3, plates::Look::neutral);
}

// At 1x the letters of a font run together in so little room: there they are set by hand.
void paintWord(QPainter& p, const QRectF& area)
{
    constexpr const char* rows[] = {
        "#...#.###..###...##..###..#.#", "#...#.#..#.#..#.#..#.#..#.#.#", "#...#.###..###..####.###...#.",
        "#...#.#..#.#.#..#..#.#.#...#.", "###.#.###..#..#.#..#.#..#..#.",
    };
    if (p.transform().m11() > 1) {
        brush::text(p, area, QStringLiteral("LIBRARY"), 7, true, palette::well, Qt::AlignCenter, 0.4);
        return;
    }
    for (int row = 0; row < 5; ++row)
        for (int column = 0; column < 29; ++column)
            if (rows[row][column] == '#')
                p.fillRect(QRectF(area.left() + 5 + column, area.top() + 2 + row, 1, 1), palette::well);
}

void paintAccess(QPainter& p, bool lit, bool active)
{
    brush::recess(p, QRectF(1, 1, 40, 13), 3, palette::well, palette::well);
    const QRectF cap(2, 2, 38, active ? 12 : 11);
    const QColor top = active ? mix(palette::metal, palette::metalDark, 0.6) : palette::metalLight;
    brush::fillRound(p, cap, 2, vertical(cap, top, active ? palette::metal : mix(palette::metal, top, 0.15)));
    if (active) {
        brush::fadeDown(p, QRectF(cap.topLeft(), QSizeF(cap.width(), 5)), withAlpha(Qt::black, 120));
    } else {
        p.fillRect(QRectF(cap.left() + 1, cap.top(), cap.width() - 2, 1), withAlpha(Qt::white, 170));
        p.fillRect(QRectF(cap.left() + 1, cap.bottom() - 1, cap.width() - 2, 1), withAlpha(Qt::black, 60));
    }
    const double down = active ? 1 : 0;
    const QRectF lamp(13, 3 + down, 16, 2);
    if (lit)
        brush::halo(p, lamp, 1, 3, withAlpha(palette::presetIdle, 170));
    brush::fillRound(p, lamp, 1, lit ? palette::presetIdle : palette::well);
    if (lit)
        brush::fillRound(p, lamp.adjusted(2, 0, -2, -1), 0.5, mix(palette::presetIdle, Qt::white, 0.75));
    paintWord(p, QRectF(cap.left(), 4 + down, cap.width(), 9));
}

/// One picture for each look of a button.
template <typename Paint>
void addBoth(std::vector<Picture>& table, const char* name, const QSize& size, Paint paint)
{
    for (const bool active : {false, true})
        table.push_back({QStringLiteral("LibraryScreen/Buttons/%1_%2.png")
                             .arg(QLatin1String(name), QLatin1String(active ? "active" : "neutral")),
                         size, [paint, active](QPainter& p) { paint(p, active); }});
}

constexpr struct
{
    const char* name;
    Symbol symbol;
} smallButtons[] = {
    {"LibCatPlus", paintPlus},   {"LibCatMinus", paintMinus}, {"LibCatRename", paintPencil},
    {"LibAdd", paintNewScale},   {"LibNameCopy", paintCopy},  {"LibNameMove", paintMove},
    {"LibNameDelete", paintBin},
};

} // namespace

void addLibraryButtons(std::vector<Picture>& table)
{
    for (const auto& button : smallButtons)
        addBoth(table, button.name, {16, 16},
                [symbol = button.symbol](QPainter& p, bool active) { paintSmallButton(p, active, symbol); });
    const QSize plate(42, 16);
    for (const char* name : {"LibDescrAbb1", "LibDescrAbb2"})
        addBoth(table, name, plate, paintAbbreviation);
    addBoth(table, "LibAccessOpen", plate, [](QPainter& p, bool active) { paintAccess(p, false, active); });
    addBoth(table, "LibAccessClose", plate, [](QPainter& p, bool active) { paintAccess(p, true, active); });
}
