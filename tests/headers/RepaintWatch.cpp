// A window that tells which area of one item is painted again.

#include "RepaintWatch.h"

#include <QPaintEvent>
#include <QtTest>

#include <utility>

RepaintWatch::RepaintWatch(QGraphicsItem& watched) : item(watched)
{
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setOptimizationFlag(DontAdjustForAntialiasing);
    setScene(&stage);
    stage.setSceneRect(QRect({}, canvas));
    stage.addItem(&item);
    setFixedSize(canvas);
    show();
    static_cast<void>(QTest::qWaitForWindowExposed(this));
    static_cast<void>(take());
}

RepaintWatch::~RepaintWatch()
{
    stage.removeItem(&item);
}

QRect RepaintWatch::take()
{
    for (int round = 0; round < 3; ++round) // the scene collects, the view asks, the window paints
        QCoreApplication::processEvents();
    return std::exchange(area, QRect());
}

bool RepaintWatch::tookOnly(const QRect& expected)
{
    const QRect painted = take();
    return painted.contains(expected) && expected.adjusted(-2, -2, 2, 2).contains(painted);
}

void RepaintWatch::paintEvent(QPaintEvent* event)
{
    area = area.united(event->region().boundingRect());
    QGraphicsView::paintEvent(event);
}
