// The two keyboards as the window lays them out: keys, names, places, pairs.

#include "HeaderFixture.h"
#include "MappingRule.h"

namespace {

QString whiteName(int note)
{
    static const char letters[] = "C.D.EF.G.A.B";
    return QString(QLatin1Char(letters[note % 12])) + QString::number(note / 12 - 1);
}

} // namespace

class TestKeyboards : public HeaderFixture
{
    Q_OBJECT

private slots:
    void bothScenesHoldTheSameKeysInTheSameOrder();
    void everyKeyHasItsNameAndPlace();
    void lowestAndHighestBlackKeyStandAtTheirPlaces();
    void outKeysAreMovedAfterThePairing();
    void pairedOutKeyIsTheSamePitch();
    void listsAreSharedByTheKeys();
    void sceneRectanglesPutTheKeyboardsOnTheStage();
    void dataOfANullItemIsLost();
};

void TestKeyboards::bothScenesHoldTheSameKeysInTheSameOrder()
{
    QCOMPARE(window->listItemsIN.size(), 88);
    QCOMPARE(window->listItemsOUT.size(), 88);
    for (int i = 0; i < 88; ++i) {
        QCOMPARE(key_roles::pitch(window->listItemsIN[i]), key_roles::pitch(window->listItemsOUT[i]));
        QVERIFY(key_roles::isIn(window->listItemsIN[i]));
        QVERIFY(key_roles::isOut(window->listItemsOUT[i]));
    }
    QCOMPARE(key_roles::pitch(window->listItemsIN.first()), 106); // created last
    QCOMPARE(key_roles::name(window->listItemsIN.last()), QStringLiteral("A0"));
}

void TestKeyboards::everyKeyHasItsNameAndPlace()
{
    int whites = 0;
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* key = window->findInNote(note);
        QVERIFY(key);
        QCOMPARE(key->y(), 46.0);
        if (isWhite(note)) {
            QCOMPARE(key_roles::name(key), whiteName(note));
            QCOMPARE(key->x(), 8.0 + 17 * whites++);
        } else {
            QCOMPARE(key_roles::name(key), QStringLiteral("#"));
            QCOMPARE(key->x(), window->findInNote(note + 1)->x() - 5);
        }
    }
    QCOMPARE(whites, 52);
    QVERIFY(!window->findInNote(20));
    QVERIFY(!window->findInNote(109));
}

void TestKeyboards::lowestAndHighestBlackKeyStandAtTheirPlaces()
{
    QCOMPARE(window->findInNote(22)->x(), 20.0);
    QCOMPARE(window->findInNote(106)->x(), 853.0);
    QList<int> blacks;
    for (int note = 22; note <= 37; ++note)
        if (!isWhite(note))
            blacks.append(static_cast<int>(window->findInNote(note)->x()));
    QCOMPARE(blacks, (QList<int>{20, 54, 71, 105, 122, 139, 173}));
}

void TestKeyboards::outKeysAreMovedAfterThePairing()
{
    for (int i = 0; i < 88; ++i)
        QCOMPARE(window->listItemsOUT[i]->pos(), window->listItemsIN[i]->pos() + QPointF(15, -20));
}

void TestKeyboards::pairedOutKeyIsTheSamePitch()
{
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* key = window->findInNote(note);
        QVERIFY(key_roles::isOut(key->pairedOutKey));
        QCOMPARE(key_roles::pitch(key->pairedOutKey), note);
    }
}

void TestKeyboards::listsAreSharedByTheKeys()
{
    const ResizableItem* in = window->findInNote(60);
    const auto* out = static_cast<const ResizableItem*>(in->pairedOutKey);
    QCOMPARE(in->listItemsIN, window->listItemsIN);
    QCOMPARE(in->listItemsOUT, window->listItemsOUT);
    QCOMPARE(in->listItemsTonic, window->listItemsTonic);
    QCOMPARE(out->listItemsTonic, window->listItemsTonic);
    QVERIFY(out->listItemsIN.isEmpty());
    QVERIFY(out->listItemsOUT.isEmpty());
    QVERIFY(window->powerItem->anchorBarIn);
    QVERIFY(window->powerItem->anchorBarOut);
    QCOMPARE(in->acceptedMouseButtons(), Qt::LeftButton);
    QCOMPARE(in->cacheMode(), QGraphicsItem::NoCache);
}

void TestKeyboards::sceneRectanglesPutTheKeyboardsOnTheStage()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const auto stagePlace = [this](QGraphicsView* view, QPointF scenePos) {
        return view->viewport()->mapTo(window.get(), view->mapFromScene(scenePos));
    };
    const ResizableItem* middleC = window->findInNote(60);
    QCOMPARE(stagePlace(window->ui.inKeyboardGraphicsView, middleC->pos()), QPoint(426, 348));
    QCOMPARE(stagePlace(window->ui.outKeyboardGraphicsView, middleC->pairedOutKey->scenePos()),
             QPoint(426, 48));
}

void TestKeyboards::dataOfANullItemIsLost()
{
    key_roles::setTarget(nullptr, 60);
    QCOMPARE(key_roles::target(nullptr), 0);
    QCOMPARE(key_roles::name(nullptr), QString());
    QVERIFY(!key_roles::isBlack(nullptr));
}

QTEST_MAIN(TestKeyboards)
#include "test_keyboards.moc"
