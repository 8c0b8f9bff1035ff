#include "keys/KeyControllerBase.h"

#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"

void KeyControllerBase::addKey(TonicKeyItem* key)
{
    keys.append(key);
    connect(key, &TonicKeyItem::mousePressed, this, &KeyControllerBase::onKeyPressed);
    connect(key, &TonicKeyItem::mouseReleased, this, &KeyControllerBase::onKeyRelased);
    connect(key, &TonicKeyItem::mouseHoverEntered, this, &KeyControllerBase::onMouseHoverEntered);
}

bool KeyControllerBase::shouldChangeState(TonicKeyItem*)
{
    return false;
}

void KeyControllerBase::setSwitchOn(bool toHeader)
{
    switchOn = true;
    if (switchItem)
        switchItem->setStatus(SwitchItem::status_on, toHeader);
}

void KeyControllerBase::setSwitchOff(bool toHeader)
{
    switchOn = false;
    if (switchItem)
        switchItem->setStatus(SwitchItem::status_off, toHeader);
}

TonicKeyItem* KeyControllerBase::findKey(int index) const
{
    for (TonicKeyItem* key : keys)
        if (key->index == index)
            return key;
    return nullptr;
}

void KeyControllerBase::onKeyPressed(TonicKeyItem* key)
{
    pressedKey = key;
    touchedKeys = {key};
}

void KeyControllerBase::onKeyRelased(TonicKeyItem*)
{
    pressedKey = nullptr;
    touchedKeys.clear();
}

void KeyControllerBase::onMouseHoverEntered(TonicKeyItem* key)
{
    if (shouldChangeState(key))
        key->changeState(true);
}
