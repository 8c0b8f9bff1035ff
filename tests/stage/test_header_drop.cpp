// A header over other headers and over the power button: what lights up under it, and what a drop exchanges,
// copies or leaves alone.

#include "StageFixture.h"

#include "HeaderLog.h"
#include "header_pictures.h"

#include <QtTest>

class TestHeaderDrop : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    // The targets
    void targetLightsUpAndIsPutOut();
    void powerButtonLightsUpAndIsPutOut();
    void powerButtonWinsOverAHeader();

    // The drop
    void dropOnAHeaderSwaps();
    void dropOnAHeaderCopiesInCopyMode();
    void dropOnThePowerButtonMovesIt();
    void dropOnNothingGoesHomeAndStaysActive();
    void dropOnItselfGoesHome();
    void everyHeaderOnEveryOther();
    void recallDuringADragEndsItsDrop_data();
    void recallDuringADragEndsItsDrop();

    // Drops that no hand makes
    void litTargetOfThePowerButtonGoesOut_data();
    void litTargetOfThePowerButtonGoesOut();
    void powerButtonWithoutAHeaderOfItsOwnIsRefused();
    void headerOnAPowerButtonWithoutOneIsRefused();
};

void TestHeaderDrop::init()
{
    openStage();
    window->setPower(true);
}

void TestHeaderDrop::targetLightsUpAndIsPutOut()
{
    for (const int slot : {22, 27, 30, 32, 34, 51, 106}) {
        dragHeaderTo(25, stemOf(slot));
        QCOMPARE(header(slot)->status(), header_switch);
        QVERIFY(isSame(header(slot)->pixmap(), picture(header(slot)->type, "Switch")));
        QCOMPARE(header(25)->status(), header_active);
        hand->move(nowhere());
        QCOMPARE(header(slot)->status(), header_deactive);
        QVERIFY(!scene()->dropTarget);
        hand->release();
        QCOMPARE(unrest(), QString());
    }
}

