// The numbers and marks that tell the player which degree is where. All of it runs on the power item.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyItem.h"

void ResizableItem::redrawAnchorAxis(int)
{
    getCurScaleCount(false);
    setKeysDeactive();
}

int ResizableItem::getCurScaleCount(bool)
{
    if (!mainWnd->scaleController)
        return 0;
    int count = 0;
    for (int degree = 0; degree < 12; ++degree) {
        const TonicKeyItem* key = mainWnd->scaleController->findKey(degree);
        const bool on = key && key->on;
        count += on ? 1 : 0;
        mainWnd->showScaleSquare(degree, on ? count : 0);
    }
    return count;
}
