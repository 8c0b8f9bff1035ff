// The switches of the two selectors: by their controllers, by the power, and by the pointer.

#include "SelectorFixture.h"
#include "logging/categories.h"

class TestSelectorSwitches : public SelectorFixture
{
    Q_OBJECT

private slots:
    void switchFlipsOnlyOffAndOn();
    void switchThatIsUnsetSaysSo();
    void switchesAreNeutralWithThePowerOff();
    void controllerAndSwitchFollowEachOther();
    void switchStaysNeutralWhileItsControllerChangesInTheDark();
    void clickOnSwitchFlipsIt();
    void releaseOutsideTheSwitchKeepsIt();
};

void TestSelectorSwitches::switchFlipsOnlyOffAndOn()
{
    SwitchItem* item = scale().switchItem;
    QCOMPARE(item->status(), SwitchItem::status_on);
    QVERIFY(item->switchStatus(true));
    QVERIFY(!scale().switchOn);
    QCOMPARE(item->status(), SwitchItem::status_off);
    QVERIFY(item->switchStatus(true));
    QVERIFY(scale().switchOn);
    item->setStatus(SwitchItem::status_neutral, false);
    QVERIFY(!item->switchStatus(true));
    QVERIFY(scale().switchOn);
}

void TestSelectorSwitches::switchThatIsUnsetSaysSo()
{
    TonicKeyController controller;
    SwitchItem item(0, &controller);
    QCOMPARE(controller.switchItem, &item);
    auto& category = const_cast<QLoggingCategory&>(lcKeys());
    category.setEnabled(QtDebugMsg, true);
    QTest::ignoreMessage(QtDebugMsg, "SwitchItem status must be initialized before use");
    const bool flipped = item.switchStatus(false);
    category.setEnabled(QtDebugMsg, false);
    QVERIFY(!flipped);
}

void TestSelectorSwitches::switchesAreNeutralWithThePowerOff()
{
    tonic().setSwitchOff(false);
    window->setPower(false);
    QCOMPARE(tonic().switchItem->status(), SwitchItem::status_neutral);
    QCOMPARE(scale().switchItem->status(), SwitchItem::status_neutral);
    QVERIFY(!tonic().switchOn);
    QVERIFY(scale().switchOn);
    window->setPower(true);
    QCOMPARE(tonic().switchItem->status(), SwitchItem::status_off);
    QCOMPARE(scale().switchItem->status(), SwitchItem::status_on);
}

void TestSelectorSwitches::controllerAndSwitchFollowEachOther()
{
    scale().setSwitchOff(true);
    QCOMPARE(scale().switchItem->status(), SwitchItem::status_off);
    scale().switchItem->setStatus(SwitchItem::status_on, true);
    QVERIFY(scale().switchOn);
}

void TestSelectorSwitches::switchStaysNeutralWhileItsControllerChangesInTheDark()
{
    window->setPower(false);
    scale().setSwitchOff(false);
    tonic().setSwitchOn(false);
    QCOMPARE(scale().switchItem->status(), SwitchItem::status_neutral);
    QCOMPARE(tonic().switchItem->status(), SwitchItem::status_neutral);
    window->setPower(true);
    QCOMPARE(scale().switchItem->status(), SwitchItem::status_off);
    QCOMPARE(tonic().switchItem->status(), SwitchItem::status_on);
}

void TestSelectorSwitches::clickOnSwitchFlipsIt()
{
    click(placeOn(tonic().switchItem));
    QVERIFY(!tonic().switchOn);
    click(placeOn(tonic().switchItem));
    QVERIFY(tonic().switchOn);
    click(placeOn(scale().switchItem));
    QVERIFY(!scale().switchOn);
}

void TestSelectorSwitches::releaseOutsideTheSwitchKeepsIt()
{
    press(placeOn(tonic().switchItem));
    release({0, 0});
    QVERIFY(tonic().switchOn);
}

QTEST_MAIN(TestSelectorSwitches)
#include "test_selector_switches.moc"
