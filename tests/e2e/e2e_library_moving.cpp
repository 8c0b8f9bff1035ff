// Scales change their places, by drag and by menu.

#include "e2e_library.h"

using namespace browser_places;

void EndToEndLibrary::scalesAreReorderedByDrag()
{
    QVERIFY(pressCategory(majors));
    VERIFY_MODEL();
    const QPoint upperHalf(0, -4), lowerHalf(0, 4);

    model.pressScale(0);
    QVERIFY(startDrag(scalePlace(0), scalePlace(3) + upperHalf));
    VERIFY_MODEL(); // nothing is moved before the hand lets go
    QCOMPARE(dragCursor(), Qt::DragMoveCursor);
    picture("reorder-drag");
    model.reorder(0, 2);
    QVERIFY(hand->release());
    VERIFY_MODEL();

    model.pressScale(4);
    model.reorder(4, 1);
    QVERIFY(drag(scalePlace(4), scalePlace(0) + lowerHalf));
    VERIFY_MODEL();

    model.pressScale(2);
    QVERIFY(drag(scalePlace(2), scalePlace(2) + lowerHalf)); // to where it is
    VERIFY_MODEL();
    model.pressScale(2);
    QVERIFY(drag(scalePlace(2), scalePlace(1) + lowerHalf));
    VERIFY_MODEL();

    // Past the last row, which the whole list has only when it is short.
    QVERIFY(pressCategory(minors));
    VERIFY_MODEL();
    const int last = model.words().size() - 1;
    const QPoint end = scalePlace(last) + lowerHalf;
    model.pressScale(last - 3);
    model.reorder(last - 3, last);
    QVERIFY(drag(scalePlace(last - 3), end));
    VERIFY_MODEL();
    QVERIFY(pressCategory(symmetrics));
    model.pressScale(0);
    model.reorder(0, 2);
    QVERIFY(drag(scalePlace(0), footOfScales()));
    VERIFY_MODEL();
}

void EndToEndLibrary::scalesAreTakenToCategoriesByDrag()
{
    QVERIFY(pressCategory(pentatonics));
    VERIFY_MODEL();
    QPoint target = categoryPlace(blues);
    model.pressScale(1);
    QVERIFY(startDrag(scalePlace(1), target));
    VERIFY_MODEL();
    QCOMPARE(dragCursor(), Qt::DragMoveCursor);
    picture("move-drag");
    model.dropOnCategory(1, blues, false);
    QVERIFY(hand->release());
    VERIFY_MODEL();

    QVERIFY(pressCategory(pentatonics));
    VERIFY_MODEL();
    target = categoryPlace(evening);
    model.pressScale(3);
    QVERIFY(startDrag(scalePlace(3), target));
    QVERIFY(hand->holdKey("Control_L"));
    QVERIFY(hand->move(target + QPoint(2, 1)));
    QCOMPARE(dragCursor(), Qt::DragCopyCursor);
    picture("copy-drag");
    model.dropOnCategory(3, evening, true);
    QVERIFY(hand->release());
    QVERIFY(hand->letKeyGo("Control_L"));
    VERIFY_MODEL();

    // The key counts when the hand lets go: pressed without a further move, or let go before.
    QVERIFY(pressCategory(pentatonics));
    target = categoryPlace(evening);
    model.pressScale(0);
    model.dropOnCategory(0, evening, true);
    QVERIFY(drag(scalePlace(0), target, "Control_L"));
    VERIFY_MODEL();
    QVERIFY(pressCategory(pentatonics));
    target = categoryPlace(blues);
    model.pressScale(0);
    QVERIFY(hand->holdKey("Control_L"));
    QVERIFY(startDrag(scalePlace(0), target));
    QVERIFY(hand->letKeyGo("Control_L"));
    model.dropOnCategory(0, blues, false);
    QVERIFY(hand->release());
    VERIFY_MODEL();
}

void EndToEndLibrary::dragsAreRefusedAndGivenUp()
{
    // Evening holds two scales of the pentatonic ones.
    QVERIFY(pressCategory(evening));
    VERIFY_MODEL();
    const int row = 0;
    const QPoint holder = categoryPlace(pentatonics), itself = categoryPlace(evening);
    QCOMPARE(holder, categoryPlace(pentatonics)); // both are seen at once
    for (const QPoint place : {holder, itself, page, onTheKeys, degree(4)}) {
        model.pressScale(row);
        QVERIFY(startDrag(scalePlace(row), place));
        QCOMPARE(dragCursor(), Qt::ForbiddenCursor);
        if (place == page)
            picture("refused-drag");
        QVERIFY(hand->release());
        VERIFY_MODEL();
        QVERIFY(!scales().isDragging());
    }
    const QPoint target = categoryPlace(blues);
    for (const int button : {2, 3}) {
        model.pressScale(row);
        QVERIFY(startDrag(scalePlace(row), target));
        QVERIFY(hand->press(button) && hand->release(button));
        QVERIFY(!scales().isDragging());
        QVERIFY(hand->move(target + QPoint(4, 0)) && hand->release());
        VERIFY_MODEL();
    }
    model.pressScale(row);
    QVERIFY(startDrag(scalePlace(row), target));
    QVERIFY(hand->key("Escape"));
    QVERIFY(!scales().isDragging());
    QVERIFY(hand->move(target + QPoint(4, 0)) && hand->release());
    VERIFY_MODEL();
    QVERIFY(pressScale(1)); // the list works on
    VERIFY_MODEL();
}

void EndToEndLibrary::scalesAreCopiedAndMovedByMenu()
{
    QVERIFY(pressCategory(majors));
    VERIFY_MODEL();
    QVERIFY(pressScale(2));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(copyScale), [&] {
        picture("copy-menu");
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(copyScale), [&] {
        model.copyByMenu(evening);
        QVERIFY(chooseInMenu(evening));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(copyScale), [&] {
        QVERIFY(chooseInMenu(evening)); // holds it: the menu stays
        QVERIFY(isAsking());
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(moveScale), [&] {
        for (int step = 0; step < 2; ++step)
            QVERIFY(hand->key("Down"));
        model.moveByMenu(symmetrics);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(moveScale), [&] {
        QVERIFY(hand->key("Down"));
        model.moveByMenu(majors);
        QVERIFY(hand->key("KP_Enter"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(moveScale), [&] { QVERIFY(hand->click(onThePanel)); }));
    VERIFY_MODEL();
    QVERIFY(pressCategory(users)); // nothing chosen: ghosts
    VERIFY_MODEL();
    for (const QPoint ghost : {copyScale, moveScale, deleteScale}) {
        QVERIFY(hand->click(ghost));
        QVERIFY(!isAsking());
        VERIFY_MODEL();
    }
    picture("empty-category");
}
