#include "headers/AnchorItem.h"

#include "headers/anchor_snap.h"
#include "logging/categories.h"

#include <QGraphicsSceneMouseEvent>

namespace {

bool isOnBar(const QGraphicsSceneMouseEvent* event)
{
    return event->scenePos().y() >= anchor_snap::barTop;
}

} // namespace

AnchorItem::AnchorItem()
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

QString AnchorItem::nameOf(int number)
{
    return number == 0 ? QStringLiteral("main") : QString::number(number);
}

void AnchorItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    qCDebug(lcHeaders) << "AnchorItem::mousePressEvent()";
    isPressed = true;
    event->setAccepted(isOnBar(event));
    QGraphicsItemGroup::mousePressEvent(event);
}

void AnchorItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    qCDebug(lcHeaders) << "AnchorItem::mouseMoveEvent()";
    event->setAccepted(isPressed && isOnBar(event));
    QGraphicsItemGroup::mouseMoveEvent(event);
}

void AnchorItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    isPressed = false;
    QGraphicsItemGroup::mouseReleaseEvent(event);
}
