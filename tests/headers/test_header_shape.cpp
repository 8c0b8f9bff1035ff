// Where the headers stand and which points belong to them, held against their pictures.

#include "HeaderFixture.h"
#include "LooseHeader.h"
#include "header_pictures.h"

#include <QtTest>

#include <algorithm>

class TestHeaderShape : public HeaderFixture
{
    Q_OBJECT

private slots:
    void shapeIsTheFlagNotItsCorners_data() { addTypes(); }
    void shapeIsTheFlagNotItsCorners();
    void polesStandOnTheMiddleOfTheirKeys();
    void headsOfOneRowDoNotOverlap();
    void wholeHeadBelongsToItsHeader();

private:
    const HeaderItem* topHeader(QPointF place) const;
};

const HeaderItem* TestHeaderShape::topHeader(QPointF place) const
{
    const auto items = scene()->items(place);
    const auto found = std::find_if(items.begin(), items.end(), key_roles::isHeader);
    return found == items.end() ? nullptr : static_cast<const HeaderItem*>(*found);
}

void TestHeaderShape::shapeIsTheFlagNotItsCorners()
{
    QFETCH(int, type);
    const LooseHeader item({}, static_cast<header_type>(type));
    const QImage face = item.pixmap().toImage();
    const auto hits = [&](int x, int y) { return item.shape().contains(QPointF(x + 0.5, y + 0.5)); };
    const auto opaque = [&](int x, int y) { return qAlpha(face.pixel(x, y)) > 200; };
    const QPoint head = item.nameRect1.united(item.nameRect2).center(), badge = item.tonicRect.center();
    const int stem = (head.y() + badge.y()) / 2 + 8; // the bare pole, between head and badge
    for (const QPoint& p : {head, badge, QPoint(badge.x(), stem)})
        QVERIFY(hits(p.x(), p.y()) && opaque(p.x(), p.y()));
    const int foot = face.height() - 5;
    for (const int x : {0, face.width() - 1}) {
        if (qAbs(x - badge.x()) < 8)
            continue; // the side of the pole
        QVERIFY(!hits(x, foot) && qAlpha(face.pixel(x, foot)) == 0);
    }
    // Where the pole stands beside the head, nothing stands above it.
    const bool beside = badge.x() < item.nameRect1.left() || badge.x() > item.nameRect1.right();
    const int outer = head.x() < badge.x() ? item.tonicRect.right() - 1 : item.tonicRect.left() + 1;
    QCOMPARE(beside, type == 2 || type == 4);
    QCOMPARE(hits(outer, head.y()), !beside);
    QCOMPARE(opaque(outer, head.y()), !beside);
    QVERIFY(item.boundingRect().contains(item.shape().boundingRect()));
}

void TestHeaderShape::polesStandOnTheMiddleOfTheirKeys()
{
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const ResizableItem* key = window->findInNote(key_roles::pitch(item));
        QVERIFY(key_roles::isBlack(key));
        const qreal pole = item->scenePos().x() + QRectF(item->tonicRect).center().x();
        QCOMPARE(pole, key->scenePos().x() + 10 / 2.0);
        QVERIFY(item->scenePos().y() + item->powerPoint.y() >= key->scenePos().y());
    }
}

// Taken from the pictures: the columns that a head covers, away from its rounded corners.
void TestHeaderShape::headsOfOneRowDoNotOverlap()
{
    QMap<int, int> rightOfRow; // by y, the last column taken
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const QImage face = item->pixmap().toImage();
        const int left = qRound(item->scenePos().x()), row = qRound(item->scenePos().y());
        int first = face.width(), last = -1;
        for (int x = 0; x < face.width(); ++x)
            if (qAlpha(face.pixel(x, item->nameRect1.center().y())) > 0) {
                first = qMin(first, x);
                last = x;
            }
        QVERIFY(last - first > 25);
        QVERIFY(left + first > rightOfRow.value(row, -1));
        rightOfRow[row] = left + last;
    }
    QCOMPARE(rightOfRow.keys(), (QList<int>{1, 28}));
}

// What is seen as a head is that header under the pointer, whatever else reaches into its picture.
void TestHeaderShape::wholeHeadBelongsToItsHeader()
{
    window->setPower(true);
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        if (!item->isVisible())
            continue; // the power button stands there
        const QImage face = item->pixmap().toImage();
        for (int y = item->nameRect1.top(); y < item->nameRect2.bottom(); ++y)
            for (int x = 0; x < face.width(); ++x)
                if (qAlpha(face.pixel(x, y)) > 200)
                    QCOMPARE(topHeader(item->mapToScene(x + 0.5, y + 0.5)), item);
    }
}

QTEST_MAIN(TestHeaderShape)
#include "test_header_shape.moc"
