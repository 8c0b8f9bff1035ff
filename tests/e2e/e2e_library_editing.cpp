// The dialogs of the browser: categories and scales come, and get other names.

#include "e2e_library.h"

using namespace browser_places;

void EndToEndLibrary::categoriesAreMade()
{
    QVERIFY(visit(clickOn(newCategory), [this] {
        VERIFY_FIELDS("name: ");
        QVERIFY(hand->key("space"));
        VERIFY_FIELDS("name:  ");
        VERIFY_MODEL(); // the power stays
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(newCategory), [this] {
        QVERIFY(hand->type("   "));
        QVERIFY(hand->key("Return")); // a blank name makes nothing
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(newCategory), [this] {
        QVERIFY(hand->type(encores));
        VERIFY_FIELDS("name: " + encores);
        picture("new-category-dialog");
        model.createCategory(encores);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    picture("new-category");
    QVERIFY(visit(clickOn(newCategory), [this] {
        QVERIFY(hand->type(evening));
        model.createCategory(evening);
        QVERIFY(hand->click(placeIn("okButton")));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(newCategory), [this] {
        QVERIFY(hand->type("gone"));
        QVERIFY(hand->click(placeIn("cancelButton")));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(newCategory), [this] {
        QVERIFY(hand->type(encores)); // known already: it is only gone to
        model.createCategory(encores);
        QVERIFY(hand->key("KP_Enter"));
    }));
    VERIFY_MODEL();
}

void EndToEndLibrary::unknownScaleIsMarked()
{
    for (const int index : {1, 1, 10, 3, 8, 8}) {
        model.toggleDegree(index);
        QVERIFY(hand->click(degree(index)));
        VERIFY_MODEL();
    }
    QVERIFY(model.snapshot().mark);
    picture("unknown-scale-marked");
}

void EndToEndLibrary::unknownScaleIsAdded()
{
    const QString place = QStringLiteral("category: ") + model.currentName();
    QVERIFY(visit(clickOn(addScale), [&] {
        // Two presets of the factory hold unknown scales too.
        VERIFY_FIELDS("title: User 3", "abbr1: User", "abbr2: 3", place, "description: ", "message:  ");
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    const QString refusal = QStringLiteral("message: max 5-7 chars allowed(width-dependant), no SPACE, "
                                           "\"A-Z\",\"a-z\" and special chars only \"*?()+/-#0123456789\"");
    QVERIFY(visit(clickOn(addScale), [&] {
        QVERIFY(hand->type("Late Evening Scale No. 3"));
        QVERIFY(hand->key("Tab"));
        QVERIFY(hand->type("Eve!"));
        VERIFY_FIELDS("title: Late Evening Scale No. 3", "abbr1: Eve", "abbr2: 3", place,
                      "description: ", refusal);
        picture("refused-sign");
        QVERIFY(hand->key("Return")); // not while the message stands
        VERIFY_MODEL();
        QVERIFY(hand->key("space")); // refused as well
        QVERIFY(hand->type("n."));
        QVERIFY(hand->key("Tab"));
        QVERIFY(hand->type("#4"));
        QVERIFY(chooseCategory(encores));
        VERIFY_FIELDS("title: Late Evening Scale No. 3", "abbr1: Even.", "abbr2: #4", "category: " + encores,
                      "description: ", "message:  ");
        picture("add-dialog");
        model.addPlayed({"Even.", "#4", "Late Evening Scale No. 3", {}}, encores);
        QVERIFY(hand->click(placeIn("okButton")));
    }));
    VERIFY_MODEL();
    picture("unknown-scale-added");

    // A second unknown one, to a category that is chosen by keys.
    model.toggleDegree(1);
    QVERIFY(hand->click(degree(1)));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(addScale), [&] {
        QVERIFY(hand->key("shift+Tab")); // around to the description
        QVERIFY(hand->key("shift+Tab"));
        QVERIFY(hand->key("Home"));
        QVERIFY(hand->key("Down"));
        QVERIFY(hand->key("Tab"));
        QVERIFY(hand->type("for two hands"));
        VERIFY_FIELDS("title: User 3", "abbr1: User", "abbr2: 3", "category: " + minors,
                      "description: for two hands", "message:  ");
        model.addPlayed({"User", "3", "User 3", "for two hands"}, minors);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
}

void EndToEndLibrary::categoriesAreRenamed()
{
    const QString bold = QStringLiteral("Zugabe <b>groß</b> & mehr");
    QVERIFY(pressCategory(encores));
    VERIFY_MODEL();
    QVERIFY(pressScale(0)); // is still the chosen one under the new name
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(renameCategory), [&] {
        VERIFY_FIELDS("name: " + encores);
        QVERIFY(hand->type(bold));
        picture("rename-category-dialog");
        model.renameCategory(bold);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(renameCategory), [&] {
        QVERIFY(hand->type(majors)); // is taken
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(doubleClickOn(categoryPlace(bold)), [&] {
        VERIFY_FIELDS("name: " + bold);
        QVERIFY(hand->type("Aa first, yet last"));
        model.renameCategory("Aa first, yet last"); // keeps its place
        QVERIFY(hand->key("KP_Enter"));
    }));
    VERIFY_MODEL();
    QVERIFY(hand->click(categoryPlace("Aa first, yet last")));
    QVERIFY(visit(keyOf("F2"), [&] {
        QVERIFY(hand->type(encores));
        QVERIFY(hand->key("shift+Return")); // does nothing
        VERIFY_FIELDS("name: " + encores);
        model.renameCategory(encores);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
}

void EndToEndLibrary::scalesAreRenamed()
{
    QVERIFY(pressScale(0));
    VERIFY_MODEL();
    const QString word = model.chosenWord();
    BrowserModel::Names names = model.namesOf(word);
    QVERIFY(visit(keyOf("F2"), [&] {
        VERIFY_FIELDS("title: " + names.title, "abbr1: " + names.abbr1, "abbr2: " + names.abbr2,
                      "description: ", "message:  ");
        QVERIFY(hand->type("Später <Abend>"));
        picture("edit-dialog");
        names.title = QStringLiteral("Später <Abend>");
        model.edit(word, names);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();

    // The plates: the played scale's, then the two of the scale that is shown.
    QVERIFY(visit(clickOn(playedPlate), [&] {
        QVERIFY(hand->type("Nachtlied"));
        names.title = QStringLiteral("Nachtlied");
        model.edit(word, names);
        QVERIFY(hand->key("KP_Enter"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(firstShortName), [&] {
        QVERIFY(hand->type("WWWWWWW")); // too wide
        QCOMPARE(fieldText("abbr1"), QStringLiteral("WWW"));
        QVERIFY(hand->key("BackSpace"));
        names.abbr1 = QStringLiteral("WW");
        model.edit(word, names);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(secondShortName), [&] {
        QVERIFY(hand->type("lililii"));
        names.abbr2 = QStringLiteral("lililii");
        model.edit(word, names);
        QVERIFY(hand->click(placeIn("okButton")));
    }));
    VERIFY_MODEL();
    picture("renamed-scale");
}

void EndToEndLibrary::descriptionIsWritten()
{
    const QString word = model.describedWord();
    BrowserModel::Names names = model.namesOf(word);
    QVERIFY(visit(clickOn(page), [&] {
        QVERIFY(hand->type("für <alle> & λα ♪"));
        QVERIFY(hand->key("shift+Return"));
        QVERIFY(hand->type("zweite Zeile, 2 < 3"));
        QVERIFY(hand->key("space"));
        QVERIFY(hand->type("Ende"));
        picture("description-dialog");
        names.body = QStringLiteral("für <alle> & λα ♪\nzweite Zeile, 2 < 3 Ende");
        VERIFY_FIELDS("title: " + names.title, "abbr1: " + names.abbr1, "abbr2: " + names.abbr2,
                      "description: " + names.body, "message:  ");
        VERIFY_MODEL();
        model.edit(word, names);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
    picture("description-written");
    QVERIFY(visit(clickOn(pencil), [&] {
        QVERIFY(hand->key("ctrl+a"));
        QVERIFY(hand->key("Delete"));
        QVERIFY(hand->key("Escape"));
    }));
    VERIFY_MODEL();
    QVERIFY(visit(clickOn(pencil), [&] {
        QVERIFY(hand->key("ctrl+Home"));
        QVERIFY(hand->type("Also "));
        names.body.prepend(QStringLiteral("Also "));
        model.edit(word, names);
        QVERIFY(hand->key("Return"));
    }));
    VERIFY_MODEL();
}
