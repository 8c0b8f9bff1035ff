// The debug lines of the pointer on the stage, word for word. Whoever reads a performer's log finds a gesture
// by them.

#include "StageFixture.h"

#include "HeaderLog.h"
#include "headers/AnchorItem.h"

#include <QGraphicsSceneMouseEvent>

class TestStageLog : public StageFixture
{
    Q_OBJECT

private slots:
    void pressTellsWhereAndWhat();
    void pressOfAKeyTellsThatItPushes();
    void moveAndRelease();
    void moveInTheScalesLearnMode();
    void looseAnchor();
};

void TestStageLog::pressTellsWhereAndWhat()
{
    const HeaderLog log(lcKeys());
    const QPointF place = powerSleeve();
    const QString line =
        QStringLiteral("^ResizableItem::mousePressEvent QPointF\\(%1,%2\\) \"power\" 49 \"power\" ")
            .arg(place.x())
            .arg(place.y());
    expectLine(qPrintable(line));
    hand->press(place);
    hand->release();
}

void TestStageLog::pressOfAKeyTellsThatItPushes()
{
    const HeaderLog log(lcKeys());
    expectLine("^ResizableItem::mousePressEvent QPointF.* \"in\" 60 \"C4\" \"60\"$");
    expectLine("^ResizableItem::mousePressEvent push key$");
    hand->click(onKey(in(60)));
}

void TestStageLog::moveAndRelease()
{
    const HeaderLog log(lcKeys());
    hand->press(onKey(in(60)));
    expectLine("^ResizableItem::mouseMoveEvent$");
    hand->move(onKey(in(60)) + QPointF(1, 0));
    expectLine("^ResizableItem::mouseReleaseEvent QPointF");
    hand->release();
}

void TestStageLog::moveInTheScalesLearnMode()
{
    const HeaderLog log(lcKeys());
    window->learnScale = true;
    hand->press(onKey(in(60)));
    expectLine("^ResizableItem::mouseMoveEvent learn key$");
    hand->move(onKey(in(60)) + QPointF(1, 0));
    hand->release();
    window->learnScale = false;
}

void TestStageLog::looseAnchor()
{
    const HeaderLog log;
    auto* anchor = new AnchorItem; // one that no group answers for
    anchor->addToGroup(new QGraphicsRectItem(0, 150, 20, 20));
    scene()->addItem(anchor);
    for (const QEvent::Type type : {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove}) {
        expectLine(type == QEvent::GraphicsSceneMousePress ? "^AnchorItem::mousePressEvent\\(\\)$"
                                                           : "^AnchorItem::mouseMoveEvent\\(\\)$");
        QGraphicsSceneMouseEvent event(type);
        event.setScenePos({10, 160});
        scene()->sendEvent(anchor, &event);
    }
    delete anchor;
}

QTEST_MAIN(TestStageLog)
#include "test_stage_log.moc"
