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

void paintDigits(QPainter& p, const QColor& color)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    for (const Glyph& glyph : glyphs)
        for (int y = 0; y < 8; ++y)
            for (int x = 0; glyph.rows[static_cast<std::size_t>(y)][x]; ++x)
                if (glyph.rows[static_cast<std::size_t>(y)][x] == '#')
                    p.fillRect(glyph.column + x, y, 1, 1, color);
}

} // namespace

void addDigitSheets(std::vector<Picture>& table)
{
    // On the input anchors, the output anchors, the selector squares and the bars.
    const QColor colors[] = {Qt::white, palette::amberDark, palette::blueDark, palette::ink};
    for (int sheet = 0; sheet < 4; ++sheet)
        table.push_back({QStringLiteral("Numb%1.png").arg(sheet),
                         {63, 8},
                         [color = colors[sheet]](QPainter& p) { paintDigits(p, color); }});
}
