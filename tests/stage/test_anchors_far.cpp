// Anchors far off the stage, where a position stored in a file may put them.

#include "AnchorFixture.h"
#include "BarEvent.h"

class TestAnchorsFar : public AnchorFixture
{
    Q_OBJECT

private slots:
    void farPositionsAreBorne_data();
    void farPositionsAreBorne();
    void dragFromFarAwayComesBack_data();
    void dragFromFarAwayComesBack();
    void recallOfAFarPositionDuringADragComesBack();
};

void TestAnchorsFar::farPositionsAreBorne_data()
{
    QTest::addColumn<qreal>("x");
    for (const int x :
         {1000000, -1000000, 100000, -100000, 17 * 52, -17 * 52, 17 * 51, -17 * 51, 3400, -3400})
        QTest::addRow("%d", x) << qreal(x);
}

void TestAnchorsFar::farPositionsAreBorne()
{
    QFETCH(qreal, x);
    for (const QString& word : {ionian, octaves, wholeTone, QString(12, QLatin1Char('x'))}) {
        choose(4, word);
        putGroup(x);
        const AnchorRule wanted = rule();
        QCOMPARE(asNumbers(power()->marksIn()), wanted.inBar());
        for (const auto& [key, target] : wanted.targets())
            QCOMPARE(key_roles::target(window->findInNote(key)), target);
    }
}

void TestAnchorsFar::dragFromFarAwayComesBack_data()
{
    QTest::addColumn<qreal>("x");
    for (const int x : {1000000, -1000000, 999999, 5000, -5000})
        QTest::addRow("%d", x) << qreal(x);
}

// No hand reaches the anchors there; were they reached, the first step would bring them home.
void TestAnchorsFar::dragFromFarAwayComesBack()
{
    QFETCH(qreal, x);
    putGroup(x);
    BarEvent down(BarEvent::press, onBar);
    scene()->sendEvent(anchors(), &down);
    BarEvent step(BarEvent::move, onBar);
    scene()->sendEvent(anchors(), &step);
    QCOMPARE(anchors()->pos(), QPointF());
    BarEvent up(BarEvent::letGo, onBar);
    scene()->sendEvent(anchors(), &up);
    QCOMPARE(stored().anchorPos, 0);
    QCOMPARE(fault(), QString());
}

// A stored position can come from a file. The recall comes from a black key while the hand holds an anchor.
void TestAnchorsFar::recallOfAFarPositionDuringADragComesBack()
{
    for (const int far : {1000000, -1000000}) {
        header_data data = factoryRow(2);
        data.tonicOn = true;
        data.anchorValid = true;
        data.anchorPos = far;
        setRecord(25, data);
        dragBy(0, 34);
        recall(25);
        QVERIFY(qAbs(anchors()->x()) > 100000);
        hand->move(hand->place() + QPointF(17, 0));
        QCOMPARE(anchors()->pos(), QPointF(51, 0));
        QCOMPARE(fault(), QString());
        hand->release();
        QCOMPARE(record(25).anchorPos, 51);
        recall(firstActive);
        putGroup(0);
    }
}

QTEST_MAIN(TestAnchorsFar)
#include "test_anchors_far.moc"
