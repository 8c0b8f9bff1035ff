#include "keys/TonicScene.h"

#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"

#include <QGraphicsSceneMouseEvent>

#include <utility>

namespace {

// Hidden items are never found, so the selectors sleep with the power off. Black keys lie above white ones.
template <typename Item>
Item* topmost(const QGraphicsScene& scene, const QPointF& pos)
{
    const auto items = scene.items(pos);
    for (QGraphicsItem* item : items)
        if (auto* found = dynamic_cast<Item*>(item))
            return found;
    return nullptr;
}

} // namespace

void TonicScene::beginGesture(const QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mouseDown = true;
    enteredOther = false;
    pressedKey = lastKey = topmost<TonicKeyItem>(*this, event->scenePos());
    pressedSwitch = topmost<SwitchItem>(*this, event->scenePos());
    if (pressedKey)
        emit pressedKey->mousePressed(pressedKey);
}

void TonicScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mousePressEvent(event);
    beginGesture(event);
}

void TonicScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseDoubleClickEvent(event);
    beginGesture(event);
}

void TonicScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseMoveEvent(event);
    if (!mouseDown || !pressedKey)
        return;
    TonicKeyItem* key = topmost<TonicKeyItem>(*this, event->scenePos());
    if (!key || key == lastKey || key->parentCtrl != pressedKey->parentCtrl)
        return;
    lastKey = key;
    enteredOther = true;
    key->handleHiddenMouseMove();
}

bool TonicScene::isClick(const QPointF& releasePos) const
{
    return pressedKey && !enteredOther && topmost<TonicKeyItem>(*this, releasePos) == pressedKey;
}

void TonicScene::click(TonicKeyItem* key)
{
    // A tonic key changes while it counts as pressed, a scale key once it no longer counts as touched.
    if (key->type == tonic_key_tonic)
        key->handleHiddenMouseMove();
    emit key->mouseReleased(key);
    if (key->type == tonic_key_scale)
        key->handleHiddenMouseMove();
}

void TonicScene::pressAndClick(TonicKeyItem* key)
{
    emit key->mousePressed(key);
    click(key);
}

void TonicScene::endGesture()
{
    if (pressedKey)
        emit pressedKey->mouseReleased(pressedKey);
    mouseDown = false;
    pressedKey = lastKey = nullptr;
    pressedSwitch = nullptr;
}

void TonicScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !mouseDown)
        return;
    if (isClick(event->scenePos()))
        click(std::exchange(pressedKey, nullptr));
    if (pressedSwitch && topmost<SwitchItem>(*this, event->scenePos()) == pressedSwitch)
        pressedSwitch->switchStatus(true);
    endGesture();
}
