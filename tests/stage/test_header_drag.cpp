// A header in the hand: what its press recalls, erases or resets, and how it follows the hand along its own
// row.

#include "StageFixture.h"

#include <QtTest>

class TestHeaderDrag : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    // Without a drag
    void pressRecalls();
    void pressOnTheActiveHeaderChangesNothing();
    void pressErasesInEraseMode();
    void pressResetsInEraseAndResetMode();
    void releaseChangesNothing();

    // The drag
    void headerFollowsOnItsOwnRow_data();
    void headerFollowsOnItsOwnRow();
    void pictureDoesNotJump();
    void dragStopsAtBothEnds();
    void dragOffsetIsTakenOff();
    void shakyClickRecallsAndDragsNothing_data();
    void shakyClickRecallsAndDragsNothing();
    void doubleClickOfAnotherButtonLeavesTheDragAlone();
    void secondPressOfADoubleClickRecallsAndDoesNotDrag();
    void pressAfterADoubleClickDragsAgain();
};

void TestHeaderDrag::init()
{
    openStage();
    sendDialogsAway();
    window->setPower(true);
}

void TestHeaderDrag::pressRecalls()
{
    record(25) = fullRecord();
    hand->press(boxOf(25));
    QCOMPARE(active(), 25);
    QCOMPARE(scale().scaleModifier(), lydian);
    QVERIFY(header(25)->pressedByMouse && header(25)->mouseHeld);
    QVERIFY(!header(25)->isPushed); // it is no key
    hand->release();
    QVERIFY(!header(25)->pressedByMouse);
    QCOMPARE(active(), 25);
    QCOMPARE(unrest(), QString());
    QCOMPARE(sent(), Messages());
}

