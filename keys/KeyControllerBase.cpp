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

// A neutral switch sleeps with the power off; the power wakes it with what the controller holds by then.
void KeyControllerBase::showSwitch(bool toHeader)
{
    if (switchItem && switchItem->status() != SwitchItem::status_neutral)
        switchItem->setStatus(switchOn ? SwitchItem::status_on : SwitchItem::status_off, toHeader);
}

void KeyControllerBase::setSwitchOn(bool toHeader)
{
    switchOn = true;
    showSwitch(toHeader);
}

void KeyControllerBase::setSwitchOff(bool toHeader)
{
    switchOn = false;
    showSwitch(toHeader);
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
