#include "keys/StageControl.h"

#include <QGraphicsItem>

bool StageControl::isReachable() const
{
    return item.isVisible() && item.isEnabled();
}

QRectF StageControl::place() const
{
    return item.mapToScene(item.shape().boundingRect()).boundingRect();
}
