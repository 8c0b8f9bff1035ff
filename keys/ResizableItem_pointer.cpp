// The pointer on keys, on the power button and on headers.

#include "keys/ResizableItem.h"

#include <QGraphicsSceneMouseEvent>

void ResizableItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    // The stage does not answer to the pointer yet. Without this the base would drag the movable power button
    // away from its key.
    event->ignore();
}
