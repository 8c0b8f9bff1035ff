// The out anchors as they are made, on which key a remap puts each of them, and which of them it shows at
// what power.

#include "HeaderFixture.h"
#include "anchor_parts.h"
#include "headers/AnchorItem.h"

namespace {

const QMap<QString, QPointF> digits = {{"main", {9, 7}}, {"right", {10, 7}}, {"left", {8, 7}}};

} // namespace

class TestAnchorsOut : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Creation
    void outAnchorsAreNineInTheirLists();
    void outAnchorsAreMadeOfTwoPictures();
    void outAnchorsDataIsTheirNameAndTheMainMark();
    void outAnchorsTakeNoPointer();
    void outAnchorsStartHiddenButTheMainOne();

    // Placed by a remap
    void outAnchorsStandOnTheTonicOfEachOctave();
    void outAnchorsShowWithThePowerOnOnly();
    void outAnchorStaysWhereItWasWithoutAKey();

    void anchorsAreDimmedWithThePowerOff();

private:
    QGraphicsItemGroup* outAnchor(int n) const;
};

QGraphicsItemGroup* TestAnchorsOut::outAnchor(int n) const
{
    if (n == 0)
        return power()->mainAnchorOut;
    return n > 0 ? power()->anchorsOutRight.value(n - 1) : power()->anchorsOutLeft.value(-n - 1);
}

void TestAnchorsOut::outAnchorsAreNineInTheirLists()
{
    QCOMPARE(power()->anchorsOutRight.size(), 4);
    QCOMPARE(power()->anchorsOutLeft.size(), 4);
    for (int n = -4; n <= 4; ++n) {
        QVERIFY(outAnchor(n));
        QCOMPARE(outAnchor(n)->type(), 10);
        QVERIFY(!dynamic_cast<AnchorItem*>(outAnchor(n)));
        QCOMPARE(outAnchor(n)->scene(), window->ui.outKeyboardGraphicsView->scene());
        QVERIFY(!outAnchor(n)->parentItem());
        QVERIFY(!(outAnchor(n)->flags() & QGraphicsItem::ItemIsMovable));
    }
}

void TestAnchorsOut::outAnchorsAreMadeOfTwoPictures()
{
    const QImage flag = imageOf(QPixmap(QStringLiteral(":/Resources/OUTPUTAnchor2.png")));
    for (int n = -4; n <= 4; ++n) {
        const QGraphicsItem* anchor = outAnchor(n);
        const QString kind = n == 0  ? QStringLiteral("main")
                             : n > 0 ? QStringLiteral("right")
                                     : QStringLiteral("left");
        QCOMPARE(anchor->childItems().size(), 2);
        QCOMPARE(part(anchor, 0)->pos(), QPointF(12, -15));
        QCOMPARE(imageOf(part(anchor, 0)->pixmap()), flag);
        QCOMPARE(part(anchor, 1)->pos(), QPointF(12, -15) + digits.value(kind));
        QCOMPARE(imageOf(part(anchor, 1)->pixmap()),
                 imageOf(window->getDigitalPix(MainWnd::digit_anchor_out, n)));
        QVERIFY(!part(anchor, 1)->pixmap().isNull());
    }
}

void TestAnchorsOut::outAnchorsDataIsTheirNameAndTheMainMark()
{
    for (int n = -4; n <= 4; ++n) {
        QCOMPARE(outAnchor(n)->data(nameRole),
                 QVariant(n == 0 ? QStringLiteral("main") : QString::number(n)));
        QCOMPARE(outAnchor(n)->data(side), n == 0 ? QVariant(59) : QVariant());
        QCOMPARE(part(outAnchor(n), 0)->data(pitchRole), QVariant());
    }
}

void TestAnchorsOut::outAnchorsTakeNoPointer()
{
    for (int n = -4; n <= 4; ++n) {
        QCOMPARE(outAnchor(n)->acceptedMouseButtons(), Qt::MouseButtons(Qt::NoButton));
        for (const QGraphicsItem* picture : outAnchor(n)->childItems()) {
            QCOMPARE(picture->acceptedMouseButtons(), Qt::MouseButtons(Qt::NoButton));
            QVERIFY(!picture->hasCursor());
        }
    }
}

void TestAnchorsOut::outAnchorsStartHiddenButTheMainOne()
{
    for (int n = -4; n <= 4; ++n)
        QCOMPARE(outAnchor(n)->isVisible(), n == 0);
}

// Seen from the keys: the tip, 11 pixels into the picture, is on the left edge of the key.
void TestAnchorsOut::outAnchorsStandOnTheTonicOfEachOctave()
{
    window->setPower(true);
    for (int tonicPitch = 60; tonicPitch < 72; ++tonicPitch) {
        tonic().setActiveKey(tonic().findKey(tonicPitch - 60));
        power()->remap();
        for (int n = -4; n <= 4; ++n) {
            const int pitch = tonicPitch + 12 * n;
            const bool exists = pitch >= 21 && pitch <= 108;
            QCOMPARE(outAnchor(n)->isVisible(), exists);
            if (!exists)
                continue;
            const QGraphicsItem* key = window->findInNote(pitch)->pairedOutKey;
            QCOMPARE(part(outAnchor(n), 0)->scenePos().x() + 11, key->scenePos().x());
            QCOMPARE(outAnchor(n)->y(), 0.0);
        }
    }
}

void TestAnchorsOut::outAnchorsShowWithThePowerOnOnly()
{
    for (const bool power : {true, false, true, false}) {
        window->setPower(power);
        for (int n = -4; n <= 4; ++n) {
            const int pitch = 60 + 12 * n;
            QCOMPARE(outAnchor(n)->isVisible(), n == 0 || (power && pitch >= 21 && pitch <= 108));
        }
    }
}

// The lowest keyboard octave begins with A0: anchor -4 has no key below it with C as the tonic.
void TestAnchorsOut::outAnchorStaysWhereItWasWithoutAKey()
{
    window->setPower(true);
    setTonic("A");
    const qreal x = outAnchor(-4)->x();
    setTonic("C");
    QVERIFY(!outAnchor(-4)->isVisible());
    QCOMPARE(outAnchor(-4)->x(), x);
    setTonic("A");
    QVERIFY(outAnchor(-4)->isVisible());
}

void TestAnchorsOut::anchorsAreDimmedWithThePowerOff()
{
    window->setPower(true);
    QCOMPARE(anchors()->opacity(), 1.0);
    QCOMPARE(outAnchor(0)->opacity(), 1.0);
    window->setPower(false);
    QVERIFY(anchors()->opacity() > 0.1 && anchors()->opacity() < 0.9);
    QCOMPARE(outAnchor(0)->opacity(), anchors()->opacity());
}

QTEST_MAIN(TestAnchorsOut)
#include "test_anchors_out.moc"
