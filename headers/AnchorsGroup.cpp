#include "headers/AnchorsGroup.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "headers/anchor_snap.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"

#include <QGraphicsSceneMouseEvent>

#include <algorithm>

namespace {

constexpr qreal dimmed = 0.01;

} // namespace

AnchorsGroup::AnchorsGroup()
    : gridRight(anchor_snap::grid(pitch_mapping::whiteKeyWidth)),
      gridLeft(anchor_snap::grid(-pitch_mapping::whiteKeyWidth))
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

QGraphicsItem* AnchorsGroup::findAnchorByName(const QString& name) const
{
    const auto anchors = childItems();
    const auto found = std::find_if(anchors.begin(), anchors.end(), [&name](const QGraphicsItem* anchor) {
        return key_roles::anchorName(anchor) == name;
    });
    return found != anchors.end() ? *found : nullptr;
}

void AnchorsGroup::refresh()
{
    const auto anchors = childItems();
    for (QGraphicsItem* anchor : anchors) {
        const qreal x = anchor->scenePos().x();
        anchor->setOpacity(x > anchor_snap::barRight || x < anchor_snap::barLeft ? dimmed : 1);
    }
}

void AnchorsGroup::slide(int whiteKeys, const QGraphicsItem& held)
{
    const int x = static_cast<int>(pos().x()) + whiteKeys * pitch_mapping::whiteKeyWidth;
    setX(anchor_snap::nearest(x > 0 ? gridRight : gridLeft, x));
    setX(anchor_snap::stop(held.scenePos().x(), held.x()).value_or(static_cast<int>(pos().x())));
    powerItem->changeScaleByTonic();
    refresh();
    storePlace();
    powerItem->remap();
}

// A drag that loses the pointer ends as if the hand had let go.
bool AnchorsGroup::sceneEvent(QEvent* event)
{
    if (event->type() == QEvent::UngrabMouse && isPressed) {
        QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
        if (scene->anchorDrag)
            mouseReleaseEvent(&release);
        isPressed = false;
    }
    return QGraphicsItemGroup::sceneEvent(event);
}

// Above the bar lie the keys, which get the press then. The pictures pass every button up to here.
void AnchorsGroup::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    isPressed = true;
    event->setAccepted(event->scenePos().y() >= anchor_snap::barTop);
}

void AnchorsGroup::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (!isPressed) {
        event->ignore();
        QGraphicsItemGroup::mouseMoveEvent(event);
        return;
    }
    scene->anchorDrag = true;
    event->setAccepted(event->scenePos().y() >= anchor_snap::barTop);
    QGraphicsItemGroup::mouseMoveEvent(event);
    setPos(placeFor(event->scenePos()), 0);
    powerItem->changeScaleByTonic();
    refresh();
}

int AnchorsGroup::placeFor(QPointF pointer) const
{
    const int x = static_cast<int>(pos().x());
    int place = anchor_snap::nearest(x > 0 ? gridRight : gridLeft, x);
    // The base has moved the group both ways, so the anchor in the hand is here, off the bar or on it.
    const auto items = scene->items(pointer, Qt::IntersectsItemShape, Qt::DescendingOrder);
    for (const QGraphicsItem* item : items)
        if (isAnchor(item))
            place = anchor_snap::stop(item->scenePos().x(), item->x()).value_or(place);
    return place;
}

bool AnchorsGroup::isAnchor(const QGraphicsItem* item) const
{
    const auto* group = qgraphicsitem_cast<const QGraphicsItemGroup*>(item);
    const auto isIn = [group](const QList<QGraphicsItemGroup*>& list) {
        return std::find(list.begin(), list.end(), group) != list.end();
    };
    return group && (group == powerItem->mainAnchorIn || isIn(powerItem->anchorsInRight) ||
                     isIn(powerItem->anchorsInLeft));
}

void AnchorsGroup::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        return; // another button: the drag goes on
    isPressed = false;
    scene->anchorDrag = false;
    // The base forgets where the drag began only when it sees no button down.
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    QGraphicsItemGroup::mouseReleaseEvent(&release);
    storePlace();
    powerItem->remap();
    scene->anchorDrag = false;
}

// Kept: whether the preset brings its position back at a recall is decided elsewhere; this only notes it.
void AnchorsGroup::storePlace() const
{
    if (HeaderItem* active = mainWnd->headerController->activeHeader)
        active->record.anchorPos = static_cast<int>(pos().x());
}
