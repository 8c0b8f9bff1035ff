// The power button in the hand: what switches it, where it goes, what lights up under it, what a drop
// changes.

#include "StageFixture.h"

#include "HeaderLog.h"
#include "PresetModel.h"
#include "header_pictures.h"
#include "keys/pictures.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <random>

class TestPowerDrag : public StageFixture
{
    Q_OBJECT

private slots:
    // The switch
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

    // The drag
    void buttonFollowsOnePixelLeftOfTheHand_data();
    void buttonFollowsOnePixelLeftOfTheHand();
    void pictureDoesNotJump_data();
    void pictureDoesNotJump();
    void dragStopsAtBothEnds();
    void dragOffsetIsTakenOff();
    void buttonInTheHandLooksSo_data();
    void buttonInTheHandLooksSo();
    void dragAfterwardsIsAtRest_data();
    void dragAfterwardsIsAtRest();
    void sleeveWithoutAMoveDoesNothing();

    // The targets
    void targetLightsUpAndIsPutOut_data();
    void targetLightsUpAndIsPutOut();
    void activeTargetLightsUpAsSuch();
    void onlyOneTargetIsLit();
    void learnModeHasNoTargets();
    void learnModeThatComesMeanwhileSwapsNothing();

    // The drop
    void dropOnNothingGoesHome_data();
    void dropOnNothingGoesHome();
    void dropOnTheOwnHeaderGoesHome_data();
    void dropOnTheOwnHeaderGoesHome();
    void everySlotInTurn_data();
    void everySlotInTurn();
    void slotsAtRandom_data();
    void slotsAtRandom();
    void dropOnTheActiveHeaderKeepsItsPresetActive();

private:
    void addPowers() const;
    bool showsPicture(const char* state) const;
    QPixmap pressedPicture(bool switchedOn) const;
    /// Drags the button's sleeve to a place and holds on.
    void dragTo(QPointF place) { hand->drag(powerSleeve(), place, 25); }
    /// Drags the button to a slot and compares all records and the active one with the rule.
    void dropOnSlotFollowsTheRule(int slot);
    QStringList records() const;
};

void TestPowerDrag::addPowers() const
{
    QTest::addColumn<bool>("switchedOn");
    QTest::newRow("power off") << false;
    QTest::newRow("power on") << true;
}

bool TestPowerDrag::showsPicture(const char* state) const
{
    return shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTON%1.png").arg(QLatin1String(state)));
}

QPixmap TestPowerDrag::pressedPicture(bool switchedOn) const
{
    QPixmap picture;
    for (const char* state : {switchedOn ? "On" : "Off", "Press", "Hover"}) {
        const QString path = QStringLiteral(":/Resources/Power/POWERBUTTON%1.png").arg(QLatin1String(state));
        const QPixmap layer = pictures::load(path);
        picture = picture.isNull() ? layer : pictures::overlay(picture, layer, QRect(0, 0, 19, 82));
    }
    return picture;
}

QStringList TestPowerDrag::records() const
{
    QStringList lines;
    for (const HeaderItem* item : qAsConst(presets().headers))
        lines << asText(item->record);
    return lines;
}

void TestPowerDrag::switchesOnReleaseOnly()
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

void TestPowerDrag::pressInTheSquareShowsIt_data()
{
    addPowers();
}

void TestPowerDrag::pressInTheSquareShowsIt()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    hand->press(powerSquare());
    QCOMPARE(power()->pixmap().toImage(), pressedPicture(switchedOn).toImage());
    hand->move(powerSquare() + QPointF(3, 3));
    QCOMPARE(power()->pixmap().toImage(), pressedPicture(switchedOn).toImage());
    hand->move(powerSleeve());
    QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
    hand->move(powerSquare());
    QCOMPARE(power()->pixmap().toImage(), pressedPicture(switchedOn).toImage());
    hand->release();
    QCOMPARE(power()->isSwitchOn(), !switchedOn);
}

void TestPowerDrag::pressBesideTheSquareShowsNothing_data()
{
    QTest::addColumn<QPoint>("place"); // from the button's corner; the square is (3, 3, 13, 25)
    QTest::newRow("left rim") << QPoint(2, 15);
    QTest::newRow("upper rim") << QPoint(9, 2);
    QTest::newRow("right rim") << QPoint(17, 15);
    QTest::newRow("just below") << QPoint(9, 29);
    QTest::newRow("sleeve") << QPoint(9, 60);
    QTest::newRow("end of the sleeve") << QPoint(9, 81);
}

