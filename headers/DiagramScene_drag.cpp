// The power button or a header in the hand: where it goes, and what lights up under it.

#include "headers/DiagramScene.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"

#include <algorithm>

namespace {

constexpr qreal powerRow = 28; // y of the power button
constexpr qreal reach = 3;     // around the pointer

QGraphicsItem* firstOther(const QList<QGraphicsItem*>& items, const QGraphicsItem* self,
                          bool (*isWanted)(const QGraphicsItem*))
{
    const auto found = std::find_if(items.begin(), items.end(), [&](const QGraphicsItem* item) {
        return item != self && isWanted(item);
    });
    return found != items.end() ? *found : nullptr;
}

} // namespace

void DiagramScene::drag(QPointF pos)
{
    const int x = qMax(static_cast<int>(pos.x() - 1) - static_cast<int>(dragOffset.x()), rowLeft);
    const qreal y = key_roles::isHeader(currentItem) ? static_cast<int>(currentItem->y()) : powerRow;
    if (!mainWnd->isLearning()) {
        const QRectF place(pos.x() - reach, pos.y() - reach, 2 * reach, 2 * reach);
        aimAt(static_cast<ResizableItem*>(findNearbyHeaderItem(currentItem, place)));
    }
    currentItem->setPos(qMin(x, rowRight), y);
}

void DiagramScene::aimAt(ResizableItem* target)
{
    if (target == currentItem)
        return;
    if (dropTarget && dropTarget != currentItem && dropTarget != target)
        putOut(dropTarget);
    dropTarget = target;
    if (target)
        light(target);
}

void DiagramScene::light(ResizableItem* target) const
{
    if (target == powerItem)
        powerItem->showAsTarget();
    else if (auto* header = static_cast<HeaderItem*>(target))
        header->setStatus(header->isActive() ? header_switch_active : header_switch);
}

void DiagramScene::putOut(ResizableItem* target) const
{
    if (target == powerItem)
        powerItem->showSwitch(powerItem->isSwitchOn());
    else if (auto* header = static_cast<HeaderItem*>(target))
        header->setStatus(header->isActive() ? header_active : header_deactive);
}

void DiagramScene::settleDrop()
{
    ResizableItem* target = dropTarget;
    if (!isOvertaken() && swapHeader(target, currentItem))
        return;
    if (target && target != currentItem)
        putOut(target);
    if (currentItem == powerItem)
        powerItem->restorePos();
}

// The press has made a dragged header the active one. If a recall made another active meanwhile, a drop would
// activate this one behind the selectors' back, and they would be stored in the wrong preset.
bool DiagramScene::isOvertaken() const
{
    return key_roles::isHeader(currentItem) && !static_cast<const HeaderItem*>(currentItem)->isActive();
}

QList<QGraphicsItem*> DiagramScene::itemsAmongHeaders(const QRectF& r) const
{
    const bool power = powerItem->isSwitchOn();
    if (!power) // hidden items are not found
        mainWnd->headerController->setHeadersStatus(true);
    const auto found = items(r, Qt::IntersectsItemShape, Qt::DescendingOrder);
    if (!power)
        mainWnd->headerController->setHeadersStatus(false);
    return found;
}

QGraphicsItem* DiagramScene::findNearbyHeaderItem(QGraphicsItem* self, const QRectF& r)
{
    const auto found = itemsAmongHeaders(r);
    QGraphicsItem* power = firstOther(found, self, key_roles::isPower);
    return power ? power : firstOther(found, self, key_roles::isHeader);
}

QGraphicsItem* DiagramScene::findNearbyItem(const QString& word, const QGraphicsItem* self, QPointF offset,
                                            int step, int role, int count) const
{
    QPointF probe = self->pos() + offset;
    for (int i = 0; i < count; ++i, probe.rx() += step) {
        QGraphicsItem* item = itemAt(probe, QTransform());
        if (key_roles::bears(item, role, word))
            return item;
    }
    return nullptr;
}
