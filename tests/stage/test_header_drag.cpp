// A header in the hand: clicks, drags, drops, and how the stage finds what lies under a place.

#include "StageFixture.h"

#include "HeaderLog.h"
#include "header_pictures.h"

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
    void secondPressOfADoubleClickRecallsAndDoesNotDrag();
    void pressAfterADoubleClickDragsAgain();

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

    // Drops that no hand makes
    void litTargetOfThePowerButtonGoesOut_data();
    void litTargetOfThePowerButtonGoesOut();
    void powerButtonWithoutAHeaderOfItsOwnIsRefused();
    void headerOnAPowerButtonWithoutOneIsRefused();
    void recallDuringADragEndsItsDrop_data();
    void recallDuringADragEndsItsDrop();

    // What lies under a place
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

private:
    void dragFrom(int key, QPointF to) { hand->drag(boxOf(key), to, 25); }
    /// The middle of the sleeve as it stands, out of reach of other flags.
    QPointF powerTarget() const { return powerSleeve() + QPointF(0, 14); }
    static QRectF around(QPointF place) { return {place - QPointF(3, 3), QSizeF(6, 6)}; }
    bool powerShows(const char* state) const;
};

void TestHeaderDrag::init()
{
    openStage();
    window->setPower(true);
}

bool TestHeaderDrag::powerShows(const char* state) const
{
    return shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTON%1.png").arg(QLatin1String(state)));
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

void TestHeaderDrag::secondPressOfADoubleClickRecallsAndDoesNotDrag()
{
    hand->click(boxOf(25));
    recall(27);
    hand->pressAgain(boxOf(25));
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
    dragFrom(25, stemOf(32));
    QCOMPARE(header(32)->status(), header_switch);
    hand->release();
    QCOMPARE(active(), 32);
}

void TestHeaderDrag::targetLightsUpAndIsPutOut()
{
    for (const int slot : {22, 27, 30, 32, 34, 51, 106}) {
        dragFrom(25, stemOf(slot));
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

void TestHeaderDrag::powerButtonLightsUpAndIsPutOut()
{
    dragFrom(25, powerTarget());
    QVERIFY(powerShows("On_Switch"));
    QCOMPARE(scene()->dropTarget, power());
    hand->move(stemOf(32));
    QVERIFY(powerShows("On"));
    QCOMPARE(header(32)->status(), header_switch);
    hand->move(powerTarget());
    QVERIFY(powerShows("On_Switch"));
    QCOMPARE(header(32)->status(), header_deactive);
    hand->move(nowhere());
    QVERIFY(powerShows("On"));
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::powerButtonWinsOverAHeader()
{
    const QPointF between(308, 74); // within reach of the button's sleeve and of the stem beside it
    QVERIFY(power()->sceneBoundingRect().intersects(around(between)));
    QVERIFY(header(51)->mapToScene(header(51)->shape()).intersects(around(between)));
    dragFrom(25, between);
    QCOMPARE(scene()->dropTarget, power());
    QCOMPARE(header(51)->status(), header_deactive);
    hand->move(nowhere());
    hand->release();
}

void TestHeaderDrag::dropOnAHeaderSwaps()
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

void TestHeaderDrag::dropOnAHeaderCopiesInCopyMode()
{
    setRecord(25, fullRecord());
    setRecord(32, scaleRecord(wholeTone));
    scene()->headerCopyMode = true;
    dragFrom(25, stemOf(32));
    hand->release();
    QCOMPARE(record(32).scaleData, lydian);
    QCOMPARE(record(25).scaleData, lydian);
    QCOMPARE(active(), 32);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::dropOnThePowerButtonMovesIt()
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
    QVERIFY(powerShows("On"));
    QVERIFY(header(powerKey)->isVisible());
    QVERIFY(!header(25)->isVisible());
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::dropOnNothingGoesHomeAndStaysActive()
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

void TestHeaderDrag::dropOnItselfGoesHome()
{
    dragFrom(25, stemOf(32));
    hand->glideTo(stemOf(25));
    QVERIFY(!scene()->dropTarget);
    const QStringList before = state();
    hand->release();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestHeaderDrag::everyHeaderOnEveryOther()
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

void TestHeaderDrag::litTargetOfThePowerButtonGoesOut_data()
{
    QTest::addColumn<int>("lit");
    QTest::addColumn<int>("left");
    QTest::newRow("a header") << int(header_switch) << int(header_deactive);
    QTest::newRow("the active header") << int(header_switch_active) << int(header_active);
}

void TestHeaderDrag::litTargetOfThePowerButtonGoesOut()
{
    QFETCH(int, lit);
    QFETCH(int, left);
    header(firstActive)->setStatus(static_cast<header_status>(lit));
    QVERIFY(scene()->swapHeader(header(firstActive), power()));
    QCOMPARE(int(header(firstActive)->status()), int(header_deactive));
    QCOMPARE(int(header(powerKey)->status()), left);
}

void TestHeaderDrag::powerButtonWithoutAHeaderOfItsOwnIsRefused()
{
    key_roles::setPitch(power(), 60);
    const QStringList before = state();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header the same exception$");
    QVERIFY(!scene()->swapHeader(header(25), power()));
    QCOMPARE(state(), before);
}

void TestHeaderDrag::headerOnAPowerButtonWithoutOneIsRefused()
{
    key_roles::setPitch(power(), 60);
    const QStringList before = state();
    QVERIFY(!scene()->swapHeader(power(), header(25)));
    QCOMPARE(state(), before);
}

void TestHeaderDrag::recallDuringADragEndsItsDrop_data()
{
    QTest::addColumn<int>("dropKey");
    QTest::newRow("nowhere") << 0;
    QTest::newRow("on a header") << 32;
    QTest::newRow("on the recalled one") << 68;
    QTest::newRow("on the power button") << powerKey;
}

// A drop made the dragged preset the active one while the selectors still showed the recalled one, which was
// then stored over it.
void TestHeaderDrag::recallDuringADragEndsItsDrop()
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

void TestHeaderDrag::nearbyHeaderIsNeverTheOneInHand()
{
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(stemOf(32))), header(32));
    QVERIFY(!scene()->findNearbyHeaderItem(header(32), around(stemOf(32))));
    QVERIFY(!scene()->findNearbyHeaderItem(power(), around(powerTarget())));
    QCOMPARE(scene()->findNearbyHeaderItem(nullptr, around(stemOf(32))), header(32));
}

void TestHeaderDrag::nearbyHeaderPrefersThePowerButton()
{
    const QRectF both = around({308, 74});
    QCOMPARE(scene()->findNearbyHeaderItem(header(25), both), power());
    QCOMPARE(scene()->findNearbyHeaderItem(power(), both), header(51));
    header(51)->setZValue(1); // even from below
    QCOMPARE(scene()->findNearbyHeaderItem(header(25), both), power());
}

void TestHeaderDrag::nearbyHeaderIsFoundInTheDark()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        QCOMPARE(scene()->findNearbyHeaderItem(power(), around(stemOf(32))), header(32));
        QVERIFY(!scene()->findNearbyHeaderItem(power(), around(nowhere())));
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->isVisible(), switchedOn && item != header(powerKey));
    }
}

void TestHeaderDrag::nearbyHeaderSkipsTheOneUnderThePowerButton()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        QVERIFY(!scene()->findNearbyHeaderItem(power(), around(stemOf(powerKey))));
    }
}

