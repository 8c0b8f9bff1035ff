// The pointer on the selectors.

#include "SelectorFixture.h"

void SelectorFixture::init()
{
    openKeys();
    show();
}

// Near the foot of a white key no black key lies over it; the middle of a black key is always black.
QPoint SelectorFixture::placeOn(const KeyControllerBase& controller, int index) const
{
    const QRectF rect = controller.findKey(index)->sceneBoundingRect();
    return window->ui.centerGraphicsView->mapFromScene(rect.center().x(), rect.bottom() - 5);
}

QPoint SelectorFixture::placeOn(const SwitchItem* item) const
{
    return window->ui.centerGraphicsView->mapFromScene(item->sceneBoundingRect().center());
}

void SelectorFixture::move(QPoint pos) const
{
    QMouseEvent event(QEvent::MouseMove, pos, view()->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view(), &event);
}
