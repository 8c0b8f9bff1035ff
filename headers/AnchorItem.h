#pragma once

#include <QGraphicsItemGroup>

/// One numbered in anchor: its picture and its number. In its AnchorsGroup the group gets the pointer's
/// events instead.
class AnchorItem : public QGraphicsItemGroup
{
public:
    static constexpr int eachSide = 4; ///< anchors are numbered from -4 to 4

    AnchorItem();

    /// "main" for 0, else the number as text.
    [[nodiscard]] static QString nameOf(int number);

    bool isPressed = false;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
};
