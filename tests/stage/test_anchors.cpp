// The in anchors and their group as they are made and found by name, where a remap puts them, and which of
// them can be seen.

#include "AnchorRule.h"
#include "HeaderFixture.h"
#include "anchor_parts.h"
#include "headers/AnchorItem.h"

namespace {

/// The first `count` degrees of the chromatic scale.
QString wordOf(int count)
{
    return QString(count, QLatin1Char('x')) + QString(12 - count, QLatin1Char('o'));
}

} // namespace

class TestAnchors : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Creation
    void inAnchorsAreNineInTheirLists();
    void inAnchorsAreMadeOfThreePictures();
    void inAnchorsCarryTheHandsCursor();
    void inAnchorsTellWhatTheyDoOnTheBarOnly();
    void freshInAnchorsStandOctavesOfIonianApart();
    void inAnchorsDataIsTheirNameAndTheMainMark();
    void inAnchorsTakeTheLeftButton();
    void groupHoldsThemFromLeftToRight();
    void groupIsMovableAndNothingElse();
    void groupKnowsTheStage();
    void groupStartsWithBothGrids();

    // By name
    void findAnchorByNameGivesEachOfTheNine();
    void findAnchorByNameGivesNullForOtherNames();
    void findAnchorByNameGivesTheFirstOfTwo();

    // Placed by a remap
    void inAnchorsStandOctavesOfTheScaleApart();
    void placingLeavesTheGroupAlone();

    // Dimmed beyond the bar
    void refreshDimsWhatLiesBeyondTheBar();
    void refreshHoldsAtTheLimitsThemselves();
    void anchorBeyondTheBarStaysUnderThePointer();
    void remapRefreshes();

private:
    QList<QGraphicsItem*> inAnchors() const { return anchors()->childItems(); }
    QGraphicsItem* inAnchor(int n) const { return anchors()->findAnchorByName(AnchorItem::nameOf(n)); }
};

void TestAnchors::inAnchorsAreNineInTheirLists()
{
    QCOMPARE(power()->anchorsInRight.size(), 4);
    QCOMPARE(power()->anchorsInLeft.size(), 4);
    QVERIFY(dynamic_cast<AnchorItem*>(power()->mainAnchorIn));
    for (int i = 0; i < 4; ++i) {
        QVERIFY(dynamic_cast<AnchorItem*>(power()->anchorsInRight[i]));
        QVERIFY(dynamic_cast<AnchorItem*>(power()->anchorsInLeft[i]));
        QCOMPARE(key_roles::anchorName(power()->anchorsInRight[i]), QString::number(i + 1));
        QCOMPARE(key_roles::anchorName(power()->anchorsInLeft[i]), QString::number(-i - 1));
    }
}

void TestAnchors::inAnchorsAreMadeOfThreePictures()
{
    const QPixmap flag(QStringLiteral(":/Resources/INPUTAnchor2.png"));
    for (int n = -4; n <= 4; ++n) {
        const QGraphicsItem* anchor = inAnchor(n);
        QCOMPARE(anchor->childItems().size(), 3);
        QCOMPARE(part(anchor, 0)->pos(), QPointF(388, 110));
        QCOMPARE(imageOf(part(anchor, 0)->pixmap()), imageOf(flag));
        QCOMPARE(part(anchor, 1)->pos(), QPointF(n < 0 ? 395 : 397, 165));
        QCOMPARE(imageOf(part(anchor, 1)->pixmap()),
                 imageOf(window->getDigitalPix(MainWnd::digit_anchor_in, n)));
        QVERIFY(!part(anchor, 1)->pixmap().isNull());
        QCOMPARE(part(anchor, 2)->pos(), QPointF(388, 145));
        QCOMPARE(imageOf(part(anchor, 2)->pixmap()), imageOf(flag.copy(0, 36, 22, 55)));
    }
}

