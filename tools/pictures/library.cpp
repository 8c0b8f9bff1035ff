// What the library browser lays on the display: panes, plates, the folder of a category, the mark of a
// stranger.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

// A pane lies deeper than the display: lighter ground, shade under its upper edge, light on its lower lip.
void paintPane(QPainter& p, const QRectF& area)
{
    brush::strokeRound(p, area.adjusted(0, 0, 0, 1), 3, withAlpha(Qt::white, 90));
    brush::fillRound(p, area, 3, mix(palette::display, Qt::white, 0.32));
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(area.left() + 1, area.top() + 1 + i, area.width() - 2, 1),
                   withAlpha(palette::ink, 44 - 14 * i));
    brush::strokeRound(p, area, 3, withAlpha(palette::ink, 150));
}

void paintScene(QPainter& p)
{
    const auto caption = [&p](const QRectF& area, const QString& words) {
        brush::text(p, area, words, 10, true, palette::ink, Qt::AlignLeft | Qt::AlignVCenter, 1);
    };
    caption(QRectF(7, 4, 92, 16), QStringLiteral("CATEGORIES"));
    caption(QRectF(163, 4, 60, 16), QStringLiteral("SCALES"));
    for (const QRectF& pane : {QRectF(6, 23, 150, 83), QRectF(162, 23, 134, 83), QRectF(302, 23, 202, 83)})
        paintPane(p, pane);
}

void paintScaleLabel(QPainter& p)
{
    const QRectF plate(0, 0, 92, 15);
    brush::strokeRound(p, plate.adjusted(0, 0, 0, 1), 3, withAlpha(Qt::white, 110));
    brush::fillRound(p, plate, 3, mix(palette::display, Qt::white, 0.5));
    for (int i = 0; i < 2; ++i)
        p.fillRect(QRectF(1, 1 + i, 90, 1), withAlpha(palette::ink, 44 - 22 * i));
    brush::strokeRound(p, plate, 3, withAlpha(palette::ink, 150));
}

void paintExclamation(QPainter& p)
{
    const QRectF disc(0.5, 0.5, 13, 13);
    brush::fillRound(p, disc, 6.5, palette::amberDark);
    brush::fillRound(p, disc.adjusted(1, 1, -1, -1), 5.5,
                     vertical(disc, palette::amberLight, palette::amber));
    const QColor bang = mix(palette::amberDark, Qt::black, 0.45);
    brush::fillRound(p, QRectF(6, 3, 2, 5), 0.8, bang);
    brush::fillRound(p, QRectF(6, 9, 2, 2), 0.8, bang);
}

void paintFolder(QPainter& p, const QColor& color)
{
    QPainterPath back;
    back.addRoundedRect(QRectF(1, 1, 5, 4), 1, 1);
    back.addRoundedRect(QRectF(1, 2, 10, 4), 1, 1);
    back.setFillRule(Qt::WindingFill);
    p.fillPath(back, withAlpha(color, 150));
    brush::fillRound(p, QRectF(1, 4, 10, 5), 1, color);
}

} // namespace

void addLibraryPictures(std::vector<Picture>& table)
{
    table.push_back({"LibraryScreen/LibBGScene.png", {532, 113}, paintScene});
    table.push_back({"LibraryScreen/LibExclamationMark.png", {14, 14}, paintExclamation});
    table.push_back({"LibraryScreen/LibListFolderIcon_neutral.png", {12, 10}, [](QPainter& p) {
                         paintFolder(p, palette::ink);
                     }});
    table.push_back({"LibraryScreen/LibListFolderIcon_active.png", {12, 10}, [](QPainter& p) {
                         paintFolder(p, mix(palette::display, Qt::white, 0.5));
                     }});
    table.push_back({"LibraryScreen/Buttons/Scale_label.png", {92, 16}, paintScaleLabel});
}
