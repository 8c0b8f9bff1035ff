#pragma once

#include <QGraphicsItemGroup>
#include <QList>

class DiagramScene;
class PowerItem;

/// The numbered in anchors as one: its x is the shift of the mapping in scene pixels, 17 a white key. Dragged
/// along the bar it remaps the keys at every step; let go, the active header keeps the place.
class AnchorsGroup : public QGraphicsItemGroup
{
public:
    AnchorsGroup();

    /// The first anchor of that name ("main", or its number as text), or null.
    [[nodiscard]] QGraphicsItem* findAnchorByName(const QString& name) const;
    /// Dims the anchors that lie beyond the bar; they stay under the pointer.
    void refresh();
    /// As a drag by whole white keys with that anchor in the hand, and its release.
    void slide(int whiteKeys, const QGraphicsItem& held);

    bool isPressed = false;
    QList<int> gridRight, gridLeft; ///< the places of the group, in scene pixels, from 0 outwards
    PowerItem* powerItem = nullptr;
    DiagramScene* scene = nullptr; ///< the in scene

protected:
    bool sceneEvent(QEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    [[nodiscard]] int placeFor(QPointF pointer) const;
    [[nodiscard]] bool isAnchor(const QGraphicsItem* item) const;
    void storePlace() const;
};
