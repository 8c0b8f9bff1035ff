// The pointer on keys, on the power button and on headers.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/key_roles.h"

#include <QGraphicsSceneMouseEvent>

void ResizableItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    const bool learning = mainWnd->learnScale || mainWnd->learnTonic;
    if (key_roles::isHeader(this) && event->button() == Qt::LeftButton && !learning && !mainWnd->dialogOpen) {
        HeaderController* presets = mainWnd->headerController;
        presets->setActiveHeader(presets->findHeader(key_roles::pitch(this)), true);
        event->accept();
        return;
    }
    // Keys and the power button do not answer to the pointer yet. Without this the base would drag the
    // movable power button away from its key.
    event->ignore();
}
