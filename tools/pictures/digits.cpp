// The four digit sheets: pixel glyphs, set by hand so that they stay sharp.

#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <array>

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

// For the sheets that show negative numbers: sign and digit touch, so the four has no stroke beside the sign.
const Glyph signedGlyphs[] = {
    {0, {"...", "...", "...", "###", "...", "...", "...", "..."}},
    {19, {"...#.", "..##.", "..##.", ".#.#.", ".#.#.", "#####", "...#.", "...#."}},
};

const Glyph& shapeOf(const Glyph& plain, bool isSigned)
{
    for (const Glyph& glyph : signedGlyphs)
        if (isSigned && glyph.column == plain.column)
            return glyph;
    return plain;
}

void paintGlyph(QPainter& p, const Glyph& glyph, const QColor& color)
{
    for (int y = 0; y < 8; ++y)
        for (int x = 0; glyph.rows[static_cast<std::size_t>(y)][x]; ++x)
            if (glyph.rows[static_cast<std::size_t>(y)][x] == '#')
                p.fillRect(glyph.column + x, y, 1, 1, color);
}

void paintDigits(QPainter& p, const QColor& color, bool isSigned)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    for (const Glyph& glyph : glyphs)
        paintGlyph(p, shapeOf(glyph, isSigned), color);
}

} // namespace

void addDigitSheets(std::vector<Picture>& table)
{
    const auto add = [&table](int sheet, const QColor& color, bool isSigned) {
        table.push_back({QStringLiteral("Numb%1.png").arg(sheet), {63, 8}, [=](QPainter& p) {
                             paintDigits(p, color, isSigned);
                         }});
    };
    add(0, Qt::white, true);           // on the input anchors
    add(1, palette::amberLight, true); // on the output anchors
    add(2, palette::blueDark, false);  // on the selector squares
    add(3, palette::well, false);      // on the bars
}