void TestPowerDrag::pressBesideTheSquareShowsNothing()
{
    QFETCH(QPoint, place);
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        hand->press(power()->pos() + place);
        QVERIFY(power()->mouseHeld && !power()->powerGrabbed);
        QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
        hand->release();
        QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
        QCOMPARE(power()->isSwitchOn(), switchedOn);
        QCOMPARE(unrest(), QString());
    }
}

void TestPowerDrag::releaseOutsideTheSquareDoesNotSwitch_data()
{
    addPowers();
}

void TestPowerDrag::releaseOutsideTheSquareDoesNotSwitch()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const QPointF& away : {powerSleeve(), stemOf(25), QPointF(-300, 500), onKey(in(60))}) {
        hand->drag(powerSquare(), away);
        hand->release();
        QCOMPARE(power()->isSwitchOn(), switchedOn);
        QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
        QVERIFY(!power()->powerGrabbed);
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(sent(), Messages());
}

void TestPowerDrag::handThatComesBackToTheSquareSwitches()
{
    hand->drag(powerSquare(), powerSleeve());
    hand->glideTo(powerSquare());
    hand->release();
    QVERIFY(power()->isSwitchOn());
}

void TestPowerDrag::secondPressOfADoubleClickSwitches()
{
    hand->click(powerSquare());
    hand->pressAgain(powerSquare());
    QCOMPARE(power()->pixmap().toImage(), pressedPicture(true).toImage());
    hand->release();
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::squareDoesNotDrag()
{
    hand->drag(powerSquare(), stemOf(32));
    QCOMPARE(power()->pos(), powerPlaceOn(powerKey));
    QVERIFY(!power()->dragStarted);
    QCOMPARE(power()->zValue(), 0.0);
    hand->release();
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestPowerDrag::switchBringsTheStageAlong()
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

void TestPowerDrag::learnModeTurnsTheSquareIntoASleeve()
{
    for (bool* flag : {&window->learnScale, &window->learnTonic}) {
        *flag = true;
        hand->press(powerSquare());
        QVERIFY(!power()->powerGrabbed);
        QVERIFY(power()->pixmap().toImage() != pressedPicture(false).toImage());
        hand->glideTo(stemOf(32));
        QVERIFY(showsPicture("Off_Drop"));
        QVERIFY(power()->dragStarted);
        hand->release();
        *flag = false;
        QCOMPARE(key_roles::pitch(power()), powerKey); // and nothing was swapped
        QVERIFY(!power()->isSwitchOn());
        QCOMPARE(unrest(), QString());
    }
}

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
    for (const QPointF& place : {powerSleeve() + QPointF(1, 0), nowhere(), stemOf(32), nowhere()}) {
        hand->move(place);
        QVERIFY(showsPicture(switchedOn ? "On_Drop" : "Off_Drop"));
        QCOMPARE(power()->zValue(), 1.0);
        QVERIFY(power()->dragStarted);
        QVERIFY(scene()->isDragging());
    }
    hand->release();
    QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
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
        dragTo(place);
        hand->release();
        QCOMPARE(unrest(), QString());
        QVERIFY(showsPicture(switchedOn ? "On" : "Off"));
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
    QVERIFY(showsPicture("Off"));
}

void TestPowerDrag::targetLightsUpAndIsPutOut_data()
{
    addPowers();
}

void TestPowerDrag::targetLightsUpAndIsPutOut()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const int slot : {22, 25, 27, 30, 32, 34, 51, 106}) {
        dragTo(stemOf(slot));
        QCOMPARE(header(slot)->status(), header_switch);
        QVERIFY(isSame(header(slot)->pixmap(), picture(header(slot)->type, "Switch")));
        QCOMPARE(scene()->dropTarget, header(slot));
        QCOMPARE(header(slot)->isVisible(), switchedOn); // looked for in the dark, it stays dark
        hand->move(nowhere());
        QCOMPARE(header(slot)->status(), header_deactive);
        QVERIFY(!scene()->dropTarget);
        hand->release();
        QCOMPARE(unrest(), QString());
    }
}

void TestPowerDrag::activeTargetLightsUpAsSuch()
{
    window->setPower(true);
    dragTo(stemOf(firstActive));
    QCOMPARE(header(firstActive)->status(), header_switch_active);
    hand->move(stemOf(firstActive) + QPointF(1, 0)); // once more on the lit one
    QCOMPARE(header(firstActive)->status(), header_switch_active);
    QVERIFY(header(firstActive)->isActive());
    hand->move(nowhere());
    QCOMPARE(header(firstActive)->status(), header_active);
    hand->release();
    QCOMPARE(active(), firstActive);
}

