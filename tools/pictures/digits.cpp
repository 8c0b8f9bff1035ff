// The four digit sheets: pixel glyphs, set by hand so that they stay sharp.

#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <array>
#include <cstring>
#include <vector>

namespace {

struct Glyph
{
    int column;
    std::array<const char*, 8> rows;
};

const Glyph glyphs[] = {
    {0, {"...", "...", "...", "...", "###", "...", "...", "..."}},
    {4, {".#.", "##.", ".#.", ".#.", ".#.", ".#.", ".#.", "###"}},
    {8, {".##.", "#..#", "...#", "...#", "..#.", ".#..", "#...", "####"}},
    {13, {".###.", "#...#", "....#", "..##.", "....#", "....#", "#...#", ".###."}},
    {19, {"...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#.", "...#."}},
    {25, {"####", "#...", "#...", "###.", "...#", "...#", "#..#", ".##."}},
    {30, {".####.", "#.....", "#.....", "#####.", "#....#", "#....#", "#....#", ".####."}},
    {37, {"#####", "....#", "....#", "...#.", "...#.", "..#..", "..#..", "..#.."}},
    {43, {".####.", "#....#", "#....#", ".####.", "#....#", "#....#", "#....#", ".####."}},
    {50, {".####.", "#....#", "#....#", "#....#", ".#####", ".....#", ".....#", ".####."}},
    {57, {".####.", "#....#", "#....#", "#....#", "#....#", "#....#", "#....#", ".####."}},
};

using Glyphs = std::vector<Glyph>;

// For the sheets that show negative numbers: sign and digit touch, so the four has no stroke beside the sign.
const Glyphs signedGlyphs = {
    {0, {"...", "...", "...", "###", "...", "...", "...", "..."}},
    {19, {"...#.", "..##.", "..##.", ".#.#.", ".#.#.", "#####", "...#.", "...#."}},
};

// For the bars, where the twelve numbers of a chromatic scale stand close: the one has no foot to run into
// its neighbours, and the broad ones are narrower.
const Glyphs narrowGlyphs = {
    {4, {".#.", "##.", ".#.", ".#.", ".#.", ".#.", ".#.", ".#."}},
    {30, {"..##..", ".#....", ".#....", ".###..", ".#..#.", ".#..#.", ".#..#.", "..##.."}},
    {43, {"..##..", ".#..#.", ".#..#.", "..##..", ".#..#.", ".#..#.", ".#..#.", "..##.."}},
    {50, {".##...", "#..#..", "#..#..", "#..#..", ".###..", "...#..", "...#..", ".##..."}},
    {57, {".##...", "#..#..", "#..#..", "#..#..", "#..#..", "#..#..", "#..#..", ".##..."}},
};

const Glyph& shapeOf(const Glyph& plain, const Glyphs& instead)
{
    for (const Glyph& glyph : instead)
        if (glyph.column == plain.column)
            return glyph;
    return plain;
}

bool isInk(const Glyph& glyph, int x, int y)
{
    if (x < 0 || y < 0 || y >= 8)
        return false;
    const char* row = glyph.rows[static_cast<std::size_t>(y)];
    return x < static_cast<int>(std::strlen(row)) && row[x] == '#';
}

/// True if a quarter of a pixel has ink; `right` and `down` are -1 or 1. A corner of two strokes that meet is
/// filled and the outer corner of a bend is taken off, so that dense screens see slopes instead of stairs.
bool isInkInQuarter(const Glyph& glyph, int x, int y, int right, int down)
{
    const bool beside = isInk(glyph, x + right, y), along = isInk(glyph, x, y + down);
    const bool bend =
        beside == along && beside != isInk(glyph, x - right, y) && along != isInk(glyph, x, y - down);
    return bend ? beside : isInk(glyph, x, y);
}

void paintQuarters(QPainter& p, const Glyph& glyph, int x, int y, const QColor& color)
{
    for (const int right : {-1, 1})
        for (const int down : {-1, 1})
            if (isInkInQuarter(glyph, x, y, right, down))
                p.fillRect(
                    QRectF(glyph.column + x + (right > 0 ? 0.5 : 0), y + (down > 0 ? 0.5 : 0), 0.5, 0.5),
                    color);
}

void paintGlyph(QPainter& p, const Glyph& glyph, const QColor& color)
{
    const bool dense = p.worldTransform().m11() > 1;
    const int width = static_cast<int>(std::strlen(glyph.rows[0]));
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < width; ++x)
            if (dense)
                paintQuarters(p, glyph, x, y, color);
            else if (isInk(glyph, x, y))
                p.fillRect(glyph.column + x, y, 1, 1, color);
}

void paintDigits(QPainter& p, const QColor& color, const Glyphs& instead)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    for (const Glyph& glyph : glyphs)
        paintGlyph(p, shapeOf(glyph, instead), color);
}

} // namespace

void addDigitSheets(std::vector<Picture>& table)
{
    const auto add = [&table](int sheet, const QColor& color, const Glyphs& instead) {
        table.push_back({QStringLiteral("Numb%1.png").arg(sheet), {63, 8}, [=](QPainter& p) {
                             paintDigits(p, color, instead);
                         }});
    };
    add(0, Qt::white, signedGlyphs);           // on the input anchors
    add(1, palette::amberLight, signedGlyphs); // on the output anchors
    add(2, palette::blueDark, {});             // on the selector squares
    add(3, palette::well, narrowGlyphs);       // on the bars
}
