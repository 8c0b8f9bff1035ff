// What each in key drives, and which pitches are of the scale, as the roles of the keys hold it.

#include "KeyFixture.h"

class TestKeyMap : public KeyFixture
{
    Q_OBJECT

private slots:
    void powerOffEveryKeyDrivesItself();
    void powerOffIgnoresTonicAndScaleInTheMap();
    void membershipFollowsTonicAndScale();
    void clearedKeysHoldTheNumberMinusOne();
    void slidKeysHoldTextAndTheirTailNumbersOrText();
    void silentTailHoldsTheTextMinusOne();
    void blackKeysStaySilentUnderASlide();
    void keyOfAForeignIndexIsSkipped();
    void tonicModifierIsZeroWithoutKeyOrPower();
    void remapForgetsTheMapBefore();
};

void TestKeyMap::powerOffEveryKeyDrivesItself()
{
    window->setPower(false);
    for (int note = 21; note <= 108; ++note) {
        QCOMPARE(key_roles::target(in(note)), note);
        QVERIFY(key_roles::isInScale(in(note)));
        QVERIFY(key_roles::isColoured(out(note)));
    }
}

void TestKeyMap::powerOffIgnoresTonicAndScaleInTheMap()
{
    slideBy(3);
    setTonic("F");
    setScale("xooxooxooxoo");
    window->setPower(false);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
    for (int note = 21; note <= 108; ++note)
        QCOMPARE(key_roles::target(in(note)), note);
}

void TestKeyMap::membershipFollowsTonicAndScale()
{
    const char* names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    for (const QByteArray word : {"xoxoxxoxoxox", "xooooooooooo", "xxoxxoxxoxxo"}) {
        setScale(word.constData());
        for (int key = 0; key < 12; ++key) {
            setTonic(names[key]);
            for (int note = 21; note <= 108; ++note) {
                const bool member = word.at((note + 12 - key) % 12) == 'x';
                QCOMPARE(key_roles::isInScale(in(note)), member);
                QCOMPARE(key_roles::isColoured(out(note)), member);
            }
        }
    }
}

void TestKeyMap::clearedKeysHoldTheNumberMinusOne()
{
    setScale("xoxoxooxoxoo");
    QCOMPARE(in(108)->data(99).type(), QVariant::Int);
    QCOMPARE(key_roles::targetText(in(108)), QStringLiteral("-1"));
    QCOMPARE(key_roles::target(in(108)), -1);
}

void TestKeyMap::slidKeysHoldTextAndTheirTailNumbersOrText()
{
    slideBy(-2); // 108 plays 105; below, the tail has nothing left
    QCOMPARE(key_roles::target(in(108)), 105);
    QCOMPARE(in(108)->data(99).type(), QVariant::String);
    QCOMPARE(in(21)->data(99), QVariant(QStringLiteral("-1")));
    setTonic("D"); // 21 played 23 before the slide: the tail finds 21, the fifth, below it
    QCOMPARE(in(24)->data(99), QVariant(QStringLiteral("23")));
    QCOMPARE(in(23)->data(99), QVariant(21));
    QCOMPARE(in(21)->data(99), QVariant(QStringLiteral("-1")));
}

void TestKeyMap::silentTailHoldsTheTextMinusOne()
{
    slideBy(2);
    for (const int note : {107, 108}) {
        QCOMPARE(in(note)->data(99), QVariant(QStringLiteral("-1")));
        QCOMPARE(key_roles::target(in(note)), -1);
    }
}

void TestKeyMap::blackKeysStaySilentUnderASlide()
{
    for (const int shift : {-5, 5, 60, -60}) {
        slideBy(shift);
        for (const int note : {22, 58, 61, 106})
            QCOMPARE(key_roles::target(in(note)), -1);
    }
}

void TestKeyMap::keyOfAForeignIndexIsSkipped()
{
    auto* foreign = new TonicKeyItem(tonic_key_scale, window->scaleController, 12);
    foreign->setParent(window->scaleController);
    foreign->setOn();
    window->scaleController->addKey(foreign);
    window->powerItem->changeScaleByTonic();
    QCOMPARE(key_roles::target(in(62)), 62);
}

void TestKeyMap::tonicModifierIsZeroWithoutKeyOrPower()
{
    setTonic("G");
    QCOMPARE(window->powerItem->getCurTonicModifier(), 7);
    window->powerItem->setSwithOn(false);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
    window->powerItem->setSwithOn(true);
    tonic().setActiveKey(nullptr);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
}

void TestKeyMap::remapForgetsTheMapBefore()
{
    QList<int> before;
    for (int note = 21; note <= 108; ++note)
        before.append(key_roles::target(in(note)));
    setTonic("A");
    setScale("xooxoxxxooxo");
    slideBy(4);
    slideBy(0);
    setTonic("C");
    setScale("xoxoxxoxoxox");
    for (int note = 21; note <= 108; ++note)
        QCOMPARE(key_roles::target(in(note)), before.at(note - 21));
}

QTEST_MAIN(TestKeyMap)
#include "test_key_map.moc"
