// What a drop on the stage changes.

#include "headers/DiagramScene.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "logging/categories.h"

namespace {

const QPointF powerOffset(-4, -18); // of the power button from its key

HeaderItem* toHeader(ResizableItem* item)
{
    return key_roles::isHeader(item) ? static_cast<HeaderItem*>(item) : nullptr;
}

HeaderItem* headerUnder(const PowerItem* power)
{
    return mainWnd->headerController->findHeader(key_roles::pitch(power));
}

} // namespace

bool DiagramScene::swapHeader(ResizableItem* prev, ResizableItem* cur)
{
    qCDebug(lcHeaders) << "DiagramScene::swapHeader";
    if (prev == cur)
        return false;
    if (cur == powerItem)
        return dropPower(prev, powerItem);
    if (HeaderItem* header = toHeader(cur))
        return dropHeader(prev, header);
    return false;
}

void DiagramScene::movePowerTo(const QGraphicsItem* header, PowerItem* power)
{
    const ResizableItem* key = mainWnd->findInNote(key_roles::headerSlot(header));
    if (!key)
        return;
    power->setLastPos(key->pos() + powerOffset);
    key_roles::setPitch(power, key_roles::pitch(key));
}

bool DiagramScene::dropPower(ResizableItem* prev, PowerItem* power) const
{
    power->showSwitch(true);
    HeaderItem* target = toHeader(prev);
    if (!target) {
        qCDebug(lcHeaders) << "swap power and header exception: "
                           << (prev ? key_roles::side(prev) : QStringLiteral("null prev"));
        return false;
    }
    HeaderItem* left = headerUnder(power);
    if (!left || target == left) {
        qCDebug(lcHeaders) << "swap power and header the same exception";
        return false;
    }
    target->swapHeadersData(left);
    left->setStatus(target->isActive() ? header_active : header_deactive);
    target->setStatus(header_deactive);
    movePowerTo(target, power);
    qCDebug(lcHeaders) << "swap power and header" << left->pos() << power->pos();
    return true;
}

bool DiagramScene::dropHeader(ResizableItem* prev, HeaderItem* header) const
{
    if (!prev) {
        header->setStatus(header_active);
        return false;
    }
    if (HeaderItem* target = toHeader(prev)) {
        if (headerCopyMode)
            target->copyHeadersData(header);
        else
            target->swapHeadersData(header);
        target->setStatus(header_active);
        header->setStatus(header_deactive);
        return true;
    }
    HeaderItem* under = prev == powerItem ? headerUnder(powerItem) : nullptr;
    if (!under || under == header)
        return false;
    under->swapHeadersData(header);
    under->setStatus(header_active);
    header->setStatus(header_deactive);
    movePowerTo(header, powerItem);
    powerItem->setSwithOn(true);
    powerItem->showSwitch(true);
    return true;
}
