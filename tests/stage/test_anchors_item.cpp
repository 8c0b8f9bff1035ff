// The handlers of an anchor and of the group by themselves.

#include "AnchorFixture.h"
#include "BarEvent.h"
#include "headers/AnchorItem.h"

namespace {

/// An anchor whose handlers can be called. Kept in no group, which would take its events.
class LooseAnchor : public AnchorItem
{
public:
    using AnchorItem::mouseMoveEvent;
    using AnchorItem::mousePressEvent;
    using AnchorItem::mouseReleaseEvent;
};

} // namespace

class TestAnchorsItem : public AnchorFixture
{
    Q_OBJECT

private slots:
    // The group
    void moveWithoutAPressIsIgnored();

    // An anchor in no group
    void looseAnchorTakesThePressOnTheBar();
    void looseAnchorTakesMovesWhilePressed();
    void looseAnchorReleases();
    void looseAnchorThatCannotMoveRefuses();
};

void TestAnchorsItem::moveWithoutAPressIsIgnored()
{
    BarEvent event(BarEvent::move, onBar, Qt::NoButton);
    event.accept();
    scene()->sendEvent(anchors(), &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!scene()->anchorDrag);
    QCOMPARE(anchors()->pos(), QPointF());
    hand->move(gripOf(0));
    hand->move(gripOf(0) + QPointF(50, 0));
    QCOMPARE(anchors()->pos(), QPointF());
}

void TestAnchorsItem::looseAnchorTakesThePressOnTheBar()
{
    LooseAnchor loose;
    loose.setFlag(QGraphicsItem::ItemIsMovable);
    for (const qreal y : {145.0, 144.9, 200.0, 0.0, 1e9, -1e9}) {
        loose.isPressed = false;
        BarEvent event(BarEvent::press, y);
        loose.mousePressEvent(&event);
        QVERIFY(loose.isPressed);
        QCOMPARE(event.isAccepted(), y >= 145);
    }
}

void TestAnchorsItem::looseAnchorTakesMovesWhilePressed()
{
    QGraphicsScene stage;
    auto* loose = new LooseAnchor;
    loose->setFlag(QGraphicsItem::ItemIsMovable);
    stage.addItem(loose);
    for (const bool pressed : {true, false})
        for (const qreal y : {145.0, 144.9, 200.0, 0.0}) {
            loose->isPressed = pressed;
            BarEvent event(BarEvent::move, y);
            loose->mouseMoveEvent(&event);
            QCOMPARE(event.isAccepted(), pressed && y >= 145);
            QCOMPARE(loose->isPressed, pressed);
        }
}

void TestAnchorsItem::looseAnchorReleases()
{
    LooseAnchor loose;
    loose.isPressed = true;
    BarEvent event(BarEvent::letGo, 200);
    loose.mouseReleaseEvent(&event);
    QVERIFY(!loose.isPressed);
}

// The base handler has the last word: what cannot be moved does not want the pointer.
void TestAnchorsItem::looseAnchorThatCannotMoveRefuses()
{
    LooseAnchor loose;
    BarEvent down(BarEvent::press, 200);
    loose.mousePressEvent(&down);
    QVERIFY(loose.isPressed);
    QVERIFY(!down.isAccepted());
    BarEvent step(BarEvent::move, 200);
    loose.mouseMoveEvent(&step);
    QVERIFY(!step.isAccepted());
}

QTEST_MAIN(TestAnchorsItem)
#include "test_anchors_item.moc"
