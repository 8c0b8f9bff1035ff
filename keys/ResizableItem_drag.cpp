// The pointer between press and release: a glissando over keys, a drag of the power button or a header.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"
#include "logging/categories.h"

#include <QGraphicsSceneMouseEvent>

namespace {

constexpr int sweepReach = 2;           // semitones looked at on each side
constexpr qreal atRest = 0, inHand = 1; // z
constexpr qreal lowestHome = 16;        // x of the leftmost flag, one pixel beyond where a drag may go
constexpr qreal dragDistance = 4;       // more than a drop target is looked for around the pointer

/// A click shakes by a pixel or two, and the next flag is as near as that.
bool isClick(const QGraphicsSceneMouseEvent& event)
{
    const QPointF way = event.scenePos() - event.buttonDownScenePos(Qt::LeftButton);
    return way.manhattanLength() < dragDistance;
}

/// The in key at a place of the scene, looked for close to a pitch; null if none of them is there.
ResizableItem* findKeyNear(int pitch, QPointF place)
{
    const int from = qMax(pitch - sweepReach, pitch_mapping::lowestPitch);
    const int to = qMin(pitch + sweepReach, pitch_mapping::highestPitch);
    for (int p = from; p <= to; ++p) {
        ResizableItem* key = mainWnd->findInNote(p);
        if (key && key->contains(key->mapFromScene(place)))
            return key;
    }
    return nullptr;
}

} // namespace

void ResizableItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (!mouseHeld || mainWnd->dialogOpen)
        return;
    qCDebug(lcKeys) << "ResizableItem::mouseMoveEvent";
    if (key_roles::isPower(this)) {
        dragPower(*event);
    } else if (key_roles::isHeader(this)) {
        if (!mainWnd->isLearning() && (flags() & ItemIsMovable))
            dragAlong(*event);
    } else {
        sweep(event->scenePos());
    }
    if (mainWnd->learnScale)
        qCDebug(lcKeys) << "ResizableItem::mouseMoveEvent learn key";
}

// The place is the event's own, not the cursor's, which may be keys ahead of it. Out keys are not swept.
void ResizableItem::sweep(QPointF pointer)
{
    auto* stage = qobject_cast<DiagramScene*>(scene());
    if (!stage || !key_roles::isIn(this))
        return;
    stage->armed = false;
    if (!stage->currentItem) {
        stage->currentItem = this;
        stage->lastItem = this; // pressed already: a first move that leaves it must release it
    }
    if (ResizableItem* key = findKeyNear(key_roles::pitch(stage->currentItem), pointer))
        stage->currentItem = key;
    stage->mouseMoveHandle(pointer);
    setFlag(ItemIsMovable, false);
}

void ResizableItem::dragPower(const QGraphicsSceneMouseEvent& event)
{
    PowerItem* power = mainWnd->powerItem;
    if (!powerGrabbed) {
        dragAlong(event);
        if (dragStarted)
            power->showDrop();
    } else if (PowerItem::isOnButton(event.pos())) {
        power->showPressed();
    } else {
        power->showSwitch(power->isSwitchOn()); // let go here, it does not switch
    }
}

void ResizableItem::dragAlong(const QGraphicsSceneMouseEvent& event)
{
    auto* stage = qobject_cast<DiagramScene*>(scene());
    if (!stage || (!dragStarted && isClick(event)))
        return;
    if (!dragStarted) {
        dragStarted = true;
        gripX = event.buttonDownScenePos(Qt::LeftButton).x() - x();
        setZValue(inHand);
    }
    stage->currentItem = this;
    stage->mouseMoveHandle(event.scenePos());
    // The item's place is the pointer's; its picture keeps to the spot where the hand took it.
    const qreal left = event.scenePos().x() - gripX;
    setOffset(qBound<qreal>(lowestHome, left, DiagramScene::rowRight) - x(), 0);
}

void ResizableItem::endDrag()
{
    dragStarted = false;
    setOffset(0, 0);
    setZValue(atRest);
}