void TestAnchors::inAnchorsCarryTheHandsCursor()
{
    const QImage hand = imageOf(QPixmap(QStringLiteral(":/Resources/Cursor/cursorHr.png")));
    for (int n = -4; n <= 4; ++n)
        for (const QGraphicsItem* picture : inAnchor(n)->childItems()) {
            QVERIFY(picture->hasCursor());
            QCOMPARE(imageOf(picture->cursor().pixmap()), hand);
            // Left to the system, which takes the middle.
            QCOMPARE(picture->cursor().hotSpot(), QPoint(hand.width() / 2, hand.height() / 2));
        }
}

// Above the bar they lie over keys, which get the presses there.
void TestAnchors::inAnchorsTellWhatTheyDoOnTheBarOnly()
{
    for (int n = -4; n <= 4; ++n) {
        QVERIFY(part(inAnchor(n), 0)->toolTip().isEmpty());
        QVERIFY(!part(inAnchor(n), 1)->toolTip().isEmpty());
        QVERIFY(!part(inAnchor(n), 2)->toolTip().isEmpty());
    }
}

void TestAnchors::freshInAnchorsStandOctavesOfIonianApart()
{
    QCOMPARE(anchors()->pos(), QPointF());
    for (int n = -4; n <= 4; ++n)
        QCOMPARE(inAnchor(n)->pos(), QPointF(n * 7 * 17, 0));
}

void TestAnchors::inAnchorsDataIsTheirNameAndTheMainMark()
{
    for (int n = -4; n <= 4; ++n) {
        const QGraphicsItem* anchor = inAnchor(n);
        QCOMPARE(anchor->data(nameRole), QVariant(n == 0 ? QStringLiteral("main") : QString::number(n)));
        QCOMPARE(anchor->data(side), n == 0 ? QVariant(59) : QVariant());
        QCOMPARE(part(anchor, 0)->data(pitchRole), n == 0 ? QVariant(QStringLiteral("0")) : QVariant());
    }
    QCOMPARE(inAnchor(0), static_cast<QGraphicsItem*>(power()->mainAnchorIn));
}

