#include "headers/PowerControl.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "keys/KeyControl.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"

QString PowerControl::name() const
{
    return tr("Power");
}

QString PowerControl::description() const
{
    return tr("Over the black key %1").arg(KeyControl::noteName(key_roles::pitch(&item)));
}

bool PowerControl::isOn() const
{
    return mainWnd->isPowerOn();
}

void PowerControl::press()
{
    mainWnd->switchPower();
}

void PowerControl::take()
{
    mainWnd->powerItem->showDrop();
}

void PowerControl::dropOn(StageControl* other)
{
    auto* stage = qobject_cast<DiagramScene*>(item.scene());
    if (stage && other && isOn() && key_roles::isHeader(&other->item))
        stage->swapHeader(static_cast<ResizableItem*>(&other->item), mainWnd->powerItem);
    mainWnd->setPower(isOn()); // what follows from the button's release
}
