// Everything that a hand may hold on the stage.

#include "GestureFixture.h"

std::vector<GestureFixture::Gesture> GestureFixture::gestures() const
{
    return {
        {"key held", [this] { hand->press(onKey(in(60))); }},
        {"key held and moved on", [this] { hand->drag(onKey(in(60)), onKey(in(60)) + QPointF(2, 0)); }},
        {"sweep", [this] { hand->drag(onKey(in(60)), onKey(in(67))); }},
        {"preset key held", [this] { hand->press(onKey(in(61))); }},
        {"out key held", [this] { outHand->press(onKey(out(60))); }},
        {"power pressed", [this] { hand->press(powerSquare()); }},
        {"sleeve held", [this] { hand->press(powerSleeve()); }},
        {"power over a header", [this] { hand->drag(powerSleeve(), stemOf(32)); }},
        {"power over the active header", [this] { hand->drag(powerSleeve(), stemOf(firstActive)); }},
        {"power over nothing", [this] { hand->drag(powerSleeve(), nowhere()); }},
        {"header held", [this] { hand->press(boxOf(25)); }},
        {"header over a header", [this] { hand->drag(boxOf(25), stemOf(32)); }},
        {"header over the power", [this] { hand->drag(boxOf(25), powerTarget()); }},
        {"header over nothing", [this] { hand->drag(boxOf(25), nowhere()); }},
        {"press beside everything", [this] { hand->press(QPointF(4, 130)); }},
        {"anchors", [this] { hand->drag(anchorGrip(), anchorGrip() + QPointF(40, 0)); }},
    };
}

void GestureFixture::addGestures() const
{
    QTest::addColumn<QString>("gesture");
    for (const Gesture& gesture : gestures())
        QTest::newRow(gesture.name) << gesture.name;
}

void GestureFixture::begin(const QString& name) const
{
    for (const Gesture& gesture : gestures())
        if (name == QLatin1String(gesture.name))
            gesture.begin();
    QVERIFY(hand->held() || outHand->held());
}

void GestureFixture::activate() const
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void GestureFixture::expectTheNextGesturesToWork()
{
    sent();
    const int shift = int(anchors()->x()) / 17; // by as much do the white keys play lower
    static const int below[] = {60, 59, 57};
    QVERIFY(shift >= 0 && shift <= 2);
    hand->click(onKey(in(60)));
    QCOMPARE(sent(), (Messages{noteOn(below[shift]), noteOff(below[shift])}));
    hand->drag(onKey(in(60)), onKey(in(62)));
    hand->release();
    QCOMPARE(sent().size(), 5);
    outHand->click(onKey(out(60)));
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
    hand->drag(boxOf(27), stemOf(34));
    hand->release();
    QCOMPARE(active(), 34);
    hand->drag(powerSleeve(), stemOf(27));
    hand->release();
    QCOMPARE(key_roles::pitch(power()), 27);
    hand->click(powerSquare());
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}
