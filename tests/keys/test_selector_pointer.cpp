// Clicks and drags on the keys of the selectors.

#include "SelectorFixture.h"

class TestSelectorPointer : public SelectorFixture
{
    Q_OBJECT

private slots:
    void clickOnTonicKeyActivatesIt();
    void clickOnScaleKeyTogglesIt();
    void doubleClickTogglesTwice();
    void pressAloneChangesNothing();
    void dragAcrossTonicRowMovesTheTonic();
    void dragAcrossScaleRowTogglesEachEnteredKeyOnce();
    void dragWithScaleSwitchOffChangesNothing();
    void gestureStaysInItsRow();
    void clickOnTonicDegreeChangesNothing();
    void rightButtonDoesNothing();
    void selectorsSleepWithThePowerOff();
    void changeRemapsTheKeyboards();
};

void TestSelectorPointer::clickOnTonicKeyActivatesIt()
{
    for (int index = 11; index >= 0; --index) {
        click(placeOn(tonic(), index));
        QCOMPARE(tonic().tonicModifierIndex(), index);
        QVERIFY(!tonic().pressedKey);
    }
}

void TestSelectorPointer::clickOnScaleKeyTogglesIt()
{
    for (int index = 1; index < 12; ++index) {
        const bool before = scale().findKey(index)->on;
        click(placeOn(scale(), index));
        QCOMPARE(scale().findKey(index)->on, !before);
        click(placeOn(scale(), index));
        QCOMPARE(scale().findKey(index)->on, before);
    }
}

void TestSelectorPointer::doubleClickTogglesTwice()
{
    const QPoint pos = placeOn(scale(), 3);
    click(pos);
    QTest::mouseDClick(view(), Qt::LeftButton, {}, pos);
    QCOMPARE(scale().scaleModifier().at(3), QLatin1Char('x')); // three clicks in all
}

void TestSelectorPointer::pressAloneChangesNothing()
{
    press(placeOn(tonic(), 7));
    QCOMPARE(tonic().tonicModifierIndex(), 0);
    QCOMPARE(tonic().pressedKey, tonic().findKey(7));
    release(placeOn(tonic(), 7));
    press(placeOn(scale(), 7));
    QCOMPARE(scale().scaleModifier(), ionian);
    release({0, 0});
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorPointer::dragAcrossTonicRowMovesTheTonic()
{
    press(placeOn(tonic(), 2));
    for (const int index : {4, 5, 7}) {
        move(placeOn(tonic(), index));
        QCOMPARE(tonic().tonicModifierIndex(), index);
    }
    move(placeOn(tonic(), 2));
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    move(placeOn(tonic(), 9));
    release(placeOn(tonic(), 9));
    QCOMPARE(tonic().tonicModifierIndex(), 9);
}

void TestSelectorPointer::dragAcrossScaleRowTogglesEachEnteredKeyOnce()
{
    press(placeOn(scale(), 2));
    for (const int index : {4, 5, 7, 5, 4, 2, 4})
        move(placeOn(scale(), index));
    release(placeOn(scale(), 4));
    // 4, 5 and 7 went off; the pressed 2 stayed.
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoxooooooxox"));
}

void TestSelectorPointer::dragWithScaleSwitchOffChangesNothing()
{
    scale().setSwitchOff(false);
    press(placeOn(scale(), 2));
    for (const int index : {4, 5, 7})
        move(placeOn(scale(), index));
    release(placeOn(scale(), 7));
    click(placeOn(scale(), 9));
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestSelectorPointer::gestureStaysInItsRow()
{
    press(placeOn(tonic(), 2));
    move(placeOn(scale(), 3));
    move(placeOn(scale(), 4));
    release(placeOn(scale(), 4));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(tonic().tonicModifierIndex(), 0);
}

void TestSelectorPointer::clickOnTonicDegreeChangesNothing()
{
    click(placeOn(scale(), 0));
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(scale().findKey(0)->on);
}

void TestSelectorPointer::rightButtonDoesNothing()
{
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOn(tonic(), 4));
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOn(scale(), 4));
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOn(scale().switchItem));
    QCOMPARE(tonic().tonicModifierIndex(), 0);
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(scale().switchOn);
}

void TestSelectorPointer::selectorsSleepWithThePowerOff()
{
    window->setPower(false);
    QVERIFY(!tonic().findKey(0)->isVisible());
    click(placeOn(tonic(), 4));
    click(placeOn(scale(), 4));
    click(placeOn(scale().switchItem));
    QCOMPARE(tonic().tonicModifierIndex(), 0);
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(scale().switchOn);
}

void TestSelectorPointer::changeRemapsTheKeyboards()
{
    click(placeOn(tonic(), 2)); // D: middle C plays D, the next white key E
    QCOMPARE(key_roles::target(window->findInNote(60)), 62);
    QCOMPARE(key_roles::target(window->findInNote(62)), 64);
    click(placeOn(scale(), 2)); // without the second degree the next one is F sharp
    QCOMPARE(key_roles::target(window->findInNote(62)), 66);
}

QTEST_MAIN(TestSelectorPointer)
#include "test_selector_pointer.moc"
