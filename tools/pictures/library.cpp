// What the library browser lays on the display: panes, plates, the folder of a category, the mark of a
// stranger.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"
#include "tools/pictures/plates.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

void paintScene(QPainter& p)
{
    const auto caption = [&p](const QRectF& area, const QString& words) {
        brush::text(p, area, words, 10, true, palette::ink, Qt::AlignLeft | Qt::AlignVCenter, 1);
    };
    caption(QRectF(7, 4, 92, 16), QStringLiteral("CATEGORIES"));
    caption(QRectF(163, 4, 60, 16), QStringLiteral("SCALES"));
    for (const QRectF& pane : {QRectF(6, 23, 150, 83), QRectF(162, 23, 134, 83), QRectF(302, 23, 202, 83)})
        plates::paintPane(p, pane, 3, plates::paneGround());
}

void paintScaleLabel(QPainter& p)
{
    plates::paintPane(p, QRectF(0, 0, 92, 15), 3, mix(palette::display, Qt::white, 0.5));
}

void paintExclamation(QPainter& p)
{
    const QRectF disc(0.5, 0.5, 13, 13);
    brush::fillRound(p, disc, 6.5, palette::amberDark);
    brush::fillRound(p, disc.adjusted(1, 1, -1, -1), 5.5,
                     vertical(disc, palette::amberLight, palette::amber));
    p.fillRect(QRectF(5, 2, 4, 1), withAlpha(Qt::white, 120));
    const QColor bang = mix(palette::amberDark, Qt::black, 0.6);
    p.fillRect(QRectF(6, 3, 2, 5), bang);
    p.fillRect(QRectF(6, 9, 2, 2), bang);
}

// The back of a folder with its tab, and before it the front, a slit of ground apart.
void paintFolder(QPainter& p, const QColor& color)
{
    p.fillRect(QRectF(1, 1, 4, 1), color);
    p.fillRect(QRectF(1, 2, 10, 1), color);
    p.fillRect(QRectF(1, 3, 10, 1), withAlpha(color, 110));
    p.fillRect(QRectF(1, 4, 10, 5), color);
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
