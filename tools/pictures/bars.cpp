// The bars and lines along the keyboards.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

void paintBar(QPainter& p, const QSizeF& size, const QColor& tint)
{
    const QRectF bar(QPointF(), size);
    const QColor face = mix(palette::metalLight, tint, 0.22);
    p.fillRect(bar, vertical(bar, mix(face, Qt::white, 0.25), mix(face, palette::metalDark, 0.45)));
    p.fillRect(QRectF(0, 0, bar.width(), 1), withAlpha(Qt::white, 150));
    p.fillRect(QRectF(0, bar.height() - 1, bar.width(), 1), withAlpha(Qt::black, 90));
    p.fillRect(QRectF(0, 0, 1, bar.height()), withAlpha(Qt::white, 90));
    p.fillRect(QRectF(bar.width() - 1, 0, 1, bar.height()), withAlpha(Qt::black, 70));
}

void paintInputBar(QPainter& p)
{
    paintBar(p, QSizeF(907, 33), palette::blueLight); // degrees above, the anchors' rail below
    brush::recess(p, QRectF(2, 17, 903, 14), 2, palette::well, mix(palette::well, palette::blueDark, 0.35));
}

void paintOutputBar(QPainter& p)
{
    paintBar(p, QSizeF(907, 21), palette::amberLight);
}

void paintLine(QPainter& p, double width, const QColor& color)
{
    p.fillRect(QRectF(0, 0, width, 3), palette::well);
    p.fillRect(QRectF(0, 1, width, 1), mix(palette::wellLight, color, 0.55));
}

void paintHeaderGround(QPainter& p)
{
    const QRectF ground(0, 0, 907, 46);
    p.fillRect(ground, vertical(ground, mix(palette::well, palette::blueDark, 0.18),
                                mix(palette::wellLight, palette::blueDark, 0.32)));
    for (int y = 3; y < 46; y += 3)
        p.fillRect(QRectF(0, y, 907, 1), withAlpha(Qt::white, 8));
    const QRectF shade(0, 0, 907, 8);
    p.fillRect(shade, vertical(shade, withAlpha(Qt::black, 110), withAlpha(Qt::black, 0)));
}

} // namespace

void addBars(std::vector<Picture>& table)
{
    table.push_back({"INPUTanchorbar.png", {907, 33}, paintInputBar});
    table.push_back({"OUTPUTanchorbar.png", {907, 21}, paintOutputBar});
    table.push_back({"hlineIn.png", {903, 3}, [](QPainter& p) { paintLine(p, 903, palette::blue); }});
    table.push_back({"hlineOut.png", {907, 3}, [](QPainter& p) { paintLine(p, 907, palette::amber); }});
    table.push_back({"INPUTheaderBG.png", {907, 46}, paintHeaderGround});
}
