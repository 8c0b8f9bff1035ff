#include "Hand.h"

#include "keys/ResizableItem.h"
#include "keys/key_roles.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGraphicsView>
#include <QMouseEvent>

#include <cmath>

void Hand::press(QPointF place, Qt::MouseButton button)
{
    where = place;
    buttons |= button;
    send(QEvent::MouseButtonPress, button);
}

void Hand::pressAgain(QPointF place, Qt::MouseButton button)
{
    where = place;
    buttons |= button;
    send(QEvent::MouseButtonDblClick, button);
}

void Hand::move(QPointF place)
{
    where = place;
    send(QEvent::MouseMove, Qt::NoButton);
}

void Hand::release(Qt::MouseButton button)
{
    buttons &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, button);
}

void Hand::click(QPointF place, Qt::MouseButton button)
{
    press(place, button);
    release(button);
}

void Hand::drag(QPointF from, QPointF to, qreal step)
{
    press(from);
    glideTo(to, step);
}

void Hand::glideTo(QPointF to, qreal step)
{
    const QPointF from = where, way = to - from;
    const int moves = static_cast<int>(std::ceil(std::hypot(way.x(), way.y()) / step));
    for (int i = 1; i <= moves; ++i)
        move(from + way * i / moves);
}

void Hand::askForMenuAt(QPointF place) const
{
    const QPoint at = view->mapFromScene(place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(view->viewport(), &event);
}

void Hand::send(QEvent::Type type, Qt::MouseButton button) const
{
    const QPoint place = view->mapFromScene(where);
    QMouseEvent event(type, place, view->viewport()->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &event);
}

QPointF onKey(const ResizableItem* key)
{
    const QPointF middle = key_roles::isBlack(key) ? QPointF(5, 54) : QPointF(8, 84);
    return key->pos() + middle;
}
