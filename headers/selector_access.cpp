#include "headers/selector_access.h"

#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"

#include <cmath>

namespace selector_access {
namespace {

constexpr qreal farthest = 1e6; // far off any stage: stored positions come from files

} // namespace

TonicKeyController& tonicSelector()
{
    return *static_cast<TonicKeyController*>(mainWnd->tonicController);
}

ScaleKeyController& scaleSelector()
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
    return anchor ? static_cast<int>(qBound(-farthest, anchor->scenePos().x(), farthest)) : 0;
}

void moveAnchors(qreal dx)
{
    if (AnchorsGroup* group = mainWnd->powerItem->anchorsGroup)
        group->setX(qBound(-farthest, group->x() + dx, farthest));
}

qreal anchorsPlace()
{
    const AnchorsGroup* group = mainWnd->powerItem->anchorsGroup;
    return group ? group->x() : 0;
}

void placeAnchors(qreal x)
{
    AnchorsGroup* group = mainWnd->powerItem->anchorsGroup;
    if (!group)
        return;
    group->setX(onStage(x));
    group->refresh();
}

void resetAnchors()
{
    placeAnchors(0);
}

qreal onStage(qreal x)
{
    return std::isfinite(x) ? qBound(-farthest, x, farthest) : 0;
}

} // namespace selector_access
