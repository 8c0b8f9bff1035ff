// How a drag of the anchors ends: by a release, by another button, by the loss of the pointer; what it
// stores.

#include "AnchorFixture.h"

class TestAnchorsRelease : public AnchorFixture
{
    Q_OBJECT

private slots:
    // Release
    void releaseStoresThePlaceInTheActiveHeader();
    void releaseLeavesThePositionsValidity_data();
    void releaseLeavesThePositionsValidity();
    void releaseStoresWholePixels_data();
    void releaseStoresWholePixels();
    void releaseWithoutAnActiveHeaderStoresNowhere();
    void releaseOutsideTheViewStoresToo();
    void secondDragGoesOnFromTheFirst();

    // Interrupted
    void interruptedDragIsStored();
    void interruptedPressStoresNothing();
    void hiddenGroupLetsGo();
    void dragAfterALostReleaseDoesNotJump_data();
    void dragAfterALostReleaseDoesNotJump();
    void dragAfterARecallMovedTheGroupDoesNotJump();

    // Other buttons
    void otherButtonsDoNotDrag_data();
    void otherButtonsDoNotDrag();
    void otherButtonsDuringADragChangeNothing();
    void leftButtonEndsTheDragThatAnotherOutlives();
    void leftButtonAgainWhileAnotherIsHeldDoesNotJump();
};

void TestAnchorsRelease::releaseStoresThePlaceInTheActiveHeader()
{
    recall(25);
    const QStringList others = asText(record(27)).split(QLatin1Char(' '));
    dragBy(0, -51);
    QVERIFY(record(25).anchorPos != -51 && record(25).anchorPos != int(anchors()->x()));
    const int x = int(anchors()->x());
    hand->release();
    QCOMPARE(record(25).anchorPos, x);
    QCOMPARE(asText(record(27)).split(QLatin1Char(' ')), others);
}

void TestAnchorsRelease::releaseLeavesThePositionsValidity_data()
{
    QTest::addColumn<bool>("valid");
    QTest::newRow("valid") << true;
    QTest::newRow("not valid") << false;
}

void TestAnchorsRelease::releaseLeavesThePositionsValidity()
{
    QFETCH(bool, valid);
    stored().anchorValid = valid;
    header_data wanted = stored();
    wanted.anchorPos = 85;
    dragBy(0, 85);
    hand->release();
    QCOMPARE(asText(stored()), asText(wanted));
}

void TestAnchorsRelease::releaseStoresWholePixels_data()
{
    QTest::addColumn<qreal>("x");
    QTest::addColumn<int>("kept");
    QTest::newRow("34.9") << 34.9 << 34;
    QTest::newRow("-34.9") << -34.9 << -34;
    QTest::newRow("0.5") << 0.5 << 0;
}

void TestAnchorsRelease::releaseStoresWholePixels()
{
    QFETCH(qreal, x);
    QFETCH(int, kept);
    putGroup(x);
    hand->click(gripOf(0));
    QCOMPARE(anchors()->x(), x);
    QCOMPARE(stored().anchorPos, kept);
}

void TestAnchorsRelease::releaseWithoutAnActiveHeaderStoresNowhere()
{
    presets().activeHeader = nullptr;
    QStringList before;
    for (const HeaderItem* item : qAsConst(presets().headers))
        before << asText(item->record);
    dragBy(0, 34);
    hand->release();
    QStringList after;
    for (const HeaderItem* item : qAsConst(presets().headers))
        after << asText(item->record);
    QCOMPARE(after, before);
    QCOMPARE(anchors()->x(), 34.0);
}

void TestAnchorsRelease::releaseOutsideTheViewStoresToo()
{
    hand->press(gripOf(0));
    hand->move({-500, -500});
    hand->release();
    QVERIFY(!anchors()->isPressed);
    QCOMPARE(stored().anchorPos, -374);
}

void TestAnchorsRelease::secondDragGoesOnFromTheFirst()
{
    for (int i = 1; i <= 5; ++i) {
        dragBy(0, 25); // to the nearer key each time
        QCOMPARE(anchors()->x(), 17.0 * i);
        hand->release();
    }
}

void TestAnchorsRelease::interruptedDragIsStored()
{
    dragBy(0, 68);
    window->endGestures();
    QCOMPARE(stored().anchorPos, 68);
    QCOMPARE(anchors()->x(), 68.0);
    QVERIFY(!anchors()->isPressed);
    QVERIFY(!scene()->anchorDrag);
    QVERIFY(!scene()->mouseGrabberItem());
    QCOMPARE(fault(), QString());
    hand->move(gripOf(0) + QPointF(200, 0)); // the button is still down
    QCOMPARE(anchors()->x(), 68.0);
    hand->release();
    QCOMPARE(stored().anchorPos, 68);
}

void TestAnchorsRelease::interruptedPressStoresNothing()
{
    putGroup(34);
    stored().anchorPos = 5;
    hand->press(gripOf(0));
    window->endGestures();
    QVERIFY(!anchors()->isPressed);
    QCOMPARE(stored().anchorPos, 5);
    hand->move(gripOf(0) + QPointF(200, 0));
    QCOMPARE(anchors()->x(), 34.0);
}

