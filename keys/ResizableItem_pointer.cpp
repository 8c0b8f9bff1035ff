// The pointer on keys, on the power button and on headers: hover, press, release. What happens between press
// and release stands in ResizableItem_drag.cpp.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "logging/categories.h"

#include <QGraphicsSceneMouseEvent>

void ResizableItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    if (key_roles::isPower(this)) {
        powerGrabbed = PowerItem::isOnButton(event->pos());
        if (powerGrabbed)
            mainWnd->powerItem->showHover();
    }
    QGraphicsPixmapItem::hoverEnterEvent(event);
}

void ResizableItem::hoverMoveEvent(QGraphicsSceneHoverEvent* event)
{
    if (key_roles::isPower(this)) {
        const bool onButton = PowerItem::isOnButton(event->pos());
        if (onButton) // each time: a key may have switched meanwhile
            mainWnd->powerItem->showHover();
        else if (powerGrabbed)
            mainWnd->powerItem->showSwitch(mainWnd->isPowerOn());
        powerGrabbed = onButton;
    }
    QGraphicsPixmapItem::hoverMoveEvent(event);
}

void ResizableItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    // A fast hand crosses the rim between two events; the light must not stay behind.
    if (key_roles::isPower(this) && powerGrabbed)
        mainWnd->powerItem->showSwitch(mainWnd->isPowerOn());
    QGraphicsPixmapItem::hoverLeaveEvent(event);
}

void ResizableItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || mainWnd->dialogOpen) {
        event->ignore();
        return;
    }
    mouseHeld = true;
    qCDebug(lcKeys) << "ResizableItem::mousePressEvent" << event->scenePos() << key_roles::side(this)
                    << key_roles::pitch(this) << key_roles::name(this) << key_roles::targetText(this);
    takeArmedGesture();
    // Not left to the base, which would turn the press down: the item wants the moves and the release.
    event->accept();
    if (key_roles::isPower(this)) {
        pressPower(event->pos());
    } else if (key_roles::isHeader(this) && !mainWnd->isLearning()) {
        pressHeader();
    } else {
        qCDebug(lcKeys) << "ResizableItem::mousePressEvent push key";
        pushKey();
    }
}

void ResizableItem::takeArmedGesture()
{
    auto* stage = qobject_cast<DiagramScene*>(mainWnd->ui.inKeyboardGraphicsView->scene());
    if (!stage || !stage->armed)
        return;
    stage->leftDown = true;
    stage->lastItem = nullptr;
    stage->dropTarget = nullptr;
    stage->currentItem = this;
    stage->armed = false;
}

// The button's square is pressed; its sleeve is what it is dragged by.
void ResizableItem::pressPower(QPointF pos)
{
    pressedByMouse = true;
    powerGrabbed = PowerItem::isOnButton(pos) && !mainWnd->isLearning();
    if (powerGrabbed)
        mainWnd->powerItem->showPressed();
}

void ResizableItem::pressHeader()
{
    pressedByMouse = true;
    setFlag(ItemIsMovable);
    HeaderController* presets = mainWnd->headerController;
    auto* header = static_cast<HeaderItem*>(this);
    presets->setActiveHeader(header, true);
    if (!mainWnd->headerEraseMode)
        return;
    presets->contextHeader = header;
    if (mainWnd->headerEraseResets)
        presets->resetHdr();
    else
        presets->eraseHdr();
}

void ResizableItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    if (mainWnd->dialogOpen) {
        event->ignore();
        return;
    }
    QGraphicsPixmapItem::mouseDoubleClickEvent(event); // a press like any other
    if (!mouseHeld || event->button() != Qt::LeftButton || !key_roles::isHeader(this))
        return;
    setFlag(ItemIsMovable, false);
    mainWnd->editPlayedScale();
}

void ResizableItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    const bool stillHeld = event->buttons() & Qt::LeftButton; // it is another button that went up
    if (!mouseHeld || stillHeld)
        return;
    mouseHeld = false;
    qCDebug(lcKeys) << "ResizableItem::mouseReleaseEvent" << event->scenePos();
    pressedByMouse = false;
    if (key_roles::isPower(this))
        releasePower(event->pos());
    else if (key_roles::isHeader(this))
        releaseHeader();
    else
        releaseKey();
    QGraphicsPixmapItem::mouseReleaseEvent(event);
}

void ResizableItem::releaseHeader()
{
    if (!dragStarted)
        return;
    endDrag();
    static_cast<HeaderItem*>(this)->restorePos();
    mainWnd->setBackgroundSwitches(mainWnd->isPowerOn());
    mainWnd->headerController->setHeadersStatus(mainWnd->isPowerOn());
}

void ResizableItem::releasePower(QPointF pos)
{
    PowerItem* power = mainWnd->powerItem;
    const bool onButton = PowerItem::isOnButton(pos);
    const bool toggled = onButton && !dragStarted;
    if (toggled)
        power->setSwithOn(!power->isSwitchOn());
    power->showSwitch(power->isSwitchOn());
    if (toggled && powerGrabbed)
        power->showHover();
    else
        powerGrabbed = false;
    if (dragStarted) {
        endDrag();
        power->restorePos(); // where the drop has put it, or where it came from
    }
    followPower();
}

bool ResizableItem::sceneEvent(QEvent* event)
{
    if (event->type() == QEvent::UngrabMouse && mouseHeld)
        losePointer();
    return QGraphicsPixmapItem::sceneEvent(event);
}

// The press will see no release: the window lost the focus, a dialog came up, or the item was hidden.
void ResizableItem::losePointer()
{
    mouseHeld = false;
    pressedByMouse = false;
    if (auto* stage = qobject_cast<DiagramScene*>(scene()))
        stage->abandonGesture();
    if (key_roles::isPower(this)) {
        powerGrabbed = false;
        mainWnd->powerItem->showSwitch(mainWnd->isPowerOn());
        if (dragStarted)
            mainWnd->powerItem->restorePos();
        endDrag();
    } else if (key_roles::isHeader(this)) {
        if (dragStarted)
            static_cast<HeaderItem*>(this)->restorePos();
        endDrag();
    } else {
        releaseKey();
    }
}
