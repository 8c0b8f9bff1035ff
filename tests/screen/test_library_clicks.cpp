// Clicks and double clicks on the rows of the two lists.

#include "LibraryFixture.h"

#include "HeaderLog.h"

#include <QtTest>

class TestLibraryClicks : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init() { openPlaying(); }

    // On a scale
    void clickSelectsAndShows_data() { addSwitch(); }
    void clickSelectsAndShows();
    void clickPlaysWithTheSwitchOnOnly_data() { addSwitch(); }
    void clickPlaysWithTheSwitchOnOnly();
    void pressIsEnough();
    void clickedScaleIsLeftForThePlayedOne();
    void doubleClickPlays_data() { addSwitch(); }
    void doubleClickPlays();
    void doubleClickStaysInItsCategory_data() { addSwitch(); }
    void doubleClickStaysInItsCategory();
    void doubleClickIsLogged();
    void doubleClickGivesTheKeyboardBack();
    void doubleClickOnNothingPlaysNothing();
    void remarkIsNoScale();
    void otherButtonsSelectNothing();

    // On a category
    void clickShowsTheCategoryWithoutPlaying_data() { addSwitch(); }
    void clickShowsTheCategoryWithoutPlaying();
    void clickSelectsTheRememberedScale();
    void clickOnAMovedRememberedScaleStaysInRange();
    void remarkIsNoCategory();

    // While notes come
    void noteAfterAClickTakesTheBrowserBack();
    void browserKeepsACategoryThatHoldsThePlayedWord();

private:
    static void addSwitch()
    {
        QTest::addColumn<bool>("switched");
        QTest::newRow("switch on") << true;
        QTest::newRow("switch off") << false;
    }
    void setSwitch()
    {
        QFETCH(bool, switched);
        if (switched)
            scale().setSwitchOn(true);
        else
            scale().setSwitchOff(true);
        settle();
        showCategory(0);
    }
    void doubleClickRow(int row) const
    {
        const QPoint place = scaleList().visualItemRect(scaleList().item(row)).center();
        QTest::mouseClick(scaleList().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(scaleList().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
};

void TestLibraryClicks::clickSelectsAndShows()
{
    setSwitch();
    const QString word = words(category(0)).at(3);
    clickRow(scaleList(), 3);
    QCOMPARE(library().currentCagetoryIndex(), 0);
    QCOMPARE(library().currentScale(), word);
    QCOMPARE(scaleList().currentRow(), 3);
    QVERIFY(view().description->toPlainText().startsWith(titleOf(word)));
    QCOMPARE(button(LibraryButton::edit_abbr1).text(), abbreviations(word).at(0));
    QCOMPARE(button(LibraryButton::edit_abbr2).text(), abbreviations(word).at(1));
    settle();
    QCOMPARE(scaleList().currentRow(), 3); // and stays
}

void TestLibraryClicks::clickPlaysWithTheSwitchOnOnly()
{
    QFETCH(bool, switched);
    setSwitch();
    const QString word = words(category(0)).at(3);
    QVERIFY(word != ionian);
    clickRow(scaleList(), 3);
    QCOMPARE(scale().switchOn, switched);
    QCOMPARE(scale().scaleModifier(), switched ? word : ionian);
    QCOMPARE(record(firstActive).scaleData == word, switched);
    QCOMPARE(record(firstActive).scaleOn, switched);
    QCOMPARE(names(header(firstActive)) == abbreviations(word), switched);
    QCOMPARE(button(LibraryButton::scale_label).text(), abbreviations(switched ? word : ionian).join(' '));
}

void TestLibraryClicks::pressIsEnough()
{
    QTest::mousePress(scaleList().viewport(), Qt::LeftButton, Qt::NoModifier,
                      scaleList().visualItemRect(scaleList().item(2)).center());
    QCOMPARE(library().currentScaleIndex(category(0)), 2);
    QTest::mousePress(categoryList().viewport(), Qt::LeftButton, Qt::NoModifier,
                      categoryList().visualItemRect(categoryList().item(3)).center());
    QCOMPARE(library().currentCagetoryIndex(), 3);
}

void TestLibraryClicks::clickedScaleIsLeftForThePlayedOne()
{
    scale().setSwitchOff(true);
    showCategory(0);
    clickRow(scaleList(), 3);
    play(lydian);
    settle();
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), lydian);
    QVERIFY(view().description->toPlainText().startsWith(titleOf(lydian)));
}

void TestLibraryClicks::doubleClickPlays()
{
    setSwitch();
    const QString word = words(category(0)).at(4);
    doubleClickRow(4);
    QVERIFY(scale().switchOn);
    QCOMPARE(scale().scaleModifier(), word);
    QCOMPARE(record(firstActive).scaleData, word);
    QVERIFY(record(firstActive).scaleOn);
    settle();
    QCOMPARE(scaleList().currentRow(), 4);
    QCOMPARE(button(LibraryButton::scale_label).text(), abbreviations(word).join(' '));
}