void TestPowerDrag::onlyOneTargetIsLit()
{
    window->setPower(true);
    hand->press(powerSleeve());
    int lit = 0;
    for (int x = 300; x < 840; ++x) {
        hand->move({qreal(x), 74});
        lit = 0;
        for (const HeaderItem* item : qAsConst(presets().headers))
            lit += item->status() >= header_switch ? 1 : 0;
        QCOMPARE(lit, scene()->dropTarget ? 1 : 0);
        QCOMPARE(presets().headers.count(static_cast<HeaderItem*>(scene()->dropTarget)), lit);
    }
    hand->move(nowhere());
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::learnModeHasNoTargets()
{
    window->setPower(true);
    const QStringList before = records();
    window->learnTonic = true;
    dragTo(stemOf(32));
    QCOMPARE(header(32)->status(), header_deactive);
    QVERIFY(!scene()->dropTarget);
    QCOMPARE(power()->x(), qreal(int(stemOf(32).x() - 1)));
    hand->release();
    window->learnTonic = false;
    QCOMPARE(records(), before);
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::learnModeThatComesMeanwhileSwapsNothing()
{
    window->setPower(true);
    const QStringList before = records();
    dragTo(stemOf(32));
    QCOMPARE(scene()->dropTarget, header(32));
    window->learnTonic = true;
    hand->release();
    window->learnTonic = false;
    QCOMPARE(records(), before);
    QCOMPARE(key_roles::pitch(power()), powerKey);
    QCOMPARE(power()->pos(), powerPlaceOn(powerKey));
}

void TestPowerDrag::dropOnNothingGoesHome_data()
{
    addPowers();
}

void TestPowerDrag::dropOnNothingGoesHome()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QStringList before = state();
    for (const QPointF& place : {nowhere(), QPointF(700, 150), QPointF(-500, -500), QPointF(2000, 74)}) {
        dragTo(place);
        hand->release();
        QCOMPARE(state(), before);
        QCOMPARE(unrest(), QString());
    }
}

void TestPowerDrag::dropOnTheOwnHeaderGoesHome_data()
{
    addPowers();
}

void TestPowerDrag::dropOnTheOwnHeaderGoesHome()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QStringList before = state();
    dragTo(nowhere());
    hand->glideTo(stemOf(powerKey), 25);
    QVERIFY(!scene()->dropTarget);
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::dropOnSlotFollowsTheRule(int slot)
{
    const int left = key_roles::pitch(power());
    const int wasActive = active();
    QStringList wanted = records();
    const bool power = this->power()->isSwitchOn();
    dragTo(stemOf(slot));
    hand->release();
    if (slot != left) {
        const auto index = [](int key) { return PresetModel::indexOf(key); };
        std::swap(wanted[index(slot)], wanted[index(left)]);
    }
    QCOMPARE(records(), wanted);
    QCOMPARE(key_roles::pitch(this->power()), slot);
    QCOMPARE(this->power()->pos(), powerPlaceOn(slot));
    QCOMPARE(active(), wasActive == slot ? left : wasActive); // the preset moves, and stays active
    QCOMPARE(this->power()->isSwitchOn(), power);
    QVERIFY(showsPicture(power ? "On" : "Off"));
    QCOMPARE(unrest(), QString());
}

void TestPowerDrag::everySlotInTurn_data()
{
    addPowers();
}

void TestPowerDrag::everySlotInTurn()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (int i = 0; i < PresetModel::count; ++i) {
        dropOnSlotFollowsTheRule(PresetModel::keyOf(i));
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(sent(), Messages());
}

void TestPowerDrag::slotsAtRandom_data()
{
    addPowers();
}

void TestPowerDrag::slotsAtRandom()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    std::mt19937 random(49);
    std::array<int, PresetModel::count> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = PresetModel::keyOf(int(i));
    std::shuffle(order.begin(), order.end(), random);
    for (const int slot : order) {
        dropOnSlotFollowsTheRule(slot);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestPowerDrag::dropOnTheActiveHeaderKeepsItsPresetActive()
{
    window->setPower(true);
    const QString preset = asText(record(firstActive));
    dropOnSlotFollowsTheRule(firstActive);
    QCOMPARE(active(), powerKey);
    QCOMPARE(asText(record(powerKey)), preset);
    QVERIFY(header(powerKey)->isVisible());
    QVERIFY(!header(firstActive)->isVisible());
}

QTEST_MAIN(TestPowerDrag)
#include "test_power_drag.moc"
