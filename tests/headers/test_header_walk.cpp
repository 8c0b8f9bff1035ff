// The walk from a header to its neighbours; finding and showing headers.

#include "HeaderFixture.h"
#include "MappingRule.h"

#include <QtTest>

class TestHeaderWalk : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Neighbours
    void walkVisitsEveryBlackKeyButThePowerButtons();
    void walkEndsAtTheOutermostHeaders();
    void walkEndsBeforeAPowerButtonAtTheEnd();
    void withoutAnActiveHeaderThereIsNoNeighbour();
    void controlArrowsRecallWithThePowerOn();

    // Finding and showing
    void findHeaderByKeyAndStatus();
    void headersAreShownButUnderThePowerButton();
};

void TestHeaderWalk::walkVisitsEveryBlackKeyButThePowerButtons()
{
    QList<int> keys, visited;
    for (int key = lowest; key <= highest; ++key)
        if (!isWhite(key) && key != powerKey)
            keys << key;
    recall(lowest);
    for (int i = 0; i < keys.size(); ++i, presets().setActiveHeaderNext())
        visited << active();
    QCOMPARE(visited, keys);
    visited.clear();
    for (int i = 0; i < keys.size(); ++i, presets().setActiveHeaderPrev())
        visited.prepend(active());
    QCOMPARE(visited, keys);
}

void TestHeaderWalk::walkEndsAtTheOutermostHeaders()
{
    recall(lowest);
    const QStringList atLowest = state();
    presets().setActiveHeaderPrev();
    QCOMPARE(state(), atLowest);
    recall(highest);
    const QStringList atHighest = state();
    presets().setActiveHeaderNext();
    QCOMPARE(state(), atHighest);
}

void TestHeaderWalk::walkEndsBeforeAPowerButtonAtTheEnd()
{
    key_roles::setPitch(power(), lowest);
    recall(25);
    presets().setActiveHeaderPrev();
    QCOMPARE(active(), 25);
    key_roles::setPitch(power(), highest);
    recall(104);
    presets().setActiveHeaderNext();
    QCOMPARE(active(), 104);
}

void TestHeaderWalk::withoutAnActiveHeaderThereIsNoNeighbour()
{
    presets().activeHeader = nullptr;
    presets().setActiveHeaderPrev();
    presets().setActiveHeaderNext();
    QVERIFY(!presets().activeHeader);
}

void TestHeaderWalk::controlArrowsRecallWithThePowerOn()
{
    show();
    const auto arrow = [this](Qt::Key key) { QTest::keyClick(window.get(), key, Qt::ControlModifier); };
    arrow(Qt::Key_Left);
    QCOMPARE(active(), firstActive); // the power is off
    window->setPower(true);
    arrow(Qt::Key_Left);
    QCOMPARE(active(), 61);
    arrow(Qt::Key_Right);
    arrow(Qt::Key_Right);
    QCOMPARE(active(), 66);
    window->dialogOpen = true;
    arrow(Qt::Key_Left);
    QCOMPARE(active(), 66);
}

void TestHeaderWalk::findHeaderByKeyAndStatus()
{
    QCOMPARE(presets().findHeader(lowest), presets().headers.first());
    QCOMPARE(presets().findHeader(highest), presets().headers.last());
    for (const int none : {-1, 0, 21, 60, 108, 109})
        QVERIFY(!presets().findHeader(none));
    QCOMPARE(presets().findHeader(header_active), header(firstActive));
    QCOMPARE(presets().findHeader(header_deactive), presets().headers.first());
    QVERIFY(!presets().findHeader(header_switch));
    header(54)->setStatus(header_switch);
    header(51)->setStatus(header_switch);
    QCOMPARE(presets().findHeader(header_switch), header(51)); // the first in the list
}

void TestHeaderWalk::headersAreShownButUnderThePowerButton()
{
    for (const HeaderItem* item : qAsConst(presets().headers))
        QVERIFY(!item->isVisible()); // the power is off
    for (const int key : {powerKey, 61}) {
        key_roles::setPitch(power(), key);
        presets().setHeadersStatus(true);
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->isVisible(), item != header(key));
    }
    presets().setHeadersStatus(false);
    for (const HeaderItem* item : qAsConst(presets().headers))
        QVERIFY(!item->isVisible());
}

QTEST_MAIN(TestHeaderWalk)
#include "test_header_walk.moc"
