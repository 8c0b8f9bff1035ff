// The hand on the anchors: what it takes hold of and what follows it. How a drag ends stands in
// test_anchors_release.cpp, its range and what each of its steps does to the whole stage in
// test_anchors_range.cpp.

#include "AnchorFixture.h"
#include "headers/AnchorItem.h"

class TestAnchorsDrag : public AnchorFixture
{
    Q_OBJECT

private slots:
    // Taking hold
    void everyAnchorCanBeHeld();
    void pressAndReleaseMovesNothing();
    void pressOnAnAnchorAboveTheBarPressesTheKeyThere();
    void pressOnAnAnchorAboveTheBarDoesNotDrag();
    void gripBeginsAtTheTopOfTheBar();
    void pressBesideTheAnchorsMovesNothing();
    void secondPressOfADoubleClickDrags();

    // The drag
    void dragRaisesTheScenesFlagUntilTheRelease();
    void betweenTwoGridPointsTheNearerOneIsTaken();
    void withinSixteenPixelsOnlyTheFirstTwoPointsAreTaken();
    void keysAreRemappedAtOnce();
    void greyFollowsEachStep();
    void heldNoteEndsAsItBegan();
    void powerOffDragMovesTheGroupAlone();
    void unevenAnchorStopsOffTheGrid();
    void laterAnchorUnderThePointerDecides();
    void pointerOffTheBarGoesOnDragging_data();
    void pointerOffTheBarGoesOnDragging();
    void pointerOutsideTheViewStopsAtTheEnds_data();
    void pointerOutsideTheViewStopsAtTheEnds();

private:
    QStringList played(int key) const;
};

/// The notes that a press and a release of a key send.
QStringList TestAnchorsDrag::played(int key) const
{
    port->clear();
    window->findInNote(key)->pushKey();
    window->findInNote(key)->releaseKey();
    QStringList notes;
    for (const QList<int>& message : port->takeLists())
        notes << QStringLiteral("%1 %2").arg(message[0], 0, 16).arg(message[1]);
    return notes;
}

void TestAnchorsDrag::everyAnchorCanBeHeld()
{
    choose(0, QStringLiteral("xooxoooxoooo")); // three degrees: all nine stand on the bar
    for (int n = -4; n <= 4; ++n) {
        QVERIFY(!anchors()->isPressed);
        hand->press(gripOf(n));
        QVERIFY(anchors()->isPressed);
        QVERIFY(anchors()->isAncestorOf(scene()->mouseGrabberItem()));
        QVERIFY(!static_cast<AnchorItem*>(anchor(n))->isPressed); // the group has the event
        hand->release();
        QVERIFY(!anchors()->isPressed);
        QVERIFY(!scene()->mouseGrabberItem());
    }
    QVERIFY(port->takeLists().isEmpty());
}

void TestAnchorsDrag::pressAndReleaseMovesNothing()
{
    putGroup(-34);
    hand->click(gripOf(0));
    QCOMPARE(anchors()->pos(), QPointF(-34, 0));
    QCOMPARE(fault(), QString());
    QCOMPARE(stored().anchorPos, -34);
}

void TestAnchorsDrag::pressOnAnAnchorAboveTheBarPressesTheKeyThere()
{
    const QPointF aboveBar(gripOf(0).x() + 3, 130); // over middle C, whose left edge is the anchor's middle
    QVERIFY(scene()->items(aboveBar).contains(power()->mainAnchorIn));
    hand->press(aboveBar);
    QVERIFY(!scene()->anchorDrag);
    QCOMPARE(scene()->mouseGrabberItem(), static_cast<QGraphicsItem*>(window->findInNote(60)));
    QCOMPARE(port->takeLists().value(0), (QList<int>{0x90, 60, 75}));
    hand->release();
    QCOMPARE(port->takeLists().value(0), (QList<int>{0x80, 60, 0}));
}

void TestAnchorsDrag::pressOnAnAnchorAboveTheBarDoesNotDrag()
{
    stored().anchorPos = 5;
    const QPointF aboveBar(gripOf(0).x() + 3, 130);
    hand->press(aboveBar);
    hand->glideTo(aboveBar + QPointF(100, 0));
    hand->glideTo(gripOf(0) + QPointF(100, 0)); // on the bar now, too late
    QCOMPARE(anchors()->pos(), QPointF());
    QVERIFY(!scene()->anchorDrag);
    hand->release();
    QCOMPARE(anchors()->pos(), QPointF());
    QCOMPARE(stored().anchorPos, 5);
    QCOMPARE(fault(), QString());
    // Nor does the press that fell through make the next move one.
    hand->move(gripOf(0) + QPointF(51, 0));
    QCOMPARE(anchors()->pos(), QPointF());
}

