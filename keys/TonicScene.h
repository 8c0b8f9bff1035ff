#pragma once

#include <QGraphicsScene>

class SwitchItem;
class TonicKeyItem;

/// The scene of the two selector rows. It tells clicks from drags and drives the keys and switches with them.
///
/// A gesture begins with a press of the left button on a key and stays in that key's row: each other key that
/// the pointer enters is entered once, until the pointer enters another. A press and release on one key, with
/// no other key entered, is a click.
class TonicScene : public QGraphicsScene
{
    Q_OBJECT

public:
    using QGraphicsScene::QGraphicsScene;

    /// Ends a gesture whose release will not come; what it has changed stays.
    void endGesture();
    /// What a click on a key does, for who has no pointer.
    static void pressAndClick(TonicKeyItem* key);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    /// The second press of a double click counts as any other press.
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void beginGesture(const QGraphicsSceneMouseEvent* event);
    [[nodiscard]] bool isClick(const QPointF& releasePos) const;
    static void click(TonicKeyItem* key);

    bool mouseDown = false;
    TonicKeyItem* pressedKey = nullptr;
    TonicKeyItem* lastKey = nullptr; ///< the key that the gesture entered last, the pressed one first
    bool enteredOther = false;
    SwitchItem* pressedSwitch = nullptr;
};
