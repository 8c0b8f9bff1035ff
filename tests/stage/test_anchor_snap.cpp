// Where the anchors may stand, as plain numbers.

#include "headers/anchor_snap.h"

#include <QtTest>

#include <cmath>

using namespace anchor_snap;

namespace {

constexpr int white = 17;
constexpr int last = 199 * white; // the outermost point of a grid

/// The sign of x chooses the grid, 0 the left one: none of its points but 0 matters then.
QList<int> gridFor(int x)
{
    return grid(x > 0 ? white : -white);
}

/// The multiple of 17 next to x. There is always one: x is whole and 17 is odd.
int roundedToKeys(int x)
{
    return white * static_cast<int>(std::lround(x / double(white)));
}

} // namespace

class TestAnchorSnap : public QObject
{
    Q_OBJECT

private slots:
    void gridsAreTwoHundredWhiteKeysLong();
    void nearestIsTheRoundedKeyOnAllOfTheGrid();
    void nearestNeedsNoMoreThanTheGridsOwnSide();
    void smallOffsetsSearchTheFirstTwoPoints();
    void halfWayCannotOccur();
    void lowerIndexWinsATie();
    void beyondTheGridIsHome();
    void farthestIntegersAreHome();
    void emptyGridIsHome();
    void anchorOnTheBarIsNotStopped();
    void anchorPastAnEndIsPutOnIt_data();
    void anchorPastAnEndIsPutOnIt();
};

void TestAnchorSnap::gridsAreTwoHundredWhiteKeysLong()
{
    const QList<int> right = grid(white), left = grid(-white);
    QCOMPARE(right.size(), 200);
    QCOMPARE(left.size(), 200);
    for (int i = 0; i < 200; ++i) {
        QCOMPARE(right[i], i * 17);
        QCOMPARE(left[i], i * -17);
    }
    QCOMPARE(right.last(), 3383);
    QCOMPARE(left.last(), -3383);
}

void TestAnchorSnap::nearestIsTheRoundedKeyOnAllOfTheGrid()
{
    for (int x = -last; x <= last; ++x)
        QCOMPARE(nearest(gridFor(x), x), roundedToKeys(x));
}

// Written from the search itself: two points below the one that x / 17 names, that one, and one above.
void TestAnchorSnap::nearestNeedsNoMoreThanTheGridsOwnSide()
{
    for (int x = -4000; x <= 4000; ++x) {
        int wanted = 0, distance = 1000;
        const int index = std::abs(x / white);
        for (int i = 0; i < 200; ++i) {
            const int point = x > 0 ? i * white : -i * white;
            if (i < index - 2 || i > index + 1 || std::abs(point - x) >= distance)
                continue;
            wanted = point;
            distance = std::abs(point - x);
        }
        QCOMPARE(nearest(gridFor(x), x), wanted);
    }
}

void TestAnchorSnap::smallOffsetsSearchTheFirstTwoPoints()
{
    for (int x = -16; x <= 16; ++x) {
        QCOMPARE(nearest(gridFor(x), x), x > 8 ? 17 : x < -8 ? -17 : 0);
        // Nothing beyond the second point is looked at, were it ever so near.
        const int point = x > 0 ? 500 : -500;
        QCOMPARE(nearest({point, point, x, x}, x), point);
    }
}

void TestAnchorSnap::halfWayCannotOccur()
{
    for (int x = -last; x <= last; ++x) {
        const int below = x - ((x % white) + white) % white;
        QVERIFY(x - below != below + white - x);
    }
}

// On a grid of even steps it could.
void TestAnchorSnap::lowerIndexWinsATie()
{
    QCOMPARE(nearest({10, 20}, 15), 10);
    QCOMPARE(nearest({20, 10}, 15), 20);
    QCOMPARE(nearest({-10, -20}, -15), -10);
    QCOMPARE(nearest({7, 7, 7}, 20), 7);
}

void TestAnchorSnap::beyondTheGridIsHome()
{
    // The last point is still reached from its own cell and from the two above it.
    QCOMPARE(nearest(grid(white), last), last);
    QCOMPARE(nearest(grid(white), last + 3 * white - 1), last);
    QCOMPARE(nearest(grid(-white), -last - 3 * white + 1), -last);
    for (int x = last + 3 * white; x <= 4000; ++x) {
        QCOMPARE(nearest(grid(white), x), 0);
        QCOMPARE(nearest(grid(-white), -x), 0);
    }
}

void TestAnchorSnap::farthestIntegersAreHome()
{
    for (const int x : {1000000, -1000000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(nearest(gridFor(x), x), 0);
}

void TestAnchorSnap::emptyGridIsHome()
{
    for (const int x : {-17, 0, 17})
        QCOMPARE(nearest({}, x), 0);
}

void TestAnchorSnap::anchorOnTheBarIsNotStopped()
{
    for (const qreal x : {-374.0, -373.9, 0.0, 17.0, 475.9, 476.0})
        QVERIFY(!stop(x, 34));
}

void TestAnchorSnap::anchorPastAnEndIsPutOnIt_data()
{
    QTest::addColumn<qreal>("sceneX");
    QTest::addColumn<qreal>("inGroup");
    QTest::addColumn<int>("group");
    QTest::newRow("main, right") << 476.5 << 0.0 << 476;
    QTest::newRow("main, far right") << 1e6 << 0.0 << 476;
    QTest::newRow("main, left") << -374.5 << 0.0 << -374;
    QTest::newRow("main, far left") << -1e6 << 0.0 << -374;
    QTest::newRow("an octave up, right") << 477.0 << 119.0 << 357;
    QTest::newRow("an octave down, right") << 477.0 << -119.0 << 595;
    QTest::newRow("an octave up, left") << -375.0 << 119.0 << -493;
    QTest::newRow("an octave down, left") << -375.0 << -119.0 << -255;
    QTest::newRow("off the grid, right") << 480.0 << 3.0 << 473;
    QTest::newRow("truncates towards 0, right") << 480.0 << 3.5 << 472;
    QTest::newRow("truncates towards 0, left") << -380.0 << 3.5 << -377;
}

void TestAnchorSnap::anchorPastAnEndIsPutOnIt()
{
    QFETCH(qreal, sceneX);
    QFETCH(qreal, inGroup);
    QFETCH(int, group);
    const std::optional<int> place = stop(sceneX, inGroup);
    QVERIFY(place);
    QCOMPARE(*place, group);
}

QTEST_GUILESS_MAIN(TestAnchorSnap)
#include "test_anchor_snap.moc"
