// The small buttons of the library browser, and the one on the case that opens it.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

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

void paintPencil(QPainter& p, const QColor& ink, const QColor& /*ground*/)
{
    p.save();
    p.translate(3.6, 12.0);
    p.rotate(45);
    QPainterPath body; // the tip stands at the origin
    body.moveTo(0, 0);
    body.lineTo(1.9, -3.4);
    body.lineTo(1.9, -8.4);
    body.lineTo(-1.9, -8.4);
    body.lineTo(-1.9, -3.4);
    body.closeSubpath();
    body.addRoundedRect(QRectF(-1.9, -11.6, 3.8, 2.2), 0.7, 0.7);
    p.fillPath(body, ink);
    p.restore();
    p.fillRect(QRectF(8, 12, 5, 1), ink);
}

void paintNewScale(QPainter& p, const QColor& ink, const QColor& /*ground*/)
{
    p.fillRect(QRectF(3, 5, 5, 1), ink);
    p.fillRect(QRectF(5, 3, 1, 2), ink);
    p.fillRect(QRectF(5, 6, 1, 2), ink);
    const double heights[] = {2, 4, 7};
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(4 + 3 * i, 12 - heights[i], 2, heights[i]), ink);
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
    const QRectF plate(0, 0, 16, 15);
    const QColor dark = mix(palette::ink, palette::displayShade, 0.1);
    const QColor light = mix(palette::display, Qt::white, 0.55);
    if (!active)
        brush::fillRound(p, plate.translated(0, 1), 3, withAlpha(palette::ink, 90));
    brush::fillRound(p, plate, 3,
                     active ? vertical(plate, dark, mix(palette::ink, palette::displayShade, 0.22))
                            : vertical(plate, mix(palette::display, Qt::white, 0.75), palette::display));
    brush::strokeRound(p, plate, 3, withAlpha(palette::ink, 170));
    symbol(p, active ? light : palette::ink, active ? dark : mix(palette::display, Qt::white, 0.4));
}

void paintAbbreviation(QPainter& p, bool active)
{
    const QRectF plate(0, 0, 42, 15);
    if (!active)
        brush::fillRound(p, plate.translated(0, 1), 3, withAlpha(palette::ink, 90));
    brush::fillRound(p, plate, 3,
                     active ? vertical(plate, mix(palette::blueLight, palette::blue, 0.1),
                                       mix(palette::blueLight, Qt::white, 0.2))
                            : vertical(plate, mix(palette::display, Qt::white, 0.8),
                                       mix(palette::display, Qt::white, 0.25)));
    brush::strokeRound(p, plate, 3, withAlpha(palette::ink, active ? 220 : 150));
}

void paintAccess(QPainter& p, bool lit, bool active)
{
    const QRectF cap = active ? QRectF(1, 2, 40, 13) : QRectF(1, 1, 40, 13);
    brush::recess(p, QRectF(0.5, 0.5, 41, 14.5), 3, palette::well, palette::wellLight);
    brush::fillRound(p, cap, 2.5,
                     active
                         ? vertical(cap, mix(palette::metalDark, palette::metal, 0.3), palette::metal)
                         : vertical(cap, palette::metalLight, mix(palette::metal, palette::metalDark, 0.4)));
    if (!active)
        p.fillRect(QRectF(cap.left() + 2, cap.top(), cap.width() - 4, 1), withAlpha(Qt::white, 150));
    const QRectF lamp(cap.left() + 12, cap.top() + 2, 16, 2);
    if (lit)
        brush::fillRound(p, lamp.adjusted(-1.5, -1, 1.5, 1), 2, withAlpha(palette::presetIdle, 120));
    brush::fillRound(p, lamp, 1, lit ? mix(palette::presetIdle, Qt::white, 0.35) : palette::well);
    brush::text(p, QRectF(cap.left(), cap.top() + 4, cap.width(), 9), QStringLiteral("LIBRARY"), 7, true,
                palette::well, Qt::AlignCenter, 0.4);
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
