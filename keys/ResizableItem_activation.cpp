// Which in keys are live, and the colours that say so on both keyboards. All of it runs on the power item.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "keys/key_roles.h"

void ResizableItem::changeColorOut(bool power)
{
    const KeySheet inScale = power ? KeySheet::out : KeySheet::plain;
    for (const QGraphicsItem* item : qAsConst(listItemsIN)) {
        auto* out = static_cast<ResizableItem*>(static_cast<const ResizableItem*>(item)->pairedOutKey);
        if (!out)
            continue;
        const bool on = key_roles::isInScale(item);
        key_roles::setColoured(out, on);
        // A held out key loses its pressed look here, though its note still sounds.
        out->showCell(on ? inScale : KeySheet::plain, KeyCell::idle, KeyShine::yellow);
    }
}

void ResizableItem::setAllBlackBlue(bool power)
{
    const KeySheet sheet = power ? KeySheet::in : KeySheet::plain;
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        if (!key_roles::isBlack(item))
            continue;
        auto* key = static_cast<ResizableItem*>(item);
        if (key->isPushed)
            key->showCell(sheet, KeyCell::pressed, KeyShine::none);
        else
            key->showCell(sheet, KeyCell::idle, KeyShine::blue);
    }
}

void ResizableItem::setKeysDeactive()
{
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        auto* key = dynamic_cast<ResizableItem*>(item);
        if (!key || !key_roles::isIn(key))
            continue;
        const bool dead = !key_roles::isBlack(key) && key_roles::target(key) == pitch_mapping::noTarget;
        deactivateUnmapped(key, dead);
    }
}

void ResizableItem::deactivateUnmapped(ResizableItem* key, bool dead) const
{
    key_roles::setActive(key, !dead);
    KeySheet sheet = dead ? KeySheet::deactive : KeySheet::plain;
    if (!dead && key_roles::isBlack(key))
        sheet = KeySheet::in;
    if (key->isPushed)
        sheet = mainWnd->isLearning() ? KeySheet::learn : KeySheet::in;
    key->showCell(sheet, KeyCell::idle, KeyShine::blue);
}

void ResizableItem::setAllKeysActive()
{
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        auto* key = static_cast<ResizableItem*>(item);
        key_roles::setActive(key, true);
        key->showCell(key_roles::isBlack(key) ? KeySheet::in : KeySheet::plain, KeyCell::idle,
                      KeyShine::blue);
    }
}
