// How the stage finds what lies under a place: a header or the power button near it, items along a row, and
// the slot of the power button.

#include "StageFixture.h"

#include <QtTest>

class TestNearbyItems : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    void nearbyHeaderIsNeverTheOneInHand();
    void nearbyHeaderPrefersThePowerButton();
    void nearbyHeaderIsFoundInTheDark();
    void nearbyHeaderSkipsTheOneUnderThePowerButton();
    void nearbyHeaderTakesTheUppermost();
    void nearbyHeaderIsNullElsewhere();
    void nearbyItemProbesAlongTheRow();
    void nearbyItemReadsTheAskedRole();
    void powerPlaceTakesTheUppermostHeaderOnly();
    void powerPlaceIsFoundInTheDark();
};

void TestNearbyItems::init()
{
    openStage();
    window->setPower(true);
}

void TestNearbyItems::nearbyHeaderIsNeverTheOneInHand()
{
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(stemOf(32))), header(32));
    QVERIFY(!scene()->findNearbyHeaderItem(header(32), around(stemOf(32))));
    QVERIFY(!scene()->findNearbyHeaderItem(power(), around(powerTarget())));
    QCOMPARE(scene()->findNearbyHeaderItem(nullptr, around(stemOf(32))), header(32));
}

void TestNearbyItems::nearbyHeaderPrefersThePowerButton()
{
    const QRectF both = around({308, 74});
    QCOMPARE(scene()->findNearbyHeaderItem(header(25), both), power());
    QCOMPARE(scene()->findNearbyHeaderItem(power(), both), header(51));
    header(51)->setZValue(1); // even from below
    QCOMPARE(scene()->findNearbyHeaderItem(header(25), both), power());
}

void TestNearbyItems::nearbyHeaderIsFoundInTheDark()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        QCOMPARE(scene()->findNearbyHeaderItem(power(), around(stemOf(32))), header(32));
        QVERIFY(!scene()->findNearbyHeaderItem(power(), around(nowhere())));
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->isVisible(), switchedOn && item != header(powerKey));
    }
}

void TestNearbyItems::nearbyHeaderSkipsTheOneUnderThePowerButton()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        QVERIFY(!scene()->findNearbyHeaderItem(power(), around(stemOf(powerKey))));
    }
}

void TestNearbyItems::nearbyHeaderTakesTheUppermost()
{
    const QPointF between((stemOf(25) + stemOf(27)) / 2); // three pixels lie between these stems
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(between)), header(27));
    header(25)->setZValue(1);
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(between)), header(25));
}

void TestNearbyItems::nearbyHeaderIsNullElsewhere()
{
    for (const QPointF& place : {nowhere(), QPointF(-500, 0), QPointF(3000, 74), onKey(in(60))})
        QVERIFY(!scene()->findNearbyHeaderItem(header(25), around(place)));
}

void TestNearbyItems::nearbyItemProbesAlongTheRow()
{
    const ResizableItem* from = in(53); // F3, clear of anchors on both sides
    const QPointF below(8, 70);
    const auto find = [&](const char* name, int step, int count) {
        return scene()->findNearbyItem(QLatin1String(name), from, below, step, ROLE_NAME, count);
    };
    QCOMPARE(find("F3", 17, 1), static_cast<QGraphicsItem*>(in(53)));
    QCOMPARE(find("G3", 17, 1), static_cast<QGraphicsItem*>(nullptr));
    QCOMPARE(find("G3", 17, 2), static_cast<QGraphicsItem*>(in(55)));
    QCOMPARE(find("A3", 17, 2), static_cast<QGraphicsItem*>(nullptr));
    QCOMPARE(find("A3", 17, 3), static_cast<QGraphicsItem*>(in(57)));
    QCOMPARE(find("A3", 34, 2), static_cast<QGraphicsItem*>(in(57)));
    QCOMPARE(find("E3", -17, 2), static_cast<QGraphicsItem*>(in(52)));
    QVERIFY(!find("F3", 17, 0));
    QVERIFY(!find("F3", 17, -1));
    QVERIFY(!find("nothing", 17, 60)); // past the end of the keyboard
}

void TestNearbyItems::nearbyItemReadsTheAskedRole()
{
    const auto find = [this](const char* word, int role) {
        return scene()->findNearbyItem(QLatin1String(word), in(53), {8, 70}, 17, role, 3);
    };
    QCOMPARE(find("in", ROLE_SIDE), static_cast<QGraphicsItem*>(in(53)));
    QCOMPARE(find("55", ROLE_PITCH), static_cast<QGraphicsItem*>(in(55)));
    QVERIFY(!find("out", ROLE_SIDE));
    QVERIFY(!find("F3", ROLE_PITCH));
}

// The place is the button's; the search looks into the lower half of it, from 3 to 13 pixels.
void TestNearbyItems::powerPlaceTakesTheUppermostHeaderOnly()
{
    const QString lower = asText(record(25));
    const QString upper = asText(record(27)), own = asText(record(powerKey));
    const QPointF between((stemOf(25) + stemOf(27)) / 2);
    QVERIFY(window->findPowerItemPosition({between.x() - 8, 28}));
    QCOMPARE(key_roles::pitch(power()), 27);
    QCOMPARE(asText(record(25)), lower);
    QCOMPARE(asText(record(27)), own);
    QCOMPARE(asText(record(powerKey)), upper);
    QCOMPARE(unrest(), QString());
}

void TestNearbyItems::powerPlaceIsFoundInTheDark()
{
    window->setPower(false);
    QVERIFY(window->findPowerItemPosition(powerPlaceOn(32)));
    QCOMPARE(key_roles::pitch(power()), 32);
    QCOMPARE(power()->pos(), powerPlaceOn(32));
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->isVisible(), power()->isSwitchOn() && item != header(32));
}

QTEST_MAIN(TestNearbyItems)
#include "test_nearby_items.moc"
