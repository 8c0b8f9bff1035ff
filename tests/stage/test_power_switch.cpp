// The square of the power button: it switches at a release within it and nowhere else, shows the press, and
// never drags.

#include "StageFixture.h"

#include "header_pictures.h"
#include "keys/key_pictures.h"

#include <QtTest>

class TestPowerSwitch : public StageFixture
{
    Q_OBJECT

private slots:
    void switchesOnReleaseOnly();
    void pressInTheSquareShowsIt_data();
    void pressInTheSquareShowsIt();
    void pressBesideTheSquareShowsNothing_data();
    void pressBesideTheSquareShowsNothing();
    void releaseOutsideTheSquareDoesNotSwitch_data();
    void releaseOutsideTheSquareDoesNotSwitch();
    void handThatComesBackToTheSquareSwitches();
    void secondPressOfADoubleClickSwitches();
    void squareDoesNotDrag();
    void switchBringsTheStageAlong();
    void learnModeTurnsTheSquareIntoASleeve();

private:
    bool showsPress(bool switchedOn) const;
};

bool TestPowerSwitch::showsPress(bool switchedOn) const
{
    return powerShows({switchedOn ? "On" : "Off", "Press", "Hover"});
}

void TestPowerSwitch::switchesOnReleaseOnly()
{
    for (const bool wanted : {true, false, true}) {
        hand->press(powerSquare());
        QCOMPARE(power()->isSwitchOn(), !wanted);
        QVERIFY(power()->pressedByMouse && power()->powerGrabbed);
        hand->release();
        QCOMPARE(power()->isSwitchOn(), wanted);
        QVERIFY(!power()->pressedByMouse);
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(sent(), Messages());
}

void TestPowerSwitch::pressInTheSquareShowsIt_data()
{
    addPowers();
}

void TestPowerSwitch::pressInTheSquareShowsIt()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    hand->press(powerSquare());
    QVERIFY(showsPress(switchedOn));
    hand->move(powerSquare() + QPointF(3, 3));
    QVERIFY(showsPress(switchedOn));
    hand->move(powerSleeve());
    QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
    hand->move(powerSquare());
    QVERIFY(showsPress(switchedOn));
    hand->release();
    QCOMPARE(power()->isSwitchOn(), !switchedOn);
}

void TestPowerSwitch::pressBesideTheSquareShowsNothing_data()
{
    QTest::addColumn<QPoint>("place"); // from the button's corner; the square is (3, 3, 13, 25)
    QTest::newRow("left rim") << QPoint(2, 15);
    QTest::newRow("upper rim") << QPoint(9, 2);
    QTest::newRow("right rim") << QPoint(17, 15);
    QTest::newRow("just below") << QPoint(9, 29);
    QTest::newRow("sleeve") << QPoint(9, 60);
    QTest::newRow("end of the sleeve") << QPoint(9, 81);
}

void TestPowerSwitch::pressBesideTheSquareShowsNothing()
{
    QFETCH(QPoint, place);
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        hand->press(power()->pos() + place);
        QVERIFY(power()->mouseHeld && !power()->powerGrabbed);
        QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
        hand->release();
        QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
        QCOMPARE(power()->isSwitchOn(), switchedOn);
        QCOMPARE(unrest(), QString());
    }
}

void TestPowerSwitch::releaseOutsideTheSquareDoesNotSwitch_data()
{
    addPowers();
}

void TestPowerSwitch::releaseOutsideTheSquareDoesNotSwitch()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const QPointF& away : {powerSleeve(), stemOf(25), QPointF(-300, 500), onKey(in(60))}) {
        hand->drag(powerSquare(), away);
        hand->release();
        QCOMPARE(power()->isSwitchOn(), switchedOn);
        QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
        QVERIFY(!power()->powerGrabbed);
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(sent(), Messages());
}

void TestPowerSwitch::handThatComesBackToTheSquareSwitches()
{
    hand->drag(powerSquare(), powerSleeve());
    hand->glideTo(powerSquare());
    hand->release();
    QVERIFY(power()->isSwitchOn());
}

void TestPowerSwitch::secondPressOfADoubleClickSwitches()
{
    hand->click(powerSquare());
    hand->pressAgain(powerSquare());
    QVERIFY(showsPress(true));
    hand->release();
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}

void TestPowerSwitch::squareDoesNotDrag()
{
    hand->drag(powerSquare(), stemOf(32));
    QCOMPARE(power()->pos(), powerPlaceOn(powerKey));
    QVERIFY(!power()->dragStarted);
    QCOMPARE(power()->zValue(), 0.0);
    hand->release();
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestPowerSwitch::switchBringsTheStageAlong()
{
    setTonic("E");
    for (const bool switchedOn : {true, false}) {
        hand->click(powerSquare());
        QCOMPARE(window->backgroundOn->isVisible(), switchedOn);
        QCOMPARE(window->backgroundOff->isVisible(), !switchedOn);
        QCOMPARE(header(51)->isVisible(), switchedOn);
        QVERIFY(!header(powerKey)->isVisible());
        QCOMPARE(target(60), switchedOn ? 64 : 60);
        const QPixmap& black = key_pictures::picture(switchedOn ? KeySheet::in : KeySheet::plain,
                                                     KeyShape::black, KeyCell::idle, KeyShine::blue);
        QVERIFY(isSame(in(61)->pixmap(), black));
    }
}

void TestPowerSwitch::learnModeTurnsTheSquareIntoASleeve()
{
    for (bool* flag : {&window->learnScale, &window->learnTonic}) {
        *flag = true;
        hand->press(powerSquare());
        QVERIFY(!power()->powerGrabbed);
        QVERIFY(!showsPress(false));
        hand->glideTo(stemOf(32));
        QVERIFY(powerShows({"Off_Drop"}));
        QVERIFY(power()->dragStarted);
        hand->release();
        *flag = false;
        QCOMPARE(key_roles::pitch(power()), powerKey); // and nothing was swapped
        QVERIFY(!power()->isSwitchOn());
        QCOMPARE(unrest(), QString());
    }
}

QTEST_MAIN(TestPowerSwitch)
#include "test_power_switch.moc"
