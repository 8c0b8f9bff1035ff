#include "headers/AnchorsGroup.h"

namespace {

constexpr qreal barLeft = -374, barRight = 476; // of an anchor's x in the scene
constexpr qreal dimmed = 0.01;

} // namespace

void AnchorsGroup::refresh()
{
    const auto anchors = childItems();
    for (QGraphicsItem* anchor : anchors) {
        const qreal x = anchor->scenePos().x();
        anchor->setOpacity(x > barRight || x < barLeft ? dimmed : 1);
    }
}