void TestHeaderDrag::pressOnTheActiveHeaderChangesNothing()
{
    const QStringList before = state();
    hand->click(boxOf(firstActive));
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::pressErasesInEraseMode()
{
    record(25) = fullRecord();
    window->headerEraseMode = true;
    hand->click(boxOf(25));
    QCOMPARE(presets().contextHeader, header(25));
    QCOMPARE(active(), 25);
    QCOMPARE(record(25).scaleData, octaves);
    QCOMPARE(record(25).tonicData, QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), octaves);
    QCOMPARE(record(27).scaleData, factoryRow(2).scaleData); // and no other
    window->headerEraseMode = false;
    record(27) = fullRecord();
    hand->click(boxOf(27));
    QCOMPARE(record(27).scaleData, lydian);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::pressResetsInEraseAndResetMode()
{
    record(25) = fullRecord();
    window->headerEraseResets = true;
    hand->click(boxOf(25));
    QCOMPARE(record(25).scaleData, lydian); // the choice alone does nothing
    hand->click(boxOf(27));
    window->headerEraseMode = true;
    hand->click(boxOf(25));
    QCOMPARE(presets().contextHeader, header(25));
    QCOMPARE(record(25).scaleData, ionian);
    QCOMPARE(record(25).tonicData, QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::releaseChangesNothing()
{
    hand->press(boxOf(25));
    const QStringList before = state();
    hand->release();
    QCOMPARE(state(), before);
}

void TestHeaderDrag::headerFollowsOnItsOwnRow_data()
{
    QTest::addColumn<int>("key");
    for (const int key : {25, 27, 30, 32, 34, 22, 106})
        QTest::addRow("key %d", key) << key;
}

void TestHeaderDrag::headerFollowsOnItsOwnRow()
{
    QFETCH(int, key);
    const qreal row = header(key)->homePos.y();
    hand->press(boxOf(key));
    QCOMPARE(header(key)->zValue(), 0.0);
    for (const int x : {100, 300, 301, 800, 50})
        for (const int y : {20, 130, -100}) {
            hand->move({qreal(x), qreal(y)});
            QCOMPARE(header(key)->pos(), QPointF(x - 1, row));
            QCOMPARE(header(key)->zValue(), 1.0);
            QVERIFY(header(key)->dragStarted && scene()->isDragging());
        }
    hand->move(nowhere());
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::pictureDoesNotJump()
{
    for (const int key : {25, 30, 34}) {
        const QPointF taken = boxOf(key).toPoint();
        const qreal start = header(key)->x();
        hand->press(taken);
        for (const int way : {1, 2, -1, 30, 300}) {
            hand->move(taken + QPointF(way, 3));
            QCOMPARE(header(key)->x() + header(key)->offset().x(), start + way);
        }
        hand->move(nowhere());
        hand->release();
    }
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::dragStopsAtBothEnds()
{
    hand->press(boxOf(25));
    for (const int x : {18, 17, 3, -500}) {
        hand->move({qreal(x), 130});
        QCOMPARE(header(25)->x(), 17.0);
    }
    hand->move({850, 130});
    QCOMPARE(header(25)->x(), 849.0);
    for (const int x : {851, 852, 900, 4000}) {
        hand->move({qreal(x), 130});
        QCOMPARE(header(25)->x(), 850.0);
    }
    hand->release();
    QCOMPARE(unrest(), QString());
}

// Nobody sets it yet; it is read all the same.
void TestHeaderDrag::dragOffsetIsTakenOff()
{
    scene()->dragOffset = {-20.5, 0};
    hand->press(boxOf(25));
    hand->move({400, 130});
    QCOMPARE(header(25)->x(), 400.0 - 1 + 20);
    hand->release();
}

void TestHeaderDrag::shakyClickRecallsAndDragsNothing_data()
{
    QTest::addColumn<int>("key");
    for (const int key : {22, 51, 54, 56, 61, 106})
        QTest::addRow("flag %d", key) << key;
}

// A move of one pixel at a flag's edge swapped it with its neighbour.
void TestHeaderDrag::shakyClickRecallsAndDragsNothing()
{
    QFETCH(int, key);
    const HeaderItem* flag = header(key);
    const QRect box = flag->boundingRect().toRect();
    for (int x = box.left(); x <= box.right(); ++x)
        for (int y = box.top(); y <= box.bottom(); y += 6) {
            const QPointF place(x, y);
            // A view asks for what the pixel touches, not for what lies under a point.
            if (scene()->items(QRectF(flag->homePos + place, QSizeF(1, 1))).value(0) != flag)
                continue;
            for (const int shake : {-3, 3}) {
                recall(63);
                hand->press(flag->homePos + place);
                hand->move(hand->place() + QPointF(shake, 0));
                QCOMPARE(flag->pos() + flag->offset(), flag->homePos);
                hand->release();
                QCOMPARE(active(), key);
                QCOMPARE(key_roles::pitch(power()), powerKey);
            }
        }
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::doubleClickOfAnotherButtonLeavesTheDragAlone()
{
    dragHeaderTo(25, nowhere());
    hand->press(nowhere(), Qt::RightButton);
    hand->release(Qt::RightButton);
    hand->pressAgain(nowhere(), Qt::RightButton);
    hand->release(Qt::RightButton);
    hand->move(nowhere() + QPointF(100, 0));
    QCOMPARE(header(25)->x(), nowhere().x() + 99);
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::secondPressOfADoubleClickRecallsAndDoesNotDrag()
{
    hand->click(boxOf(25));
    recall(27);
    hand->pressAgain(boxOf(25));
    QCOMPARE(dialogsSeen, 1); // the names of the played scale are asked for
    QCOMPARE(active(), 25);
    const QStringList before = state();
    hand->glideTo(stemOf(32));
    QCOMPARE(header(25)->pos(), header(25)->homePos);
    QCOMPARE(header(32)->status(), header_deactive);
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::pressAfterADoubleClickDragsAgain()
{
    hand->click(boxOf(25));
    hand->pressAgain(boxOf(25));
    hand->release();
    dragHeaderTo(25, stemOf(32));
    QCOMPARE(header(32)->status(), header_switch);
    hand->release();
    QCOMPARE(active(), 32);
}

QTEST_MAIN(TestHeaderDrag)
#include "test_header_drag.moc"
