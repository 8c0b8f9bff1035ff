#include "headers/FlagControl.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "keys/KeyControl.h"
#include "keys/key_roles.h"

#include <QGraphicsSceneContextMenuEvent>

FlagControl::FlagControl(HeaderItem& onFlag) : StageControl(onFlag), flag(onFlag) {}

QString FlagControl::name() const
{
    return tr("Preset on %1").arg(KeyControl::noteName(key_roles::headerSlot(&flag)));
}

QString FlagControl::description() const
{
    return flag.describe();
}

bool FlagControl::isOn() const
{
    return flag.isActive();
}

void FlagControl::press()
{
    mainWnd->headerController->setActiveHeader(&flag, true);
}

void FlagControl::openMenu(QPoint screen)
{
    QGraphicsSceneContextMenuEvent asks(QEvent::GraphicsSceneContextMenu);
    asks.setScreenPos(screen);
    mainWnd->headerController->contextMenuEvent(&flag, &asks);
}

// As with the pointer: a recall meanwhile ends it without a swap.
void FlagControl::dropOn(StageControl* other)
{
    auto* stage = qobject_cast<DiagramScene*>(flag.scene());
    const bool takes =
        other && other != this && (key_roles::isHeader(&other->item) || key_roles::isPower(&other->item));
    if (!stage || !takes || !flag.isActive())
        return;
    stage->swapHeader(static_cast<ResizableItem*>(&other->item), &flag);
    mainWnd->setBackgroundSwitches(mainWnd->isPowerOn());
    mainWnd->headerController->setHeadersStatus(mainWnd->isPowerOn());
}
