#include "keys/KeyControl.h"

#include "app/MainWnd.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"
#include "keys/tonic_names.h"

KeyControl::KeyControl(ResizableItem& onKey) : StageControl(onKey), key(onKey) {}

QString KeyControl::noteName(int note)
{
    const auto semitone = static_cast<std::size_t>(note % 12);
    return tonicModifierName.at(semitone) + QString::number(note / 12 - 1);
}

QString KeyControl::name() const
{
    const QString note = noteName(key_roles::pitch(&key));
    if (key_roles::isOut(&key))
        return tr("%1 of the output").arg(note);
    const QString kind = key_roles::isBlack(&key) ? tr("black key") : tr("white key");
    return tr("%1, %2, %3").arg(note, kind, effect());
}

QString KeyControl::effect() const
{
    const int target = key_roles::target(&key);
    if (key_roles::pitch(&key) == key_roles::pitch(mainWnd->powerItem))
        return tr("switches the power");
    if (mainWnd->isPowerOn() && key_roles::isBlack(&key))
        return tr("recalls its preset");
    if (key_roles::isDeactive(&key) || target == pitch_mapping::noTarget)
        return tr("silent");
    return tr("plays %1").arg(noteName(target));
}

bool KeyControl::isOn() const
{
    return key.isPushed;
}

void KeyControl::press()
{
    key.pushKey();
}

void KeyControl::release()
{
    key.releaseKey();
}