void TestAnchorsDrag::gripBeginsAtTheTopOfTheBar()
{
    const qreal x = gripOf(0).x();
    hand->press({x, 144});
    hand->move({x + 34, 144});
    QCOMPARE(anchors()->x(), 0.0);
    hand->release();
    hand->press({x, 145});
    hand->move({x + 34, 145});
    QCOMPARE(anchors()->x(), 34.0);
    hand->release();
}

void TestAnchorsDrag::pressBesideTheAnchorsMovesNothing()
{
    const QPointF beside = gripOf(0) + QPointF(60, 0);
    hand->press(beside);
    QVERIFY(!scene()->mouseGrabberItem());
    hand->move(beside + QPointF(170, 0));
    hand->move(gripOf(1)); // crossing another one with the button down
    hand->move(gripOf(1) + QPointF(34, 0));
    QCOMPARE(anchors()->pos(), QPointF());
    hand->release();
    QCOMPARE(fault(), QString());
}

void TestAnchorsDrag::secondPressOfADoubleClickDrags()
{
    const QPointF grip = gripOf(0);
    hand->click(grip);
    hand->pressAgain(grip);
    hand->move(grip + QPointF(51, 0));
    QCOMPARE(anchors()->x(), 51.0);
    hand->release();
    QCOMPARE(stored().anchorPos, 51);
}

void TestAnchorsDrag::dragRaisesTheScenesFlagUntilTheRelease()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    QVERIFY(!scene()->anchorDrag);
    hand->move(grip + QPointF(1, 0)); // too little to move the group
    QVERIFY(scene()->anchorDrag);
    hand->release();
    QVERIFY(!scene()->anchorDrag);
}

void TestAnchorsDrag::betweenTwoGridPointsTheNearerOneIsTaken()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    for (int dx = -119; dx <= 119; ++dx) {
        hand->move(grip + QPointF(dx, 0));
        const int wanted = 17 * qRound(dx / 17.0);
        QCOMPARE(anchors()->x(), qreal(wanted));
        QVERIFY(qAbs(wanted - dx) <= 8);
    }
    hand->release();
}

void TestAnchorsDrag::withinSixteenPixelsOnlyTheFirstTwoPointsAreTaken()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    for (int dx = -16; dx <= 16; ++dx) {
        hand->move(grip + QPointF(dx, 0));
        QCOMPARE(anchors()->x(), dx > 8 ? 17.0 : dx < -8 ? -17.0 : 0.0);
    }
    hand->release();
}

void TestAnchorsDrag::keysAreRemappedAtOnce()
{
    dragBy(0, 34);
    QCOMPARE(played(64), (QStringList{"90 60", "80 60"})); // E, two keys up, plays the tonic
    hand->move(gripOf(0) - QPointF(34, 0));
    QCOMPARE(played(60), (QStringList{"90 60", "80 60"}));
    hand->move(gripOf(0) - QPointF(17, 0));
    QCOMPARE(played(60), (QStringList{"90 62", "80 62"}));
    QVERIFY(anchors()->isPressed);
    hand->release();
    QCOMPARE(played(60), (QStringList{"90 62", "80 62"}));
}

// The grey is part of what each step's remap brings up to date; the release finds nothing left to do.
void TestAnchorsDrag::greyFollowsEachStep()
{
    choose(0, wholeTone);
    const auto grey = [this] {
        QList<int> keys;
        for (int key = 21; key <= 108; ++key)
            if (key_roles::isDeactive(window->findInNote(key)))
                keys << key;
        return keys;
    };
    const QList<int> before = grey();
    dragBy(0, 170);
    const QList<int> during = grey();
    QVERIFY(during != before);
    QCOMPARE(fault(), QString());
    hand->release();
    QCOMPARE(grey(), during);
}

void TestAnchorsDrag::heldNoteEndsAsItBegan()
{
    window->findInNote(64)->pushKey();
    dragBy(0, 34);
    hand->release();
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x90, 64, 75}}));
    window->findInNote(64)->releaseKey();
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x80, 64, 0}}));
}

