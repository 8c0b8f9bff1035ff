#include "keys/SelectorControl.h"

#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"
#include "keys/TonicScene.h"

namespace {

constexpr int tritone = 6;

} // namespace

SelectorControl::SelectorControl(TonicKeyItem& onKey) : StageControl(onKey), key(onKey) {}

QString SelectorControl::name() const
{
    const QString name = key.tableName();
    if (key.type == tonic_key_tonic)
        return tr("Tonic %1").arg(name);
    const QString interval = key.index == tritone ? tr("tritone") : name; // its sign cannot be read aloud
    return tr("Semitone %1 above the tonic, %2").arg(key.index).arg(interval);
}

QAccessible::Role SelectorControl::role() const
{
    return key.type == tonic_key_tonic ? QAccessible::RadioButton : QAccessible::CheckBox;
}

bool SelectorControl::isOn() const
{
    return key.on;
}

void SelectorControl::press()
{
    TonicScene::pressAndClick(&key);
}

SwitchControl::SwitchControl(SwitchItem& onItem) : StageControl(onItem), switchItem(onItem) {}

QString SwitchControl::name() const
{
    return switchItem.isOfScale() ? tr("Preset sets the scale") : tr("Preset sets the tonic");
}

bool SwitchControl::isReachable() const
{
    return StageControl::isReachable() && switchItem.status() > SwitchItem::status_neutral;
}

bool SwitchControl::isOn() const
{
    return switchItem.status() == SwitchItem::status_on;
}

void SwitchControl::press()
{
    switchItem.switchStatus(true);
}
