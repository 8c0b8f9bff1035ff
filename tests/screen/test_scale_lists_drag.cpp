// A row of the scale list under the hand, by the events of a real pointer: where it can go, and what it
// shows.

#include "ScaleDragFixture.h"

#include <QLabel>
#include <QtTest>

class TestScaleListsDrag : public ScaleDragFixture
{
    Q_OBJECT

private slots:
    void init() { openForDrags(); }
    void cleanup() { closeAfterDrags(); }

    // Its beginning
    void beginsAtTheDragDistance();
    void clickThatShakesDragsNothing();
    void remarkIsNotDragged();
    void otherButtonDragsNothing();
    void rowUnderThePressIsDragged();

    // Where it goes
    void reorders_data();
    void reorders();
    void goesToACategory_data();
    void goesToACategory();
    void controlCountsAtTheRelease();
    void refusedPlacesTakeNothing_data();
    void refusedPlacesTakeNothing();

    // What it shows
    void pictureFollowsThePointer();
    void marksAndCursorsTellWhereItCanGo();

private:
    QPoint inList(const QListWidget& list, QPoint place) const
    {
        return list.viewport()->mapTo(window.get(), place);
    }
    /// In the upper or the lower half of a row of the scales.
    QPoint inHalf(int row, bool lower) const
    {
        const QRect place = scaleList().visualItemRect(scaleList().item(row));
        return inList(scaleList(), {30, lower ? place.bottom() - 1 : place.top() + 1});
    }
};

void TestScaleListsDrag::beginsAtTheDragDistance()
{
    const int far = QApplication::startDragDistance();
    const QPoint from = placeOfRow(scaleList(), 2);
    press(from);
    QVERIFY(!scaleList().isDragging());
    move(from + QPoint(far - 1, 0));
    QVERIFY(!scaleList().isDragging());
    move(from + QPoint(far, 0));
    QVERIFY(scaleList().isDragging());
    release(from);
    QVERIFY(isOver());
}

void TestScaleListsDrag::clickThatShakesDragsNothing()
{
    const QStringList before = allWords();
    const QPoint from = placeOfRow(scaleList(), 2);
    press(from);
    move(from + QPoint(1, 1));
    release(from + QPoint(1, 1));
    QCOMPARE(allWords(), before);
    QCOMPARE(scaleList().currentRow(), 2);
    QCOMPARE(library().currentScaleIndex(category(0)), 2);
}

void TestScaleListsDrag::remarkIsNotDragged()
{
    showCategory(9);
    press(placeOfRow(scaleList(), 0));
    move(placeOfRow(scaleList(), 0) + QPoint(-40, 10));
    QVERIFY(!scaleList().isDragging());
    release(placeOfRow(categoryList(), 1));
    press(inList(scaleList(), {5, 60})); // below the rows
    move(inList(scaleList(), {45, 60}));
    QVERIFY(!scaleList().isDragging());
}

void TestScaleListsDrag::otherButtonDragsNothing()
{
    for (const auto which : {Qt::RightButton, Qt::MiddleButton}) {
        press(placeOfRow(scaleList(), 1), which);
        move(placeOfRow(scaleList(), 4));
        QVERIFY(!scaleList().isDragging());
        release(placeOfRow(scaleList(), 4), which);
    }
}

void TestScaleListsDrag::rowUnderThePressIsDragged()
{
    const QString word = words(category(0)).at(4);
    press(placeOfRow(scaleList(), 4));
    move(placeOfRow(scaleList(), 1)); // in one leap
    release(placeOfRow(categoryList(), 3));
    QCOMPARE(words(category(3)).last(), word);
}

void TestScaleListsDrag::reorders_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("over"); // a row, and whether its lower half
    QTest::addColumn<bool>("lower");
    QTest::addColumn<int>("to");
    QTest::newRow("up, before a row") << 4 << 1 << false << 1;
    QTest::newRow("up, behind a row") << 4 << 1 << true << 2;
    QTest::newRow("to the top") << 4 << 0 << false << 0;
    QTest::newRow("down, before a row") << 0 << 3 << false << 2;
    QTest::newRow("down, behind a row") << 0 << 3 << true << 3;
    QTest::newRow("on its own upper half") << 2 << 2 << false << 2;
    QTest::newRow("on its own lower half") << 2 << 2 << true << 2;
    QTest::newRow("behind the row above") << 2 << 1 << true << 2;
    QTest::newRow("before the row below") << 2 << 3 << false << 2;
}

void TestScaleListsDrag::reorders()
{
    QFETCH(int, from);
    QFETCH(int, over);
    QFETCH(bool, lower);
    QFETCH(int, to);
    QList<QString> wanted = words(category(0));
    wanted.move(from, to);
    QSignalSpy moved(&scaleList(), &ScaleListWidget::itemMoved);
    drag(from);
    const QPoint place = inHalf(over, lower);
    move(place);
    release(place);
    QCOMPARE(words(category(0)), wanted);
    QCOMPARE(moved.size(), from == to ? 0 : 1);
    if (from != to)
        QCOMPARE(moved.first(), (QVariantList{from, to}));
    QVERIFY(isOver());
}

