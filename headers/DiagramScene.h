#pragma once

#include <QGraphicsScene>

class HeaderItem;
class PowerItem;
class ResizableItem;

/// The scene of one keyboard and of what lies above it. It makes one of two things of a press and its moves:
/// a glissando over keys, or a drag of the power button or a header to a place where it is dropped. The items
/// begin a gesture, feed it and end it.
class DiagramScene : public QGraphicsScene
{
    Q_OBJECT

public:
    static constexpr int rowLeft = 17, rowRight = 850; ///< of the x of a dragged item, in scene pixels

    /// Neither is owned; both outlive the scene.
    DiagramScene(PowerItem* powerItem, QWidget* parentWidget);

    // The gesture (DiagramScene.cpp)
    /// The pointer has moved to a place of the scene, with `currentItem` under it or in its grip.
    void mouseMoveHandle(QPointF pos);
    /// True while `currentItem` is a power button or header that is being dragged.
    [[nodiscard]] bool isDragging() const;
    /// The hand is gone, wherever to: keys are released, a dragged button or header goes home undropped,
    /// anchors stay where they are.
    void loseHand();
    /// The same for the scene's own part, for an item that lost the pointer.
    void abandonGesture();

    // Drop targets (DiagramScene_drag.cpp)
    /// The power button, else the first header in a rectangle of the scene, but never `self`; null if there
    /// is none. Headers that the power has hidden count.
    QGraphicsItem* findNearbyHeaderItem(QGraphicsItem* self, const QRectF& r);
    /// The items in a rectangle, the uppermost first, with the headers shown as they are with the power on.
    [[nodiscard]] QList<QGraphicsItem*> itemsAmongHeaders(const QRectF& r) const;
    /// No caller. Probes up to `count` points, the first at `self` plus `offset`, each `step` scene pixels
    /// further right, for an item whose data under `role` reads `word`; null if there is none.
    QGraphicsItem* findNearbyItem(const QString& word, const QGraphicsItem* self, QPointF offset, int step,
                                  int role, int count) const;

    // Drops (DiagramScene_drop.cpp)
    /// Settles a drop: `cur` was dropped on `prev`, either may be null. Presets swap their records, and the
    /// power button moves to the key of the header that it changes places with, so the preset under the
    /// button stays the active one. False if nothing was swapped.
    bool swapHeader(ResizableItem* prev, ResizableItem* cur);

    QWidget* const parentWidget;
    bool leftDown = false;
    bool anchorDrag = false;
    bool armed = false;                   ///< set by nobody: the next press begins its gesture by itself
    QPointF dragOffset;                   ///< set by nobody: taken off the pointer's x in a drag
    ResizableItem* lastItem = nullptr;    ///< the key that the glissando holds down
    ResizableItem* dropTarget = nullptr;  ///< the one that is lit
    ResizableItem* currentItem = nullptr; ///< the item of the gesture
    PowerItem* const powerItem;
    bool headerCopyMode = false; ///< set by nobody: a drop of a header on a header copies instead

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void beginGesture(const QGraphicsSceneMouseEvent& event);
    void endGesture();
    void freePointer();
    void sweep(QPointF pos);
    [[nodiscard]] bool isPassedOver(const ResizableItem* key) const;

    void drag(QPointF pos);
    void aimAt(ResizableItem* target);
    void light(ResizableItem* target) const;
    void putOut(ResizableItem* target) const;
    void settleDrop();
    [[nodiscard]] bool isOvertaken() const;

    bool dropPower(ResizableItem* prev, PowerItem* power) const;
    bool dropHeader(ResizableItem* prev, HeaderItem* header) const;
    static void movePowerTo(const QGraphicsItem* header, PowerItem* power);
};
