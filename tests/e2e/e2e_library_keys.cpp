// The browser by the keyboard, and what takes scales and categories away.

#include "e2e_library.h"

using namespace browser_places;

void EndToEndLibrary::keyboardAloneDoesItAll()
{
    model.setOpen(false);
    QVERIFY(hand->key("ctrl+l"));
    VERIFY_MODEL();
    model.setOpen(true);
    QVERIFY(hand->key("ctrl+l"));
    VERIFY_MODEL();
    const int from = model.categoryNames().indexOf(model.currentName());
    for (const int row : {from - 1, from - 2, from - 3}) {
        model.pressCategory(model.categoryNames().at(row));
        QVERIFY(hand->key("Up"));
        VERIFY_MODEL();
    }
    QVERIFY(hand->type("z")); // letters choose nothing
    VERIFY_MODEL();
    model.pressCategory(model.categoryNames().first());
    QVERIFY(hand->key("Home"));
    VERIFY_MODEL();
    QVERIFY(hand->key("Tab"));
    picture("keyboard-in-scales");
    QVERIFY(pressScale(0));
    for (const int row : {1, 2, 3, 2}) {
        const bool down = row > model.snapshot().scaleRow;
        model.pressScale(row);
        QVERIFY(hand->key(down ? "Down" : "Up"));
        VERIFY_MODEL();
    }
    QVERIFY(visit(keyOf("ctrl+c"), [&] {
        model.copyByMenu(users);
        QVERIFY(chooseInMenu(users));
    }));
    VERIFY_MODEL();
    QVERIFY(hand->click(scalePlace(2)));
    QVERIFY(visit(keyOf("ctrl+x"), [&] {
        model.moveByMenu(minors);
        QVERIFY(chooseInMenu(minors));
    }));
    VERIFY_MODEL();
    model.play(model.chosenWord());
    QVERIFY(hand->key("Return")); // plays, and gives the keyboard back
    VERIFY_MODEL();
    QCOMPARE(window->focusWidget(), window->ui.inKeyboardGraphicsView);
    QVERIFY(pressCategory(minors));
    VERIFY_MODEL();
    QVERIFY(visit(keyOf("Insert"), [&] {
        QVERIFY(hand->type("Aaa"));
        model.createCategory("Aaa");
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    QVERIFY(pressCategory("Aaa"));
    QVERIFY(visit(keyOf("Delete"), [&] {
        picture("delete-category-alert");
        model.deleteCategory();
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
}

void EndToEndLibrary::questionsAreAnsweredByKeys()
{
    QVERIFY(pressCategory(minors));
    VERIFY_MODEL();
    QVERIFY(pressScale(1));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(deleteScale), [&] {
        picture("delete-scale-alert");
        QVERIFY(hand->key("space"));
        VERIFY_MODEL();
        QVERIFY(hand->click(degree(4))); // the stage sleeps behind it
        QVERIFY(hand->click(newCategory));
        VERIFY_MODEL();
        QVERIFY(hand->key("ctrl+Return"));
        VERIFY_MODEL();
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(deleteScale), [&] { QVERIFY(hand->click(placeIn("cancelButton"))); }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(deleteCategory), [&] { QVERIFY(hand->key("Escape")); }));
    VERIFY_MODEL();
    QVERIFY(hand->click(scalePlace(1)));
    model.pressScale(1);
    QVERIFY(visit(keyOf("Delete"), [&] {
        model.deleteScale();
        QVERIFY(hand->key("KP_Enter"));
    }));
    VERIFY_MODEL();
}

void EndToEndLibrary::scalesAreDeletedToTheLast()
{
    QVERIFY(pressCategory(blues));
    VERIFY_MODEL();
    for (int left = model.words().size(); left > 0; --left) {
        if (model.currentName() != blues)
            QVERIFY(pressCategory(blues));
        QVERIFY(pressScale(left - 1));
        VERIFY_MODEL();
        QVERIFY(visit(clickOn(deleteScale), [&] {
            model.deleteScale();
            QVERIFY(hand->key("Return"));
        }));
        VERIFY_MODEL();
    }
    QVERIFY(pressCategory(blues));
    VERIFY_MODEL();
    picture("last-scale-deleted");
}

void EndToEndLibrary::categoriesAreDeletedToTheLast()
{
    bool fromTheEnd = true;
    while (model.categoryNames().size() > 1) {
        QVERIFY(pressCategory(fromTheEnd ? model.categoryNames().last() : model.categoryNames().first()));
        VERIFY_MODEL();
        fromTheEnd = !fromTheEnd;
        QVERIFY(visit(clickOn(deleteCategory), [&] {
            model.deleteCategory();
            QVERIFY(hand->click(placeIn("okButton")));
        }));
        VERIFY_MODEL();
    }
    QVERIFY(pressCategory(model.categoryNames().first()));
    VERIFY_MODEL();
    QVERIFY(hand->click(deleteCategory));
    QVERIFY(!isAsking());
    VERIFY_MODEL();
    picture("last-category");
}
