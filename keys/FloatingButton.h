#pragma once

#include <QGraphicsPixmapItem>

/// A small push button that shows another picture while the mouse is held on it. In no scene yet: it belongs
/// to the second window that the program does not open.
class FloatingButton : public QGraphicsPixmapItem
{
public:
    FloatingButton();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
};