void TestHeaderDrop::powerButtonLightsUpAndIsPutOut()
{
    dragHeaderTo(25, powerTarget());
    QVERIFY(powerShows({"On_Switch"}));
    QCOMPARE(scene()->dropTarget, power());
    hand->move(stemOf(32));
    QVERIFY(powerShows({"On"}));
    QCOMPARE(header(32)->status(), header_switch);
    hand->move(powerTarget());
    QVERIFY(powerShows({"On_Switch"}));
    QCOMPARE(header(32)->status(), header_deactive);
    hand->move(nowhere());
    QVERIFY(powerShows({"On"}));
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrop::powerButtonWinsOverAHeader()
{
    const QPointF between(308, 74); // within reach of the button's sleeve and of the stem beside it
    QVERIFY(power()->sceneBoundingRect().intersects(around(between)));
    QVERIFY(header(51)->mapToScene(header(51)->shape()).intersects(around(between)));
    dragHeaderTo(25, between);
    QCOMPARE(scene()->dropTarget, power());
    QCOMPARE(header(51)->status(), header_deactive);
    hand->move(nowhere());
    hand->release();
}

void TestHeaderDrop::dropOnAHeaderSwaps()
{
    setRecord(25, fullRecord());
    setRecord(32, scaleRecord(wholeTone));
    hand->press(boxOf(25)); // the recall may write into the record that it leaves, not into this one
    const QString moved = asText(record(25)), other = asText(record(32));
    hand->glideTo(stemOf(32));
    hand->release();
    QCOMPARE(asText(record(32)), moved);
    QCOMPARE(asText(record(25)), other);
    QCOMPARE(active(), 32); // the preset that was moved stays the active one
    QCOMPARE(unrest(), QString());
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestHeaderDrop::dropOnAHeaderCopiesInCopyMode()
{
    setRecord(25, fullRecord());
    setRecord(32, scaleRecord(wholeTone));
    scene()->headerCopyMode = true;
    dragHeaderTo(25, stemOf(32));
    hand->release();
    QCOMPARE(record(32).scaleData, lydian);
    QCOMPARE(record(25).scaleData, lydian);
    QCOMPARE(active(), 32);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrop::dropOnThePowerButtonMovesIt()
{
    setRecord(25, fullRecord());
    const QString under = asText(record(powerKey));
    hand->press(boxOf(25));
    const QString moved = asText(record(25));
    hand->glideTo(powerTarget());
    hand->release();
    QCOMPARE(asText(record(powerKey)), moved);
    QCOMPARE(asText(record(25)), under);
    QCOMPARE(active(), powerKey);
    QCOMPARE(key_roles::pitch(power()), 25);
    QCOMPARE(power()->pos(), powerPlaceOn(25));
    QVERIFY(power()->isSwitchOn());
    QVERIFY(powerShows({"On"}));
    QVERIFY(header(powerKey)->isVisible());
    QVERIFY(!header(25)->isVisible());
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrop::dropOnNothingGoesHomeAndStaysActive()
{
    hand->press(boxOf(25));
    const QStringList before = state();
    for (const QPointF& place : {nowhere(), QPointF(-500, 60), QPointF(2000, 60), QPointF(700, -80)}) {
        hand->glideTo(place, 50);
        hand->release();
        QCOMPARE(state(), before);
        QCOMPARE(active(), 25);
        QCOMPARE(unrest(), QString());
        hand->press(boxOf(25));
    }
    hand->release();
}

void TestHeaderDrop::dropOnItselfGoesHome()
{
    dragHeaderTo(25, stemOf(32));
    hand->glideTo(stemOf(25));
    QVERIFY(!scene()->dropTarget);
    const QStringList before = state();
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrop::everyHeaderOnEveryOther()
{
    const int keys[] = {22, 25, 27, 30, 32, 34, 51, 54, 58, 106};
    for (const int from : keys)
        for (const int to : keys) {
            if (from == to)
                continue;
            hand->press(boxOf(from));
            const QString moved = asText(record(from)), other = asText(record(to));
            hand->glideTo(stemOf(to), 40);
            hand->release();
            QCOMPARE(asText(record(to)), moved);
            QCOMPARE(asText(record(from)), other);
            QCOMPARE(active(), to);
            QCOMPARE(unrest(), QString());
        }
}

void TestHeaderDrop::recallDuringADragEndsItsDrop_data()
{
    QTest::addColumn<int>("dropKey");
    QTest::newRow("nowhere") << 0;
    QTest::newRow("on a header") << 32;
    QTest::newRow("on the recalled one") << 68;
    QTest::newRow("on the power button") << powerKey;
}

// A drop made the dragged preset the active one while the selectors still showed the recalled one, which was
// then stored over it.
void TestHeaderDrop::recallDuringADragEndsItsDrop()
{
    QFETCH(int, dropKey);
    hand->press(boxOf(25));
    hand->glideTo(nowhere());
    window->receiveMessage({0x90, 68, 100});
    window->receiveMessage({0x80, 68, 0});
    const QStringList before = state();
    hand->glideTo(dropKey == 0 ? nowhere() : dropKey == powerKey ? powerTarget() : stemOf(dropKey));
    hand->release();
    QCOMPARE(active(), 68);
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrop::litTargetOfThePowerButtonGoesOut_data()
{
    QTest::addColumn<int>("lit");
    QTest::addColumn<int>("left");
    QTest::newRow("a header") << int(header_switch) << int(header_deactive);
    QTest::newRow("the active header") << int(header_switch_active) << int(header_active);
}

void TestHeaderDrop::litTargetOfThePowerButtonGoesOut()
{
    QFETCH(int, lit);
    QFETCH(int, left);
    header(firstActive)->setStatus(static_cast<header_status>(lit));
    QVERIFY(scene()->swapHeader(header(firstActive), power()));
    QCOMPARE(int(header(firstActive)->status()), int(header_deactive));
    QCOMPARE(int(header(powerKey)->status()), left);
}

void TestHeaderDrop::powerButtonWithoutAHeaderOfItsOwnIsRefused()
{
    key_roles::setPitch(power(), 60);
    const QStringList before = state();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header the same exception$");
    QVERIFY(!scene()->swapHeader(header(25), power()));
    QCOMPARE(state(), before);
}

void TestHeaderDrop::headerOnAPowerButtonWithoutOneIsRefused()
{
    key_roles::setPitch(power(), 60);
    const QStringList before = state();
    QVERIFY(!scene()->swapHeader(power(), header(25)));
    QCOMPARE(state(), before);
}

QTEST_MAIN(TestHeaderDrop)
#include "test_header_drop.moc"
