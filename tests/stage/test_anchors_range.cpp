// Every anchor dragged from one end of the bar to the other and beyond, under every number of degrees.

#include "AnchorFixture.h"

class TestAnchorsRange : public AnchorFixture
{
    Q_OBJECT

private slots:
    void everyAnchorGoesFromEndToEnd_data();
    void everyAnchorGoesFromEndToEnd();
    void everyPixelSnapsToTheNearestKey();
    void everyLibraryScaleCanBeDragged();

private:
    /// Where the group must stand while the hand has moved an anchor by `dx`.
    static int groupFor(int start, int inGroup, int dx);
    void glide(int n, int to, int step);

    int start = 0; ///< of the group, when the hand closed
    qreal gripped = 0;
};

int TestAnchorsRange::groupFor(int start, int inGroup, int dx)
{
    const int held = start + dx + inGroup;
    if (held < AnchorRule::leftEnd)
        return AnchorRule::leftEnd - inGroup;
    if (held > AnchorRule::rightEnd)
        return AnchorRule::rightEnd - inGroup;
    return AnchorRule::white * qRound((start + dx) / double(AnchorRule::white));
}

/// Moves the pointer to a scene x by steps and looks at the whole stage after each.
void TestAnchorsRange::glide(int n, int to, int step)
{
    const int inGroup = qRound(anchor(n)->x());
    int x = qRound(hand->place().x());
    while (x != to && !QTest::currentTestFailed()) {
        x = to > x ? qMin(x + step, to) : qMax(x - step, to);
        hand->move({qreal(x), onBar});
        QCOMPARE(qRound(anchors()->x()), groupFor(start, inGroup, x - qRound(gripped)));
        QCOMPARE(fault(), QString());
    }
}

void TestAnchorsRange::everyAnchorGoesFromEndToEnd_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("count");
    for (int count = 1; count <= 12; ++count)
        for (int n = -4; n <= 4; ++n)
            QTest::addRow("anchor %d of %d degrees", n, count) << n << count;
}

void TestAnchorsRange::everyAnchorGoesFromEndToEnd()
{
    QFETCH(int, n);
    QFETCH(int, count);
    choose((5 * count + n + 12) % 12, wordOf(count));
    start = 51 - n * count * AnchorRule::white;
    putGroup(start);
    gripped = gripOf(n).x();
    hand->press(gripOf(n));
    QVERIFY(anchors()->isPressed);
    glide(n, 1000, 19);
    QCOMPARE(sceneX(n), 476.0);
    glide(n, -100, 23);
    QCOMPARE(sceneX(n), -374.0);
    glide(n, qRound(gripped), 29);
    QCOMPARE(qRound(anchors()->x()), start);
    hand->release();
    QCOMPARE(fault(), QString());
}

void TestAnchorsRange::everyPixelSnapsToTheNearestKey()
{
    start = 0;
    gripped = gripOf(0).x();
    hand->press(gripOf(0));
    glide(0, 900, 1);
    glide(0, 0, 1);
    hand->release();
    QCOMPARE(sceneX(0), -374.0);
}

void TestAnchorsRange::everyLibraryScaleCanBeDragged()
{
    int words = 0;
    for (const QString& category : library().categories())
        for (const QString& word : library().scalesFromCategory(category)) {
            choose(++words % 12, word);
            start = 0;
            putGroup(start);
            gripped = gripOf(0).x();
            hand->press(gripOf(0));
            glide(0, qRound(gripped) + 200, 50);
            glide(0, qRound(gripped) - 200, 50);
            hand->release();
            QCOMPARE(fault(), QString());
        }
    QCOMPARE(words, 47);
}

QTEST_MAIN(TestAnchorsRange)
#include "test_anchors_range.moc"