void TestAnchorsRelease::hiddenGroupLetsGo()
{
    dragBy(0, 34);
    anchors()->hide();
    QVERIFY(!anchors()->isPressed);
    QVERIFY(!scene()->anchorDrag);
    QCOMPARE(stored().anchorPos, 34);
}

void TestAnchorsRelease::dragAfterALostReleaseDoesNotJump_data()
{
    QTest::addColumn<int>("loss");
    QTest::newRow("the gesture is ended") << 0;
    QTest::newRow("the window loses the focus") << 1;
    QTest::newRow("the group is hidden") << 2;
    QTest::newRow("a press without a release") << 3;
}

void TestAnchorsRelease::dragAfterALostReleaseDoesNotJump()
{
    QFETCH(int, loss);
    dragBy(0, 170);
    QCOMPARE(anchors()->x(), 170.0);
    if (loss == 0)
        window->endGestures();
    if (loss == 1) {
        QEvent lost(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(scene(), &lost);
    }
    if (loss == 2) {
        anchors()->hide();
        anchors()->show();
    }
    QCOMPARE(anchors()->x(), 170.0);
    const QPointF grip = gripOf(0);
    hand->press(grip);
    QCOMPARE(anchors()->x(), 170.0);
    hand->move(grip + QPointF(17, 0));
    QCOMPARE(anchors()->x(), 187.0);
    QCOMPARE(fault(), QString());
    hand->release();
    QCOMPARE(stored().anchorPos, 187);
}

// A black key on the player's keyboard may recall another preset between two drags.
void TestAnchorsRelease::dragAfterARecallMovedTheGroupDoesNotJump()
{
    dragBy(0, 34);
    hand->release();
    putGroup(-170);
    dragBy(0, -17);
    QCOMPARE(anchors()->x(), -187.0);
    hand->release();
}

void TestAnchorsRelease::otherButtonsDoNotDrag_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestAnchorsRelease::otherButtonsDoNotDrag()
{
    const auto button = Qt::MouseButton(*static_cast<int*>(QTest::qData("button", QMetaType::Int)));
    stored().anchorPos = 5;
    const QPointF grip = gripOf(0);
    hand->press(grip, button);
    hand->move(grip + QPointF(51, 0));
    QCOMPARE(anchors()->x(), 0.0);
    QVERIFY(!scene()->anchorDrag);
    hand->release(button);
    QCOMPARE(stored().anchorPos, 5);
    QVERIFY(port->takeLists().isEmpty());
    hand->press(grip, button);
    QVERIFY(!anchors()->isPressed);
    hand->release(button);
}

void TestAnchorsRelease::otherButtonsDuringADragChangeNothing()
{
    const QPointF grip = gripOf(0);
    stored().anchorPos = 5;
    hand->press(grip);
    hand->move(grip + QPointF(34, 0));
    hand->press(grip + QPointF(34, 0), Qt::RightButton);
    hand->move(grip + QPointF(51, 0));
    QCOMPARE(anchors()->x(), 51.0);
    hand->release(Qt::RightButton);
    QVERIFY(anchors()->isPressed);
    QCOMPARE(stored().anchorPos, 5);
    hand->move(grip + QPointF(85, 0));
    QCOMPARE(anchors()->x(), 85.0);
    QCOMPARE(fault(), QString());
    hand->release();
    QCOMPARE(stored().anchorPos, 85);
}

void TestAnchorsRelease::leftButtonEndsTheDragThatAnotherOutlives()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    hand->press(grip, Qt::RightButton);
    hand->move(grip + QPointF(34, 0));
    hand->release(Qt::LeftButton);
    QVERIFY(!anchors()->isPressed);
    QCOMPARE(stored().anchorPos, 34);
    hand->move(grip + QPointF(102, 0));
    QCOMPARE(anchors()->x(), 34.0);
    hand->release(Qt::RightButton);
    QCOMPARE(anchors()->x(), 34.0);
    dragBy(0, 17);
    QCOMPARE(anchors()->x(), 51.0);
    hand->release();
}

void TestAnchorsRelease::leftButtonAgainWhileAnotherIsHeldDoesNotJump()
{
    const QPointF grip = gripOf(0);
    hand->press(grip);
    hand->press(grip, Qt::RightButton);
    hand->move(grip + QPointF(34, 0));
    hand->release(Qt::LeftButton);
    hand->press(grip + QPointF(34, 0));
    QCOMPARE(anchors()->x(), 34.0);
    hand->move(grip + QPointF(51, 0));
    QCOMPARE(anchors()->x(), 51.0);
    hand->release(Qt::LeftButton);
    hand->release(Qt::RightButton);
    QCOMPARE(anchors()->x(), 51.0);
    QCOMPARE(stored().anchorPos, 51);
}

QTEST_MAIN(TestAnchorsRelease)
#include "test_anchors_release.moc"
