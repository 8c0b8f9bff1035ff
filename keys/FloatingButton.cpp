#include "keys/FloatingButton.h"

#include "keys/pictures.h"

#include <QGraphicsSceneMouseEvent>

FloatingButton::FloatingButton()
{
    setPixmap(pictures::load(QStringLiteral(":/Resources/Switch/OpenWnd.png")));
}

void FloatingButton::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    setPixmap(pictures::load(QStringLiteral(":/Resources/Switch/OpenWnd_active.png")));
    event->accept();
}

void FloatingButton::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    setPixmap(pictures::load(QStringLiteral(":/Resources/Switch/OpenWnd.png")));
    event->accept();
}
