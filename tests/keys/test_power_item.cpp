// The power: how it starts, where its item stands, and what it shows.

#include "HeaderFixture.h"
#include "keys/pictures.h"
#include "plain_image.h"

class TestPowerItem : public HeaderFixture
{
    Q_OBJECT

private slots:
    void freshStartIsOff();
    void powerItemStartsOverItsKey();
    void powerItemReturnsToItsLastPosition();
    void setPowerSwitchesPicturesAndSelectors();
};

void TestPowerItem::freshStartIsOff()
{
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(window->backgroundOff->isVisible());
    QVERIFY(!window->backgroundOn->isVisible());
    window->setPower(true);
    window = nullptr;
    window = std::make_unique<MainWnd>();
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestPowerItem::powerItemStartsOverItsKey()
{
    QCOMPARE(window->powerItem->pos(), QPointF(288, 28));
    QCOMPARE(window->findInNote(49)->pos() + QPointF(-4, -18), QPointF(288, 28));
    QCOMPARE(key_roles::side(window->powerItem), QStringLiteral("power"));
    QCOMPARE(key_roles::pitch(window->powerItem), 49);
    QCOMPARE(key_roles::name(window->powerItem), QStringLiteral("power"));
    QVERIFY(window->powerItem->acceptHoverEvents());
}

void TestPowerItem::powerItemReturnsToItsLastPosition()
{
    window->powerItem->setPos(500, 40);
    window->powerItem->restorePos();
    QCOMPARE(window->powerItem->pos(), QPointF(288, 28));
    window->powerItem->setLastPos({101, 28});
    window->powerItem->setPos(0, 0);
    window->powerItem->restorePos();
    QCOMPARE(window->powerItem->pos(), QPointF(101, 28));
}

void TestPowerItem::setPowerSwitchesPicturesAndSelectors()
{
    const auto shown = [this] { return imageOf(window->powerItem->pixmap()); };
    window->setPower(true);
    QVERIFY(window->backgroundOn->isVisible());
    QVERIFY(!window->backgroundOff->isVisible());
    QCOMPARE(shown(), imageOf(pictures::load(QStringLiteral(":/Resources/Power/POWERBUTTONOn.png"))));
    window->switchPower();
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(window->backgroundOff->isVisible());
    QCOMPARE(shown(), imageOf(pictures::load(QStringLiteral(":/Resources/Power/POWERBUTTONOff.png"))));
}

QTEST_MAIN(TestPowerItem)
#include "test_power_item.moc"
