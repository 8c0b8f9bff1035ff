#include "screen/RightTracker.h"

#include "screen/ScaleListWidget.h"

#include <QApplication>
#include <QCursor>

RightTracker::RightTracker(ScaleListWidget* scaleList, QWidget* parent) : QWidget(parent), list(scaleList) {}

void RightTracker::leaveEvent(QEvent* event)
{
    const bool outside = !rect().contains(mapFromGlobal(QCursor::pos()));
    if (outside && list->isDragging() && !(QApplication::mouseButtons() & Qt::LeftButton))
        list->dragCancel();
    QWidget::leaveEvent(event);
}