void TestAnchorsDrag::powerOffDragMovesTheGroupAlone()
{
    window->setPower(false);
    dragBy(0, 34);
    QCOMPARE(anchors()->pos(), QPointF(34, 0));
    for (int key = 21; key <= 108; ++key) {
        QCOMPARE(key_roles::target(window->findInNote(key)), key);
        QVERIFY(!key_roles::isDeactive(window->findInNote(key)));
    }
    QVERIFY(power()->marksIn().empty());
    hand->release();
    QCOMPARE(stored().anchorPos, 34);
    window->setPower(true);
    QCOMPARE(fault(), QString());
}

// An anchor that stood off the grid would be put on the end of the bar, and the group off the grid with it.
void TestAnchorsDrag::unevenAnchorStopsOffTheGrid()
{
    anchor(0)->setX(5);
    QPointF grip = gripOf(0);
    hand->press(grip);
    hand->move(grip + QPointF(472, 0)); // 477 for the anchor
    QCOMPARE(anchors()->x(), 471.0);
    hand->release();
    putGroup(0);
    anchor(0)->setX(-5);
    grip = gripOf(0);
    hand->press(grip);
    hand->move(grip - QPointF(370, 0)); // -375
    QCOMPARE(anchors()->x(), -369.0);
    hand->release();
}

// With one degree the anchors overlap by five pixels; the pointer holds two of them there.
void TestAnchorsDrag::laterAnchorUnderThePointerDecides()
{
    choose(0, octaves);
    const QPointF grip = gripOf(0) + QPointF(8, 0);
    hand->press(grip);
    hand->move(grip + QPointF(470, 0)); // 487 for anchor 1, 470 for the main one
    QCOMPARE(anchors()->x(), 459.0);
    QCOMPARE(sceneX(1), 476.0);
    hand->move(grip + QPointF(480, 0)); // 497 and 480: the main one lies below and is asked last
    QCOMPARE(anchors()->x(), 476.0);
    QCOMPARE(sceneX(1), 493.0);
    QCOMPARE(fault(), QString());
    hand->release();
}

void TestAnchorsDrag::pointerOffTheBarGoesOnDragging_data()
{
    QTest::addColumn<int>("y");
    for (const int y : {-1000, -50, 0, 60, 144, 185, 186, 300, 5000})
        QTest::addRow("y %d", y) << y;
}

void TestAnchorsDrag::pointerOffTheBarGoesOnDragging()
{
    QFETCH(int, y);
    const QPointF grip = gripOf(1);
    hand->press(grip);
    const auto groupAt = [&](int dx) {
        hand->move({grip.x() + dx, qreal(y)});
        return anchors()->pos();
    };
    QCOMPARE(groupAt(51), QPointF(51, 0));
    QCOMPARE(fault(), QString());
    QCOMPARE(groupAt(2000), QPointF(476 - 119, 0));
    QCOMPARE(fault(), QString());
    QCOMPARE(groupAt(-2000), QPointF(-374 - 119, 0));
    QCOMPARE(fault(), QString());
    QCOMPARE(groupAt(-17), QPointF(-17, 0));
    hand->release();
    QCOMPARE(stored().anchorPos, -17);
    QVERIFY(port->takeLists().isEmpty()); // keys that the pointer crossed are not played
}

void TestAnchorsDrag::pointerOutsideTheViewStopsAtTheEnds_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<qreal>("end");
    QTest::newRow("just left") << -30 << -374.0;
    QTest::newRow("left") << -3000 << -374.0;
    QTest::newRow("far left") << -100000000 << -374.0;
    QTest::newRow("just right") << 940 << 476.0;
    QTest::newRow("right") << 3000 << 476.0;
    QTest::newRow("far right") << 100000000 << 476.0;
}

void TestAnchorsDrag::pointerOutsideTheViewStopsAtTheEnds()
{
    QFETCH(int, x);
    QFETCH(qreal, end);
    hand->press(gripOf(0));
    hand->move({qreal(x), onBar});
    QCOMPARE(sceneX(0), end);
    QCOMPARE(fault(), QString());
    hand->release();
    QCOMPARE(stored().anchorPos, int(end));
}

QTEST_MAIN(TestAnchorsDrag)
#include "test_anchors_drag.moc"
