#pragma once

#include <QGraphicsItemGroup>

/// One numbered in anchor: its picture and its number. In its AnchorsGroup the group gets the pointer's
/// events instead.
class AnchorItem : public QGraphicsItemGroup
{
public:
    AnchorItem();

    bool isPressed = false;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
};