void TestAnchors::inAnchorsTakeTheLeftButton()
{
    for (const QGraphicsItem* anchor : inAnchors()) {
        QCOMPARE(anchor->acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
        QVERIFY(!static_cast<const AnchorItem*>(anchor)->isPressed);
    }
    QCOMPARE(anchors()->acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
    QVERIFY(!anchors()->isPressed);
}

void TestAnchors::groupHoldsThemFromLeftToRight()
{
    QStringList names;
    for (const QGraphicsItem* anchor : inAnchors())
        names << key_roles::anchorName(anchor);
    QCOMPARE(names, (QStringList{"-1", "-2", "-3", "-4", "main", "1", "2", "3", "4"}));
}

void TestAnchors::groupIsMovableAndNothingElse()
{
    QCOMPARE(anchors()->flags(), QGraphicsItem::GraphicsItemFlags(QGraphicsItem::ItemIsMovable));
    QCOMPARE(anchors()->type(), 10);
}

void TestAnchors::groupKnowsTheStage()
{
    QCOMPARE(static_cast<QGraphicsItem*>(anchors()->powerItem), static_cast<QGraphicsItem*>(power()));
    QCOMPARE(anchors()->scene, scene());
    QCOMPARE(static_cast<QGraphicsItem*>(anchors())->scene(), static_cast<QGraphicsScene*>(scene()));
    QVERIFY(!scene()->anchorDrag);
}

void TestAnchors::groupStartsWithBothGrids()
{
    QCOMPARE(anchors()->gridRight.size(), 200);
    QCOMPARE(anchors()->gridLeft.size(), 200);
    QCOMPARE(anchors()->gridRight.mid(0, 3), (QList<int>{0, 17, 34}));
    QCOMPARE(anchors()->gridLeft.mid(0, 3), (QList<int>{0, -17, -34}));
}

void TestAnchors::findAnchorByNameGivesEachOfTheNine()
{
    QCOMPARE(anchors()->findAnchorByName(QStringLiteral("main")),
             static_cast<QGraphicsItem*>(power()->mainAnchorIn));
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(anchors()->findAnchorByName(QString::number(i + 1)),
                 static_cast<QGraphicsItem*>(power()->anchorsInRight[i]));
        QCOMPARE(anchors()->findAnchorByName(QString::number(-i - 1)),
                 static_cast<QGraphicsItem*>(power()->anchorsInLeft[i]));
    }
}

void TestAnchors::findAnchorByNameGivesNullForOtherNames()
{
    for (const char* name : {"", "0", "5", "-5", "+1", "1 ", "01", "Main", "-"})
        QVERIFY(!anchors()->findAnchorByName(QLatin1String(name)));
    QVERIFY(!AnchorsGroup().findAnchorByName(QStringLiteral("main")));
}

void TestAnchors::findAnchorByNameGivesTheFirstOfTwo()
{
    AnchorsGroup group;
    auto* nameless = new AnchorItem;
    auto* first = new AnchorItem;
    auto* second = new AnchorItem;
    for (AnchorItem* anchor : {nameless, first, second})
        group.addToGroup(anchor);
    first->setData(nameRole, 2); // a number reads as its text
    second->setData(nameRole, QStringLiteral("2"));
    QCOMPARE(group.findAnchorByName(QStringLiteral("2")), static_cast<QGraphicsItem*>(first));
}

void TestAnchors::inAnchorsStandOctavesOfTheScaleApart()
{
    window->setPower(true);
    for (int count = 1; count <= 12; ++count) {
        setScale(wordOf(count));
        for (int n = -4; n <= 4; ++n)
            QCOMPARE(inAnchor(n)->pos(), QPointF(n * count * 17, 0));
    }
}

void TestAnchors::placingLeavesTheGroupAlone()
{
    window->setPower(true);
    anchors()->setPos(34, 7);
    setScale(wholeTone);
    setTonic("E");
    QCOMPARE(anchors()->pos(), QPointF(34, 7));
    QCOMPARE(inAnchor(1)->pos(), QPointF(6 * 17, 0));
    QCOMPARE(inAnchor(1)->scenePos(), QPointF(34 + 6 * 17, 7));
}

void TestAnchors::refreshDimsWhatLiesBeyondTheBar()
{
    for (int x = -1500; x <= 1500; x += 17) {
        anchors()->setX(x);
        anchors()->refresh();
        for (const QGraphicsItem* anchor : inAnchors())
            QCOMPARE(anchor->opacity(), AnchorRule::opacityAt(int(anchor->scenePos().x())) / 100.0);
    }
}

void TestAnchors::refreshHoldsAtTheLimitsThemselves()
{
    const auto dimmedAt = [this](qreal x) {
        anchors()->setX(x);
        anchors()->refresh();
        return power()->mainAnchorIn->opacity() < 0.5;
    };
    QVERIFY(!dimmedAt(476));
    QVERIFY(dimmedAt(476.5));
    QVERIFY(!dimmedAt(-374));
    QVERIFY(dimmedAt(-374.5));
    QVERIFY(!dimmedAt(0));
}

void TestAnchors::anchorBeyondTheBarStaysUnderThePointer()
{
    for (const bool switchedOn : {true, false}) {
        window->setPower(switchedOn);
        anchors()->setX(493); // one key beyond the end
        anchors()->refresh();
        QCOMPARE(power()->mainAnchorIn->opacity(), 0.01);
        const auto under = scene()->items(QPointF(493 + 399, 170));
        QVERIFY(under.contains(power()->mainAnchorIn));
    }
}

void TestAnchors::remapRefreshes()
{
    window->setPower(true);
    anchors()->setX(-391);
    power()->changeScaleByTonic();
    QCOMPARE(power()->mainAnchorIn->opacity(), 0.01);
    anchors()->setX(0);
    power()->changeScaleByTonic();
    QCOMPARE(power()->mainAnchorIn->opacity(), 1.0);
}

QTEST_MAIN(TestAnchors)
#include "test_anchors.moc"
