// One gesture from press to release, and the glissando over keys.

#include "headers/DiagramScene.h"

#include "app/MainWnd.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/midi_status.h"

#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>

namespace {

bool isKey(const ResizableItem* item)
{
    return item && !key_roles::isPower(item) && !key_roles::isHeader(item);
}

} // namespace

DiagramScene::DiagramScene(PowerItem* power, QWidget* widget)
    : QGraphicsScene(widget), parentWidget(widget), powerItem(power)
{
}

void DiagramScene::endGesture()
{
    leftDown = false;
    anchorDrag = false;
    lastItem = nullptr;
    dropTarget = nullptr;
    currentItem = nullptr;
}

void DiagramScene::beginGesture(const QGraphicsSceneMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    endGesture(); // whatever the last one left
    leftDown = true;
}

void DiagramScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    beginGesture(*event);
    QGraphicsScene::mousePressEvent(event);
}

// The second press of a quick pair is a press too.
void DiagramScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    beginGesture(*event);
    QGraphicsScene::mouseDoubleClickEvent(event);
}

void DiagramScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    // Another button may come and go while the left one holds a key or an item.
    const bool ended = !(event->buttons() & Qt::LeftButton);
    if (ended) {
        const bool learning = mainWnd->isLearning();
        if (lastItem && (learning || isKey(currentItem)))
            lastItem->releaseKey();
        if (leftDown && !learning)
            settleDrop();
        else if (isDragging())
            aimAt(nullptr);
        endGesture();
    }
    QGraphicsScene::mouseReleaseEvent(event);
    // As long as any button is down the item would keep the mouse, and the next press would be its own.
    if (ended)
        freePointer();
}

bool DiagramScene::event(QEvent* event)
{
    if (event->type() == QEvent::WindowDeactivate)
        loseHand();
    return QGraphicsScene::event(event);
}

void DiagramScene::freePointer()
{
    if (QGraphicsItem* held = mouseGrabberItem())
        held->ungrabMouse();
}

void DiagramScene::loseHand()
{
    freePointer(); // the item ends its part, and calls abandonGesture()
    endGesture();
}

void DiagramScene::abandonGesture()
{
    if (lastItem && isKey(currentItem))
        lastItem->releaseKey();
    if (isDragging())
        aimAt(nullptr);
    endGesture();
}

bool DiagramScene::isDragging() const
{
    return currentItem && !isKey(currentItem) && currentItem->dragStarted;
}

void DiagramScene::mouseMoveHandle(QPointF pos)
{
    if (!leftDown || (currentItem && key_roles::name(currentItem).isEmpty()))
        return;
    if (isDragging())
        drag(pos);
    else
        sweep(pos);
}

void DiagramScene::sweep(QPointF pos)
{
    if (currentItem && !isKey(currentItem) && !views().isEmpty())
        currentItem = dynamic_cast<ResizableItem*>(itemAt(pos, views().first()->transform()));
    if (!currentItem || isPassedOver(currentItem))
        return;
    if (!isKey(currentItem))
        dropTarget = currentItem;
    ResizableItem* key = currentItem;
    if (lastItem == key)
        return;
    ResizableItem* left = lastItem;
    lastItem = key; // before the press: a recall runs the event loop, and the gesture may end in there
    if (!left)
        return;
    left->releaseKey();
    key->pushKey();
    if (mainWnd->midiOutOpen)
        key->sendOutMidi(midi_status::noteOn, 0); // kept: note 0 sends nothing
}

// Keys that stand for presets or for the power are not swept: the last white key goes on sounding.
bool DiagramScene::isPassedOver(const ResizableItem* key) const
{
    if (mainWnd->isLearning())
        return false;
    if (powerItem->isSwitchOn())
        return key_roles::isIn(key) && key_roles::isBlack(key);
    return key_roles::pitch(key) == key_roles::pitch(powerItem);
}
