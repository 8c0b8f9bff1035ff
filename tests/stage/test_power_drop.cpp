// The power button over the headers: what lights up under it, and how a drop there exchanges the presets and
// their places.

#include "StageFixture.h"

#include "PresetModel.h"
#include "header_pictures.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <random>

class TestPowerDrop : public StageFixture
{
    Q_OBJECT

private slots:
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
    /// Drags the button to a slot and compares all records and the active one with the rule.
    void dropOnSlotFollowsTheRule(int slot);
};

void TestPowerDrop::dropOnSlotFollowsTheRule(int slot)
{
    const int left = key_roles::pitch(power());
    const int wasActive = active();
    QStringList wanted = records();
    const bool power = this->power()->isSwitchOn();
    dragPowerTo(stemOf(slot));
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
    QVERIFY(powerShows({power ? "On" : "Off"}));
    QCOMPARE(unrest(), QString());
}

void TestPowerDrop::targetLightsUpAndIsPutOut_data()
{
    addPowers();
}

void TestPowerDrop::targetLightsUpAndIsPutOut()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const int slot : {22, 25, 27, 30, 32, 34, 51, 106}) {
        dragPowerTo(stemOf(slot));
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

void TestPowerDrop::activeTargetLightsUpAsSuch()
{
    window->setPower(true);
    dragPowerTo(stemOf(firstActive));
    QCOMPARE(header(firstActive)->status(), header_switch_active);
    hand->move(stemOf(firstActive) + QPointF(1, 0)); // once more on the lit one
    QCOMPARE(header(firstActive)->status(), header_switch_active);
    QVERIFY(header(firstActive)->isActive());
    hand->move(nowhere());
    QCOMPARE(header(firstActive)->status(), header_active);
    hand->release();
    QCOMPARE(active(), firstActive);
}

void TestPowerDrop::onlyOneTargetIsLit()
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

void TestPowerDrop::learnModeHasNoTargets()
{
    window->setPower(true);
    const QStringList before = records();
    window->learnTonic = true;
    dragPowerTo(stemOf(32));
    QCOMPARE(header(32)->status(), header_deactive);
    QVERIFY(!scene()->dropTarget);
    QCOMPARE(power()->x(), qreal(int(stemOf(32).x() - 1)));
    hand->release();
    window->learnTonic = false;
    QCOMPARE(header(32)->status(), header_deactive);
    QCOMPARE(records(), before);
    QCOMPARE(unrest(), QString());
}

void TestPowerDrop::learnModeThatComesMeanwhileSwapsNothing()
{
    window->setPower(true);
    const QStringList before = records();
    dragPowerTo(stemOf(32));
    QCOMPARE(scene()->dropTarget, header(32));
    window->learnTonic = true;
    hand->release();
    window->learnTonic = false;
    QCOMPARE(records(), before);
    QCOMPARE(key_roles::pitch(power()), powerKey);
    QCOMPARE(power()->pos(), powerPlaceOn(powerKey));
}

void TestPowerDrop::dropOnNothingGoesHome_data()
{
    addPowers();
}

void TestPowerDrop::dropOnNothingGoesHome()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QStringList before = state();
    for (const QPointF& place : {nowhere(), QPointF(700, 150), QPointF(-500, -500), QPointF(2000, 74)}) {
        dragPowerTo(place);
        hand->release();
        QCOMPARE(state(), before);
        QCOMPARE(unrest(), QString());
    }
}

void TestPowerDrop::dropOnTheOwnHeaderGoesHome_data()
{
    addPowers();
}

void TestPowerDrop::dropOnTheOwnHeaderGoesHome()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QStringList before = state();
    dragPowerTo(nowhere());
    hand->glideTo(stemOf(powerKey), 25);
    QVERIFY(!scene()->dropTarget);
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestPowerDrop::everySlotInTurn_data()
{
    addPowers();
}

void TestPowerDrop::everySlotInTurn()
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

void TestPowerDrop::slotsAtRandom_data()
{
    addPowers();
}

void TestPowerDrop::slotsAtRandom()
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

void TestPowerDrop::dropOnTheActiveHeaderKeepsItsPresetActive()
{
    window->setPower(true);
    const QString preset = asText(record(firstActive));
    dropOnSlotFollowsTheRule(firstActive);
    QCOMPARE(active(), powerKey);
    QCOMPARE(asText(record(powerKey)), preset);
    QVERIFY(header(powerKey)->isVisible());
    QVERIFY(!header(firstActive)->isVisible());
}

QTEST_MAIN(TestPowerDrop)
#include "test_power_drop.moc"
