// The power button in the hand: where it goes, where it stops, how it looks on the way and once it is
// let go of.

#include "StageFixture.h"

#include <QtTest>

class TestPowerDrag : public StageFixture
{
    Q_OBJECT

private slots:
    void buttonFollowsOnePixelLeftOfTheHand_data();
    void buttonFollowsOnePixelLeftOfTheHand();
    void pictureDoesNotJump_data();
    void pictureDoesNotJump();
    void dragStopsAtBothEnds();
    void dragOffsetIsTakenOff();
    void shakyClickDragsNothing_data();
    void shakyClickDragsNothing();
    void buttonInTheHandLooksSo_data();
    void buttonInTheHandLooksSo();
    void dragAfterwardsIsAtRest_data();
    void dragAfterwardsIsAtRest();
    void sleeveWithoutAMoveDoesNothing();
};

void TestPowerDrag::buttonFollowsOnePixelLeftOfTheHand_data()
{
    addPowers();
}

void TestPowerDrag::buttonFollowsOnePixelLeftOfTheHand()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    hand->press(powerSleeve());
    for (const int x : {300, 299, 310, 500, 840, 200, 40}) {
        for (const int y : {70, 20, 130, -50}) {
            hand->move({qreal(x), qreal(y)});
            QCOMPARE(power()->pos(), QPointF(x - 1, 28));
        }
    }
    hand->move(nowhere());
    hand->release();
}

void TestPowerDrag::pictureDoesNotJump_data()
{
    QTest::addColumn<int>("grip"); // from the button's left edge
    for (const int grip : {0, 1, 9, 18})
        QTest::addRow("taken at %d", grip) << grip;
}

void TestPowerDrag::pictureDoesNotJump()
{
    QFETCH(int, grip);
    const QPointF start = power()->pos(), taken = start + QPointF(grip, 60);
    hand->press(taken);
    for (const int way : {1, 2, 3, -1, 40, 300, -200}) {
        hand->move(taken + QPointF(way, 4));
        QCOMPARE(power()->x() + power()->offset().x(), start.x() + way);
        QCOMPARE(power()->offset().y(), 0.0);
    }
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::dragStopsAtBothEnds()
{
    hand->press(powerSleeve()); // 9 pixels from the left edge
    const auto at = [this](int x) {
        hand->move({qreal(x), 130});
        return power()->x();
    };
    for (const int x : {18, 17, 5, 0, -14, -2000}) {
        QCOMPARE(at(x), 17.0);
        QCOMPARE(power()->x() + power()->offset().x(), 16.0); // the picture stops over the leftmost key
    }
    QCOMPARE(at(19), 18.0);
    QCOMPARE(at(850), 849.0);
    QCOMPARE(at(851), 850.0);
    QCOMPARE(at(852), 850.0);
    for (const int x : {859, 900, 5000}) {
        QCOMPARE(at(x), 850.0);
        QCOMPARE(power()->offset().x(), 0.0);
    }
    hand->release();
    QCOMPARE(unrest(), QString());
}

// Nobody sets it yet; it is read all the same.
void TestPowerDrag::dragOffsetIsTakenOff()
{
    scene()->dragOffset = {10.9, 7};
    hand->press(powerSleeve());
    hand->move({500, 130});
    QCOMPARE(power()->pos(), QPointF(500 - 1 - 10, 28));
    hand->move({20, 130});
    QCOMPARE(power()->x(), 17.0);
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::shakyClickDragsNothing_data()
{
    addPowers();
}

// The flag beside it is nearer than the hand shakes.
void TestPowerDrag::shakyClickDragsNothing()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QStringList before = state();
    for (int x = 0; x < 19; ++x)
        for (const int shake : {-3, 3}) {
            hand->press(power()->pos() + QPointF(x, 40));
            hand->move(hand->place() + QPointF(shake, 0));
            QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
            hand->release();
            QCOMPARE(key_roles::pitch(power()), powerKey);
        }
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::buttonInTheHandLooksSo_data()
{
    addPowers();
}

void TestPowerDrag::buttonInTheHandLooksSo()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    hand->press(powerSleeve());
    QCOMPARE(power()->zValue(), 0.0);
    for (const QPointF& place : {powerSleeve() + QPointF(4, 0), nowhere(), stemOf(32), nowhere()}) {
        hand->move(place);
        QVERIFY(powerShows({switchedOn ? "On_Drop" : "Off_Drop"}));
        QCOMPARE(power()->zValue(), 1.0);
        QVERIFY(power()->dragStarted);
        QVERIFY(scene()->isDragging());
    }
    hand->release();
    QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
    QCOMPARE(power()->isSwitchOn(), switchedOn);
}

void TestPowerDrag::dragAfterwardsIsAtRest_data()
{
    addPowers();
}

void TestPowerDrag::dragAfterwardsIsAtRest()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const QPointF& place : {nowhere(), stemOf(32), stemOf(61), QPointF(5, 70), QPointF(2000, 70)}) {
        dragPowerTo(place);
        hand->release();
        QCOMPARE(unrest(), QString());
        QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
        QCOMPARE(power()->isSwitchOn(), switchedOn);
    }
    hand->press(powerSquare()); // the drag does not stick to the next press
    hand->release();
    QCOMPARE(power()->isSwitchOn(), !switchedOn);
}

void TestPowerDrag::sleeveWithoutAMoveDoesNothing()
{
    const QStringList before = state();
    hand->click(powerSleeve());
    hand->pressAgain(powerSleeve());
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
    QVERIFY(powerShows({"Off"}));
}

QTEST_MAIN(TestPowerDrag)
#include "test_power_drag.moc"