void TestHeaderDrag::nearbyHeaderTakesTheUppermost()
{
    const QPointF between((stemOf(25) + stemOf(27)) / 2); // three pixels lie between these stems
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(between)), header(27));
    header(25)->setZValue(1);
    QCOMPARE(scene()->findNearbyHeaderItem(power(), around(between)), header(25));
}

void TestHeaderDrag::nearbyHeaderIsNullElsewhere()
{
    for (const QPointF& place : {nowhere(), QPointF(-500, 0), QPointF(3000, 74), onKey(in(60))})
        QVERIFY(!scene()->findNearbyHeaderItem(header(25), around(place)));
}

void TestHeaderDrag::nearbyItemProbesAlongTheRow()
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

void TestHeaderDrag::nearbyItemReadsTheAskedRole()
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
void TestHeaderDrag::powerPlaceTakesTheUppermostHeaderOnly()
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

void TestHeaderDrag::powerPlaceIsFoundInTheDark()
{
    window->setPower(false);
    QVERIFY(window->findPowerItemPosition(powerPlaceOn(32)));
    QCOMPARE(key_roles::pitch(power()), 32);
    QCOMPARE(power()->pos(), powerPlaceOn(32));
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->isVisible(), power()->isSwitchOn() && item != header(32));
}

QTEST_MAIN(TestHeaderDrag)
#include "test_header_drag.moc"
