// The place of the power button, and what is dropped on what.

#include "HeaderFixture.h"
#include "HeaderLog.h"
#include "header_pictures.h"

#include <QtTest>

class TestPowerSwap : public HeaderFixture
{
    Q_OBJECT

private slots:
    // The power button finds its place
    void powerFindsTheHeaderBelow();
    void powerGoesBackWithoutAHeaderBelow();
    void powerNeedsAScene();

    // The power button is dropped
    void swapOfOneItemIsNone();
    void powerOnAHeaderTakesItsPlace();
    void powerOnTheActiveHeaderKeepsThePresetActive_data();
    void powerOnTheActiveHeaderKeepsThePresetActive();
    void powerOnNoHeaderIsRefused();

    // A header is dropped
    void headerOnNothingBecomesActive();
    void headerOnAHeaderSwaps();
    void headerOnAHeaderCopiesInCopyMode();
    void headerOnThePowerButtonTakesItsPlace();
    void headerOnOwnPowerButtonOrKeyIsRefused();
    void keyIsNeverDropped();
};

void TestPowerSwap::powerFindsTheHeaderBelow()
{
    window->setPower(true);
    record(51) = fullRecord();
    header_data& under = record(powerKey);
    under = {};
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^findPowerItemPosition found and swap$");
    QVERIFY(window->findPowerItemPosition(window->findInNote(51)->pos() + QPointF(-4, -18)));
    QCOMPARE(key_roles::pitch(power()), 51);
    QCOMPARE(power()->pos(), window->findInNote(51)->pos() + QPointF(-4, -18));
    QCOMPARE(under.scaleData, lydian);
    QCOMPARE(asText(record(51)), asText({}));
}

void TestPowerSwap::powerGoesBackWithoutAHeaderBelow()
{
    window->setPower(true);
    const QPointF home = power()->pos();
    const QStringList before = state();
    for (const QPointF& place : {home, QPointF(3000, 28), QPointF(400, 3000)}) {
        power()->setPos(500, 28);
        const HeaderLog log;
        expectLine("^findPowerItemPosition not found$");
        QVERIFY(!window->findPowerItemPosition(place));
        QCOMPARE(power()->pos(), home);
    }
    QCOMPARE(state(), before);
    QVERIFY(header(51)->isVisible());
}

void TestPowerSwap::powerNeedsAScene()
{
    PowerItem* item = window->powerItem;
    window->powerItem = nullptr;
    const bool withoutPower = window->findPowerItemPosition({407, 28});
    window->powerItem = item;
    DiagramScene* in = scene();
    window->ui.inKeyboardGraphicsView->setScene(nullptr);
    const bool withoutScene = window->findPowerItemPosition({407, 28});
    window->ui.inKeyboardGraphicsView->setScene(in);
    QVERIFY(!withoutPower);
    QVERIFY(!withoutScene);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestPowerSwap::swapOfOneItemIsNone()
{
    const QStringList before = state();
    const QPixmap picture = power()->pixmap();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(power(), power()));
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(header(25), header(25)));
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(nullptr, nullptr));
    QCOMPARE(state(), before);
    QCOMPARE(power()->pixmap().cacheKey(), picture.cacheKey());
}

void TestPowerSwap::powerOnAHeaderTakesItsPlace()
{
    record(25) = fullRecord();
    record(powerKey) = {};
    QVERIFY(scene()->swapHeader(header(25), power()));
    QCOMPARE(record(powerKey).scaleData, lydian);
    QCOMPARE(record(powerKey).anchorPos, 51);
    QCOMPARE(asText(record(25)), asText({}));
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(header(powerKey)->status(), header_deactive);
    QCOMPARE(active(), firstActive);
    QCOMPARE(key_roles::pitch(power()), 25);
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
    QVERIFY(!power()->isSwitchOn());
    const QPointF place = window->findInNote(25)->pos() + QPointF(-4, -18);
    QCOMPARE(power()->pos(), place);
    power()->setPos(0, 0);
    power()->restorePos();
    QCOMPARE(power()->pos(), place);
}

void TestPowerSwap::powerOnTheActiveHeaderKeepsThePresetActive_data()
{
    QTest::addColumn<int>("status");
    QTest::newRow("active") << int(header_active);
    QTest::newRow("lit as a target") << int(header_switch_active);
}

