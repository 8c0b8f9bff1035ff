#include "keys/TonicKeyItem.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"
#include "keys/tonic_names.h"
#include "logging/categories.h"

#include <QPainterPath>

namespace {

constexpr qreal opacityOn = 1.0;
constexpr qreal opacityOff = 0.01; // invisible, yet hit by the pointer

} // namespace

TonicKeyItem::TonicKeyItem(tonic_key_type keyType, KeyControllerBase* ctrl, int keyIndex)
    : type(keyType), parentCtrl(ctrl), index(keyIndex)
{
    if (!parentCtrl)
        qCWarning(lcKeys, "cannot create TonicKeyItem with parentCtrl == NULL");
    setOff();
}

QPainterPath TonicKeyItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

QString TonicKeyItem::tableName() const
{
    if (index < 0 || index >= pitch_mapping::octave)
        return {};
    const auto& table = type == tonic_key_scale ? scaleModifierName : tonicModifierName;
    return table[static_cast<std::size_t>(index)];
}

void TonicKeyItem::setOn()
{
    on = true;
    setOpacity(opacityOn);
    key_roles::setStateOn(this, true);
}

void TonicKeyItem::setOff()
{
    on = false;
    setOpacity(opacityOff);
    key_roles::setStateOn(this, false);
}

void TonicKeyItem::flip()
{
    if (on)
        setOff();
    else
        setOn();
}

void TonicKeyItem::becomeTonic()
{
    auto* controller = dynamic_cast<TonicKeyController*>(parentCtrl);
    if (!controller)
        return;
    for (TonicKeyItem* key : qAsConst(controller->keys))
        key->setOff();
    setOn();
    controller->setActiveKey(this);
}

void TonicKeyItem::flipDegree()
{
    flip();
    const auto* controller = dynamic_cast<ScaleKeyController*>(parentCtrl);
    if (controller && mainWnd->headerController)
        mainWnd->headerController->storeScale(controller->switchOn, controller->scaleModifier());
    mainWnd->checkScaleMatches(true);
}

void TonicKeyItem::changeState(bool update)
{
    if (type == tonic_key_tonic)
        becomeTonic();
    else
        flipDegree();
    if (update)
        mainWnd->powerItem->remap();
}

void TonicKeyItem::handleHiddenMouseMove()
{
    emit mouseHoverEntered(this);
}

void TonicKeyItem::mousePressEvent(QGraphicsSceneMouseEvent*) {}

void TonicKeyItem::mouseMoveEvent(QGraphicsSceneMouseEvent*) {}

void TonicKeyItem::mouseReleaseEvent(QGraphicsSceneMouseEvent*) {}
