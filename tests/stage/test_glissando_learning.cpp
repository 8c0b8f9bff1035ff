// A hand that sweeps over the keys in the learn modes: what the scale and the tonic take from it, and that
// nothing sounds, switches or moves by it.

#include "StageFixture.h"

#include <QtTest>

class TestGlissandoLearning : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    void scaleLearnsEachSweptKeyOnce();
    void scaleLearnsBlackKeysAtAnyPower_data();
    void scaleLearnsBlackKeysAtAnyPower();
    void tonicLearnsTheLastSweptKey();
    void learnedPowerKeyDoesNotSwitch();
    void headerInLearnModeIsAKey();
    void releaseInLearnModeEndsTheGesture();
};

// Recalls must not change the map under a sweep.
void TestGlissandoLearning::init()
{
    openStage();
    emptyHeaders();
}

void TestGlissandoLearning::scaleLearnsEachSweptKeyOnce()
{
    chooseMap(true, ionian);
    window->learnScale = true;
    window->learnPending = true;
    hand->press(low(62));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    QVERIFY(!window->learnPending);
    for (int x = 0; x < 4; ++x)
        hand->move(low(62) + QPointF(x, 0));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    hand->move(low(64));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xooooxoxoxox"));
    hand->move(low(62)); // back again
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoxooxoxoxox"));
    hand->release();
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoxooxoxoxox"));
    window->learnScale = false;
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoLearning::scaleLearnsBlackKeysAtAnyPower_data()
{
    addPowers();
}

void TestGlissandoLearning::scaleLearnsBlackKeysAtAnyPower()
{
    QFETCH(bool, switchedOn);
    chooseMap(switchedOn, ionian);
    window->learnScale = true;
    hand->press(low(60)); // the tonic stays
    hand->move(high(61));
    hand->move(low(62));
    hand->move(high(63));
    hand->release();
    window->learnScale = false;
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxoxxxoxoxox"));
    QCOMPARE(active(), firstActive);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoLearning::tonicLearnsTheLastSweptKey()
{
    chooseMap(true, ionian);
    window->learnTonic = true;
    hand->press(low(64));
    QCOMPARE(tonic().tonicModifierIndex(), 4);
    hand->move(low(65));
    QCOMPARE(tonic().tonicModifierIndex(), 5);
    hand->move(high(66));
    QCOMPARE(tonic().tonicModifierIndex(), 6);
    hand->release();
    window->learnTonic = false;
    QCOMPARE(tonic().tonicModifierIndex(), 6);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoLearning::learnedPowerKeyDoesNotSwitch()
{
    window->learnTonic = true;
    hand->press(low(48));
    hand->move(high(powerKey));
    QCOMPARE(tonic().tonicModifierIndex(), 1);
    hand->release();
    window->learnTonic = false;
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoLearning::headerInLearnModeIsAKey()
{
    window->setPower(true);
    const QStringList before = state();
    window->learnTonic = true;
    hand->press(boxOf(25));
    QVERIFY(header(25)->isPushed);
    hand->glideTo(stemOf(32));
    QCOMPARE(header(25)->pos(), header(25)->homePos);
    hand->release();
    window->learnTonic = false;
    QCOMPARE(state(), before);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoLearning::releaseInLearnModeEndsTheGesture()
{
    hand->press(low(60));
    hand->move(low(62));
    window->learnScale = true;
    hand->release();
    QCOMPARE(unrest(), QString());
    window->learnScale = false;
    // Kept: what a learn mode catches while it sounds goes on sounding, since no message leaves in it.
    QCOMPARE(sounding(), QSet<int>{62});
}

QTEST_MAIN(TestGlissandoLearning)
#include "test_glissando_learning.moc"
