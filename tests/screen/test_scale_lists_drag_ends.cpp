// What ends the drag of a scale, and what happens to it when the library changes under the hand.

#include "ScaleDragFixture.h"

#include "screen/RightTracker.h"

#include <QCursor>
#include <QLabel>
#include <QtTest>

class TestScaleListsDragEnds : public ScaleDragFixture
{
    Q_OBJECT

private slots:
    void init() { openForDrags(); }
    void cleanup() { closeAfterDrags(); }

    // What it shows
    void listsAreNotRebuiltUnderTheHand();

    // What ends it
    void endsWithoutADrop_data();
    void endsWithoutADrop();
    void hiddenWindowEndsIt();
    void destroyedWindowEndsIt();
    void lostReleaseEndsIt_data();
    void lostReleaseEndsIt();
    void scaleThatWentAwayIsNotDropped();
    void dropAfterANoteStaysInTheCategoryThatShows();
    void noActionIsTakenByKeysOfTheList_data();
    void noActionIsTakenByKeysOfTheList();
};

void TestScaleListsDragEnds::listsAreNotRebuiltUnderTheHand()
{
    drag(3);
    const QStringList before = rows(scaleList());
    play(wholeTone); // stands in another category
    settle();
    QCOMPARE(rows(scaleList()), before);
    QVERIFY(scaleList().isDragging());
    release({600, 250});
    settle();
    QCOMPARE(rows(scaleList()), titles(library().currentCategory()));
    QVERIFY(rows(scaleList()) != before);
}

void TestScaleListsDragEnds::endsWithoutADrop_data()
{
    QTest::addColumn<QString>("end");
    for (const char* end : {"escape", "right button", "middle button", "closed", "hidden", "default scene",
                            "deactivated", "power by a note", "space"})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void TestScaleListsDragEnds::endsWithoutADrop()
{
    QFETCH(QString, end);
    const QStringList before = allWords();
    const QPoint place = placeOfRow(categoryList(), 3);
    drag(2);
    move(place);
    const QMap<QString, std::function<void()>> ends{
        {QStringLiteral("escape"), [this] { QTest::keyClick(window->windowHandle(), Qt::Key_Escape); }},
        {QStringLiteral("right button"), [&] { press(place, Qt::RightButton); }},
        {QStringLiteral("middle button"), [&] { press(place, Qt::MiddleButton); }},
        {QStringLiteral("closed"), [this] { window->showLibraryScreen(false); }},
        {QStringLiteral("hidden"), [this] { scaleList().hide(); }},
        {QStringLiteral("default scene"), [this] { screen().setSceneDefault(); }},
        {QStringLiteral("deactivated"),
         [this] {
             QEvent leaves(QEvent::WindowDeactivate); // as a window system tells it, to all children
             QCoreApplication::sendEvent(window.get(), &leaves);
         }},
        {QStringLiteral("power by a note"), [this] { sendNote(49, 100); }},
        {QStringLiteral("space"), [this] { QTest::keyClick(window->windowHandle(), Qt::Key_Space); }}};
    ends.value(end)();
    QVERIFY(isOver());
    QVERIFY(!dragPicture());
    move(place + QPoint(3, 3));
    QVERIFY(isOver());
    release(place);
    QCOMPARE(allWords(), before);
    QVERIFY(isOver());
}

void TestScaleListsDragEnds::hiddenWindowEndsIt()
{
    drag(2);
    window->hide();
    QVERIFY(isOver());
    QVERIFY(!dragPicture());
}

void TestScaleListsDragEnds::destroyedWindowEndsIt()
{
    drag(2);
    closeWindow();
    QVERIFY(QApplication::topLevelWidgets().isEmpty()); // nor is the picture left
    init();
    release({1, 1}); // the hand was still down
    QVERIFY(!scaleList().isDragging());
}

void TestScaleListsDragEnds::lostReleaseEndsIt_data()
{
    QTest::addColumn<QString>("where");
    for (const char* where : {"enters the list", "leaves the list", "leaves the strip"})
        QTest::newRow(where) << QString::fromLatin1(where);
}

// Another window took the release; the pointer comes back without it.
void TestScaleListsDragEnds::lostReleaseEndsIt()
{
    QFETCH(QString, where);
    const QStringList before = allWords();
    scaleList().dragStart(2, Qt::MoveAction);
    QVERIFY(scaleList().isDragging());
    QCOMPARE(QApplication::mouseButtons(), Qt::NoButton);
    QCursor::setPos(window->mapToGlobal({600, 250}));
    QWidget* target =
        where == QLatin1String("leaves the strip") ? static_cast<QWidget*>(view().tracker) : &scaleList();
    QEvent leaves(QEvent::Leave);
    QEnterEvent enters(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(target, where.startsWith(QLatin1String("enters")) ? &enters : &leaves);
    QVERIFY(isOver());
    QCOMPARE(allWords(), before);
}

void TestScaleListsDragEnds::scaleThatWentAwayIsNotDropped()
{
    const QPoint place = placeOfRow(categoryList(), 3);
    drag(3);
    move(place);
    library().removeScaleFromCategory(category(0), 0); // the rows behind move up
    const QStringList before = allWords();
    release(place);
    QCOMPARE(allWords(), before);
    QVERIFY(isOver());
}

// A note that recalls another scale changes the library's current category under the hand. The list shows
// the old one until the drop: that is the one that is reordered.
void TestScaleListsDragEnds::dropAfterANoteStaysInTheCategoryThatShows()
{
    QStringList before = allWords();
    drag(4);
    play(wholeTone);
    QVERIFY(library().currentCagetoryIndex() != 0);
    const QPoint place = placeOfRow(scaleList(), 1) - QPoint(0, 4);
    move(place);
    release(place);
    QStringList after = allWords();
    before.removeFirst();
    after.removeFirst();
    QCOMPARE(after, before); // no other category took it
}

void TestScaleListsDragEnds::noActionIsTakenByKeysOfTheList_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
    QTest::newRow("Insert") << int(Qt::Key_Insert) << int(Qt::NoModifier);
    QTest::newRow("F2") << int(Qt::Key_F2) << int(Qt::NoModifier);
    QTest::newRow("Down") << int(Qt::Key_Down) << int(Qt::NoModifier);
    QTest::newRow("Home") << int(Qt::Key_Home) << int(Qt::NoModifier);
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << int(Qt::ControlModifier);
}

// A question in the middle of a drag would leave the drop to change the library behind it.
void TestScaleListsDragEnds::noActionIsTakenByKeysOfTheList()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    drag(3);
    const QString opened = whatOpens([&] {
        QTest::keyClick(&scaleList(), static_cast<Qt::Key>(key),
                        static_cast<Qt::KeyboardModifiers>(modifiers));
    });
    QCOMPARE(opened, QString());
    QCOMPARE(scaleList().currentRow(), 3);
    QCOMPARE(library().currentScaleIndex(category(0)), 3);
    QVERIFY(scaleList().isDragging());
}

QTEST_MAIN(TestScaleListsDragEnds)
#include "test_scale_lists_drag_ends.moc"