void TestScaleListsDrag::goesToACategory_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("copies");
    for (const int row : {1, 4})
        for (const bool copies : {false, true})
            QTest::addRow("%s to %d", copies ? "copy" : "move", row) << row << copies;
}

void TestScaleListsDrag::goesToACategory()
{
    QFETCH(int, row);
    QFETCH(bool, copies);
    QList<QString> source = words(category(0)), target = words(category(row));
    const QString word = source.at(3);
    const auto held = copies ? Qt::ControlModifier : Qt::NoModifier;
    drag(3);
    const QPoint place = placeOfRow(categoryList(), row);
    move(place, held);
    release(place, Qt::LeftButton, held);
    if (!copies)
        source.removeAt(3);
    QCOMPARE(words(category(0)), source);
    QCOMPARE(words(category(row)), target + QList<QString>{word});
    QVERIFY(isOver());
    settle();
    // The played scale takes the browser back.
    QCOMPARE(library().currentCagetoryIndex(), 0);
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), ionian);
}

void TestScaleListsDrag::controlCountsAtTheRelease()
{
    const QPoint place = placeOfRow(categoryList(), 1);
    drag(3);
    move(place);
    release(place, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(words(category(0)).size(), 7);
    settle(); // back to the played scale's category
    drag(4);
    move(place, Qt::ControlModifier);
    release(place);
    QCOMPARE(words(category(0)).size(), 6);
}

void TestScaleListsDrag::refusedPlacesTakeNothing_data()
{
    QTest::addColumn<QPoint>("scenePlace");
    QTest::addColumn<int>("category");
    QTest::newRow("the source") << QPoint() << 0;
    QTest::newRow("a holder of the word") << QPoint() << 2;
    QTest::newRow("the page") << QPoint(580, 80) << -1;
    QTest::newRow("between the lists") << QPoint(345, 80) << -1;
    QTest::newRow("above") << QPoint(400, 25) << -1;
    QTest::newRow("a button") << QPoint(296, 27) << -1;
}

void TestScaleListsDrag::refusedPlacesTakeNothing()
{
    QFETCH(QPoint, scenePlace);
    QFETCH(int, category);
    library().appendScaleToCategory(this->category(2), words(this->category(0)).at(3));
    const QStringList before = allWords();
    const QPoint place = category < 0 ? scenePlace + QPoint(21, 152) : placeOfRow(categoryList(), category);
    drag(3);
    move(place);
    QCOMPARE(scaleList().viewport()->cursor().shape(), Qt::ForbiddenCursor);
    QCOMPARE(whatOpens([&] { release(place); }), QString());
    QCOMPARE(allWords(), before);
    QVERIFY(isOver());
}

void TestScaleListsDrag::pictureFollowsThePointer()
{
    QVERIFY(!dragPicture());
    drag(2);
    QVERIFY(dragPicture());
    for (const QPoint place : {QPoint(400, 230), QPoint(250, 210), QPoint(600, 300)}) {
        move(place);
        QVERIFY(dragPicture()->isVisible());
        const QPoint beside = dragPicture()->pos() - place;
        QVERIFY(beside.x() > 0 && beside.y() > 0 && beside.manhattanLength() < 30);
        QVERIFY(!dragPicture()->geometry().contains(place));
    }
    QCOMPARE(dragPicture()->height(), scaleList().itemHeight());
    release({600, 300});
    QVERIFY(!dragPicture());
}

void TestScaleListsDrag::marksAndCursorsTellWhereItCanGo()
{
    const auto* line = scaleList().viewport()->findChild<QLabel*>();
    const auto* frame = categoryList().viewport()->findChild<QLabel*>();
    const auto shape = [this] { return scaleList().viewport()->cursor().shape(); };
    drag(3);
    move(inHalf(1, false));
    QVERIFY(!line->isHidden() && frame->isHidden());
    QCOMPARE(line->geometry(), QRect(0, scaleList().itemHeight() - 1, scaleList().viewport()->width(), 2));
    QCOMPARE(shape(), Qt::DragMoveCursor);
    move(inHalf(3, false)); // before itself
    QVERIFY(line->isHidden());
    move(placeOfRow(categoryList(), 2));
    QVERIFY(line->isHidden() && !frame->isHidden());
    QCOMPARE(frame->geometry(), categoryList().visualItemRect(categoryList().item(2)));
    QCOMPARE(shape(), Qt::DragMoveCursor);
    move(placeOfRow(categoryList(), 1), Qt::ControlModifier);
    QCOMPARE(shape(), Qt::DragCopyCursor);
    QCOMPARE(frame->geometry(), categoryList().visualItemRect(categoryList().item(1)));
    move(placeOfRow(categoryList(), 0)); // its own
    QVERIFY(line->isHidden() && frame->isHidden());
    QCOMPARE(shape(), Qt::ForbiddenCursor);
    move({600, 250});
    QVERIFY(line->isHidden() && frame->isHidden());
    release({600, 250});
    QVERIFY(isOver());
}

QTEST_MAIN(TestScaleListsDrag)
#include "test_scale_lists_drag.moc"
