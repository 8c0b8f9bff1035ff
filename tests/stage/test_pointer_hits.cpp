// Which pixel belongs to what: every one of the keys to the key that is seen there, those of the square to
// the light under the pointer.

#include "StageFixture.h"
#include "key_places.h"

#include <QtTest>

class TestPointerHits : public StageFixture
{
    Q_OBJECT

private slots:
    // Hover
    void hoverLightsTheSquareOnly_data();
    void hoverLightsTheSquareOnly();
    void hoverLeavesNoLightBehind_data();
    void hoverLeavesNoLightBehind();
    void hoverLightsAgainAfterASwitch();

    // Hits
    void everyPixelHitsTheKeyThatIsSeenThere_data();
    void everyPixelHitsTheKeyThatIsSeenThere();
    void everyPixelBelongsToOneKeyOnly();
    void pressBesideTheKeysIsSilent();

private:
    /// The button's picture of a state, with or without the light of the pointer.
    bool showsPower(bool switchedOn, bool lit) const;
};

bool TestPointerHits::showsPower(bool switchedOn, bool lit) const
{
    const char* state = switchedOn ? "On" : "Off";
    return lit ? powerShows({state, "Hover"}) : powerShows({state});
}

void TestPointerHits::hoverLightsTheSquareOnly_data()
{
    addPowers();
}

void TestPointerHits::hoverLightsTheSquareOnly()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QPointF corner = power()->pos();
    const QRect square(3, 3, 13, 25);
    QVERIFY(showsPower(switchedOn, false));
    for (int x = 0; x < 19; ++x)
        for (int y = 0; y < 34; ++y) {
            hand->move(corner + QPointF(x, y));
            const bool lit = QRectF(square).contains(QPointF(x, y));
            QCOMPARE(power()->powerGrabbed, lit);
            if (x % 3 == 1 || y % 9 == 1)
                QVERIFY(showsPower(switchedOn, lit));
        }
    QCOMPARE(power()->isSwitchOn(), switchedOn);
}

void TestPointerHits::hoverLeavesNoLightBehind_data()
{
    addPowers();
}

void TestPointerHits::hoverLeavesNoLightBehind()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    for (const QPointF& away : {powerSleeve(), QPointF(288 - 40, 30), onKey(in(60)), QPointF(297, -3)}) {
        hand->move(powerSquare());
        QVERIFY(showsPower(switchedOn, true));
        hand->move(away);
        QVERIFY(showsPower(switchedOn, false));
    }
}

void TestPointerHits::hoverLightsAgainAfterASwitch()
{
    for (const bool switchedOn : {true, false}) {
        hand->move(powerSquare());
        window->switchPower();
        hand->move(powerSquare() + QPointF(1, 0));
        QVERIFY(showsPower(switchedOn, true));
    }
}

void TestPointerHits::everyPixelHitsTheKeyThatIsSeenThere_data()
{
    QTest::addColumn<bool>("input");
    QTest::addColumn<int>("y");
    for (const bool input : {true, false})
        for (const int y : {0, 30, 63, 64, 98})
            QTest::addRow("%s, row %d", input ? "in" : "out", y) << input << y;
}

void TestPointerHits::everyPixelHitsTheKeyThatIsSeenThere()
{
    QFETCH(bool, input);
    QFETCH(int, y);
    Hand& onSide = input ? *hand : *outHand;
    const QPointF corner = (input ? in(21) : out(21))->pos();
    for (int x = 0; x < keysWidth; ++x) {
        const QPointF place = corner + QPointF(x, y);
        if (input && power()->sceneBoundingRect().contains(place))
            continue;
        const int note = keySeenAt(x, y);
        onSide.click(place);
        const Messages wanted{noteOn(note), noteOff(note)};
        const Messages got = sent();
        QVERIFY2(got == wanted, qPrintable(QStringLiteral("x %1: key %2").arg(x).arg(note)));
    }
}

// A sweep asks the keys themselves, whichever lies on top.
void TestPointerHits::everyPixelBelongsToOneKeyOnly()
{
    for (const int y : {0, 63, 64, 98})
        for (int x = 0; x < keysWidth; ++x) {
            const QPointF place = in(21)->pos() + QPointF(x, y);
            QSet<int> owners;
            for (int note = 21; note <= 108; ++note)
                if (in(note)->contains(in(note)->mapFromScene(place)))
                    owners.insert(note);
            QCOMPARE(owners, QSet<int>{keySeenAt(x, y)});
        }
}

void TestPointerHits::pressBesideTheKeysIsSilent()
{
    for (const QPointF& place : {QPointF(7, 100), QPointF(892, 100), QPointF(60, 45), QPointF(-14, 100)}) {
        hand->drag(place, onKey(in(60))); // nothing was pressed: nothing is swept
        hand->release();
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(sent(), Messages());
}

QTEST_MAIN(TestPointerHits)
#include "test_pointer_hits.moc"
