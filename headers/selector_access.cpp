#include "headers/selector_access.h"

#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"

namespace selector_access {

TonicKeyController& tonic()
{
    return *static_cast<TonicKeyController*>(mainWnd->tonicController);
}

ScaleKeyController& scale()
{
    return *static_cast<ScaleKeyController*>(mainWnd->scaleController);
}

void setSwitch(KeyControllerBase& selector, bool on, bool toHeader)
{
    if (on)
        selector.setSwitchOn(toHeader);
    else
        selector.setSwitchOff(toHeader);
}

int anchorX()
{
    const QGraphicsItemGroup* anchor = mainWnd->powerItem->mainAnchorIn;
    return anchor ? static_cast<int>(anchor->scenePos().x()) : 0;
}

void moveAnchors(int dx)
{
    if (AnchorsGroup* group = mainWnd->powerItem->anchorsGroup)
        group->moveBy(dx, 0);
}

void resetAnchors()
{
    AnchorsGroup* group = mainWnd->powerItem->anchorsGroup;
    if (!group)
        return;
    group->setX(0);
    group->refresh();
}

void remap()
{
    mainWnd->powerItem->changeScaleByTonic();
    mainWnd->powerItem->setKeysDeactive();
}

} // namespace selector_access
