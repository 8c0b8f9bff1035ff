// Which out key each in key drives: roles in, pitch_mapping, roles out. All of it runs on the power item.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/TonicKeyItem.h"
#include "keys/key_roles.h"
#include "logging/categories.h"

using namespace pitch_mapping;

namespace {

struct ScaleState
{
    Degrees known, on;
};

// The list holds two keys for the tonic degree, the visible one and the extra one; the last one counts.
ScaleState readScaleKeys()
{
    ScaleState state;
    if (!mainWnd->scaleController)
        return state;
    for (const TonicKeyItem* key : qAsConst(mainWnd->scaleController->keys)) {
        if (key->index < 0 || key->index >= octave) {
            qCDebug(lcKeys) << "ResizableItem::changeScaleByTonic() - empty cycle: foreach(auto inNote, "
                               "listItemsIN)";
            continue;
        }
        const auto n = static_cast<std::size_t>(key->index);
        state.known.set(n);
        state.on.set(n, key->on);
    }
    return state;
}

} // namespace

int ResizableItem::getCurTonicModifier() const
{
    if (!mainWnd->powerItem->isSwitchOn())
        return 0;
    const auto* controller = dynamic_cast<TonicKeyController*>(mainWnd->tonicController);
    return controller && controller->activeKey ? controller->tonicModifierIndex() : 0;
}

void ResizableItem::changeScaleByTonic()
{
    const bool power = mainWnd->powerItem->isSwitchOn();
    const int tonic = getCurTonicModifier();
    const ScaleState scale = readScaleKeys();
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        const int pitch = key_roles::pitch(item);
        const auto degree = static_cast<std::size_t>(degreeOf(pitch, tonic));
        if (isOnKeyboard(pitch) && scale.known[degree])
            key_roles::setInScale(item, scale.on[degree]);
    }
    changeColorOut(power);
    setOutForIn(tonic, power);
    redrawAnchorAxis(tonic);
    setAllBlackBlue(power);
    if (anchorsGroup)
        anchorsGroup->refresh();
}

PitchSet ResizableItem::scaleFromRoles() const
{
    PitchSet scale;
    for (const QGraphicsItem* item : qAsConst(listItemsIN)) {
        const int pitch = key_roles::pitch(item);
        if (key_roles::isIn(item) && isOnKeyboard(pitch))
            scale.set(indexOf(pitch), key_roles::isInScale(item));
    }
    return scale;
}

void ResizableItem::writeIdentity()
{
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        key_roles::setTarget(item, key_roles::pitch(item));
        key_roles::setInScale(item, true);
        key_roles::setColoured(static_cast<ResizableItem*>(item)->pairedOutKey, true);
    }
}

void ResizableItem::setOutForIn(int tonic, bool enabled)
{
    if (tonic == -1)
        tonic = getCurTonicModifier();
    if (!enabled) {
        writeIdentity();
        return;
    }
    const Targets targets = walk(tonic, scaleFromRoles());
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        const int pitch = key_roles::pitch(item);
        const bool mapped = key_roles::isIn(item) && isOnKeyboard(pitch);
        key_roles::setTarget(item, mapped ? targets[indexOf(pitch)] : noTarget);
    }
    setOutForIntByPitch();
}

void ResizableItem::setOutForIntByPitch()
{
    const int shift = mainAnchorIn ? shiftOfAnchor(mainAnchorIn->scenePos().x()) : 0;
    if (shift == 0)
        return;
    Targets targets;
    targets.fill(noTarget);
    for (const QGraphicsItem* item : qAsConst(listItemsIN))
        if (isOnKeyboard(key_roles::pitch(item)))
            targets[indexOf(key_roles::pitch(item))] = key_roles::target(item);
    PitchSet coloured;
    for (const QGraphicsItem* item : qAsConst(listItemsOUT))
        if (key_roles::isOut(item) && isOnKeyboard(key_roles::pitch(item)))
            coloured.set(indexOf(key_roles::pitch(item)), key_roles::isColoured(item));

    const Slide slid = slide(targets, coloured, shift);
    for (QGraphicsItem* item : qAsConst(listItemsIN)) {
        const int pitch = key_roles::pitch(item);
        if (key_roles::isBlack(item) || !isOnKeyboard(pitch))
            continue;
        const int target = slid.targets[indexOf(pitch)];
        const bool found = pitch >= slid.tailFirst && pitch <= slid.tailLast && target != noTarget;
        // Kept: what was copied, and a tail that ran out, is stored as text; what was found as a number.
        if (found)
            key_roles::setTarget(item, target);
        else
            key_roles::setTargetText(item, QString::number(target));
    }
}
