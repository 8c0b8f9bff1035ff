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

void KeyControllerBase::switchWasSet(bool) {}

// A neutral switch sleeps with the power off; the power wakes it with what the controller holds by then.
void KeyControllerBase::setSwitch(bool on, bool toHeader)
{
    switchOn = on;
    const auto wanted = on ? SwitchItem::status_on : SwitchItem::status_off;
    const bool awake = switchItem && switchItem->status() != SwitchItem::status_neutral;
    if (awake && switchItem->status() != wanted)
        switchItem->setStatus(wanted, toHeader); // comes back here with the switch as wanted
    else
        switchWasSet(toHeader);
}

void KeyControllerBase::setSwitchOn(bool toHeader)
{
    setSwitch(true, toHeader);
}

void KeyControllerBase::setSwitchOff(bool toHeader)
{
    setSwitch(false, toHeader);
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
