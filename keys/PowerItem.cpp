#include "keys/PowerItem.h"

void PowerItem::setLastPos(const QPointF& pos)
{
    lastPos = pos;
    setPos(pos);
}

void PowerItem::restorePos()
{
    setPos(lastPos);
}