void TestPowerSwap::powerOnTheActiveHeaderKeepsThePresetActive()
{
    QFETCH(int, status);
    record(firstActive) = fullRecord();
    header(firstActive)->setStatus(static_cast<header_status>(status));
    QVERIFY(scene()->swapHeader(header(firstActive), power()));
    QCOMPARE(active(), powerKey);
    QCOMPARE(header(powerKey)->status(), header_active);
    QCOMPARE(header(firstActive)->status(), header_deactive);
    QCOMPARE(record(powerKey).scaleData, lydian);
}

void TestPowerSwap::powerOnNoHeaderIsRefused()
{
    const QStringList before = state();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header the same exception$");
    QVERIFY(!scene()->swapHeader(header(powerKey), power()));
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header exception:.*null prev");
    QVERIFY(!scene()->swapHeader(nullptr, power()));
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header exception:.*in");
    QVERIFY(!scene()->swapHeader(window->findInNote(60), power()));
    QCOMPARE(state(), before);
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
}

void TestPowerSwap::headerOnNothingBecomesActive()
{
    QVERIFY(!scene()->swapHeader(nullptr, header(25)));
    QCOMPARE(active(), 25);
    QCOMPARE(header(25)->status(), header_active);
}

void TestPowerSwap::headerOnAHeaderSwaps()
{
    record(25) = fullRecord();
    record(27) = {QString(), QString(), QString(), off, QString(), on, wholeTone};
    QVERIFY(scene()->swapHeader(header(25), header(27)));
    QCOMPARE(record(27).scaleData, lydian);
    QCOMPARE(record(27).anchorPos, 51);
    QCOMPARE(record(25).scaleData, wholeTone);
    QCOMPARE(record(25).nameScenic2, QStringLiteral("WholeT."));
    QCOMPARE(active(), 25);
    QCOMPARE(header(27)->status(), header_deactive);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestPowerSwap::headerOnAHeaderCopiesInCopyMode()
{
    scene()->headerCopyMode = true;
    record(25) = {};
    record(27) = fullRecord();
    record(27).nameScenic1 = QStringLiteral("MAJOR");
    record(27).nameScenic2 = QStringLiteral("Lydian");
    const QString source = asText(record(27));
    QVERIFY(scene()->swapHeader(header(25), header(27)));
    QCOMPARE(asText(record(25)), source);
    QCOMPARE(asText(record(27)), source);
    QCOMPARE(active(), 25);
    QCOMPARE(header(27)->status(), header_deactive);
}

void TestPowerSwap::headerOnThePowerButtonTakesItsPlace()
{
    record(25) = fullRecord();
    record(powerKey) = {};
    QVERIFY(scene()->swapHeader(power(), header(25)));
    QCOMPARE(record(powerKey).scaleData, lydian);
    QCOMPARE(asText(record(25)), asText({}));
    QCOMPARE(active(), powerKey);
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(key_roles::pitch(power()), 25);
    QVERIFY(power()->isSwitchOn());
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
    const QPointF place = window->findInNote(25)->pos() + QPointF(-4, -18);
    power()->setPos(0, 0);
    power()->restorePos();
    QCOMPARE(power()->pos(), place);
}

void TestPowerSwap::headerOnOwnPowerButtonOrKeyIsRefused()
{
    const QStringList before = state();
    QVERIFY(!scene()->swapHeader(power(), header(powerKey)));
    QVERIFY(!scene()->swapHeader(window->findInNote(61), header(25)));
    QCOMPARE(state(), before);
}

void TestPowerSwap::keyIsNeverDropped()
{
    const QStringList before = state();
    for (ResizableItem* prev : {static_cast<ResizableItem*>(header(25)), static_cast<ResizableItem*>(power()),
                                static_cast<ResizableItem*>(nullptr)})
        QVERIFY(!scene()->swapHeader(prev, window->findInNote(60)));
    QVERIFY(!scene()->swapHeader(header(25), nullptr));
    QCOMPARE(state(), before);
}

QTEST_MAIN(TestPowerSwap)
#include "test_power_swap.moc"