// The scale stands in another category too, where the one that was played stands.
void TestLibraryClicks::doubleClickStaysInItsCategory()
{
    setSwitch();
    library().appendScaleToCategory(category(9), lydian);
    showCategory(9);
    clickRow(categoryList(), 9);
    doubleClickRow(0);
    settle();
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(library().currentCagetoryIndex(), 9);
    QCOMPARE(categoryList().currentRow(), 9);
    QCOMPARE(scaleList().currentRow(), 0);
}

void TestLibraryClicks::doubleClickIsLogged()
{
    const HeaderLog log(lcScreen());
    QTest::ignoreMessage(QtDebugMsg, "CenterScreen::scaleListDbClicked");
    screen().scaleListItemDblClicked(scaleList().item(0));
}

void TestLibraryClicks::doubleClickGivesTheKeyboardBack()
{
    scaleList().setFocus();
    QVERIFY(scaleList().hasFocus());
    screen().scaleListItemDblClicked(scaleList().item(0));
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
}

void TestLibraryClicks::doubleClickOnNothingPlaysNothing()
{
    scale().setSwitchOff(true);
    showCategory(9);
    screen().scaleListItemDblClicked(nullptr);
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestLibraryClicks::remarkIsNoScale()
{
    showCategory(9);
    clickRow(scaleList(), 0);
    screen().scaleListItemClicked(scaleList().item(0));
    doubleClickRow(0);
    QCOMPARE(library().currentScaleIndex(category(9)), -1);
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(library().currentCagetoryIndex(), 9);
}

void TestLibraryClicks::otherButtonsSelectNothing()
{
    const int before = library().currentScaleIndex(category(0));
    for (const auto which : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(scaleList().viewport(), which, Qt::NoModifier,
                          scaleList().visualItemRect(scaleList().item(5)).center());
    QCOMPARE(library().currentScaleIndex(category(0)), before);
    QCOMPARE(scaleList().currentRow(), before);
}

void TestLibraryClicks::clickShowsTheCategoryWithoutPlaying()
{
    setSwitch();
    clickRow(categoryList(), 4);
    QCOMPARE(library().currentCagetoryIndex(), 4);
    QCOMPARE(categoryList().currentRow(), 4);
    QCOMPARE(rows(scaleList()), titles(category(4)));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(button(LibraryButton::scale_label).text(), abbreviations(ionian).join(' '));
    settle();
    QCOMPARE(categoryList().currentRow(), 4);
}

void TestLibraryClicks::clickSelectsTheRememberedScale()
{
    library().setCurrentScaleIndex(category(2), 1);
    clickRow(categoryList(), 2);
    QCOMPARE(scaleList().currentRow(), 1);
    QVERIFY(view().description->toPlainText().startsWith(titleOf(words(category(2)).at(1))));
    QVERIFY(button(LibraryButton::copy_scale).isEnabled());
    clickRow(categoryList(), 9);
    QVERIFY(!button(LibraryButton::copy_scale).isEnabled());
    clickRow(categoryList(), 2);
    QCOMPARE(scaleList().currentRow(), 1);
}

void TestLibraryClicks::clickOnAMovedRememberedScaleStaysInRange()
{
    const QString name = category(2);
    const int last = words(name).size() - 1;
    library().setCurrentScaleIndex(name, last);
    library().removeScaleFromCategory(name, 0);
    clickRow(categoryList(), 2);
    QCOMPARE(library().currentScaleIndex(name), -1); // it lay past the end
    QCOMPARE(scaleList().currentRow(), -1);
}

void TestLibraryClicks::remarkIsNoCategory()
{
    library().clear();
    screen().refreshBrowser();
    clickRow(categoryList(), 0);
    screen().categoryListItemClicked(categoryList().item(0));
    QCOMPARE(rows(categoryList()), QStringList{QStringLiteral("(no categories)")});
    for (const auto code :
         {LibraryButton::rename_category, LibraryButton::delete_category, LibraryButton::delete_scale})
        QCOMPARE(whatOpens([&] { screen().carryOut(code); }), QString());
}

void TestLibraryClicks::noteAfterAClickTakesTheBrowserBack()
{
    scale().setSwitchOff(true);
    clickRow(categoryList(), 4);
    sendNote(66, 100); // recalls another scale
    sendNote(66, 0);
    settle();
    QCOMPARE(library().currentScale(), scale().scaleModifier());
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), scale().scaleModifier());
    QCOMPARE(categoryList().currentRow(), library().currentCagetoryIndex());
}

void TestLibraryClicks::browserKeepsACategoryThatHoldsThePlayedWord()
{
    library().appendScaleToCategory(category(9), lydian);
    clickRow(categoryList(), 9);
    play(lydian);
    settle();
    QCOMPARE(categoryList().currentRow(), 9);
    QCOMPARE(scaleList().currentRow(), 0);
}

QTEST_MAIN(TestLibraryClicks)
#include "test_library_clicks.moc"
