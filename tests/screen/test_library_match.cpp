// The library follows the word that is played: the mark, the category, the place in it, the page.

#include "LibraryFixture.h"

#include "keys/TonicKeyItem.h"
#include "keys/key_roles.h"

#include <QtTest>

namespace {

const QString userCategory = QStringLiteral("10 - User Scales");

enum class Place { unknown, custom, customInCategory, record, wordAlone, whole };

} // namespace

Q_DECLARE_METATYPE(Place)

class TestLibraryMatch : public LibraryFixture
{
    Q_OBJECT

private slots:
    // The mark
    void markShowsForWhatIsNotInTheLibrary_data();
    void markShowsForWhatIsNotInTheLibrary();
    void wordInNoCategoryShowsTheMarkAndKeepsTheCategory();
    void allOffSelectorLeavesTheMarkHidden();
    void allOffSelectorHidesAMarkThatShows();
    void markIsKeptWhileTheViewIsClosed();
    void withoutASelectorNothingChanges();

    // Where the library stands
    void categoryThatHoldsTheWordIsKept();
    void firstCategoryWithTheWordIsTaken();
    void indexOfTheCategoryThatIsLeftIsNone();
    void argumentIsNotUsed();

    // The browser
    void pageFollowsWhileTheViewShows();
    void pageDoesNotFollowAClosedView();
    void browserShowsTheCategoryThatIsTaken();

    // Who asks
    void everyChangeOfTheWordAsks_data();
    void everyChangeOfTheWordAsks();

private:
    bool markShows() const { return view().mark->isVisible(); }
    void put(const QString& word, Place place) const;
};

void TestLibraryMatch::put(const QString& word, Place place) const
{
    const scale_data record{word, QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("T"), QString()};
    if (place == Place::custom || place == Place::customInCategory)
        library().setScaleData(word, record, DatabaseLibrary::CustomRole);
    else if (place == Place::record || place == Place::whole)
        library().setScaleData(word, record, DatabaseLibrary::LibraryRole);
    if (place == Place::customInCategory || place == Place::wordAlone || place == Place::whole)
        library().insertScaleToCategory(userCategory, 0, word);
}

void TestLibraryMatch::markShowsForWhatIsNotInTheLibrary_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<bool>("marked");
    QTest::newRow("unknown") << Place::unknown << true;
    QTest::newRow("custom record") << Place::custom << true;
    QTest::newRow("custom record in a category") << Place::customInCategory << true;
    QTest::newRow("record in no category") << Place::record << true;
    QTest::newRow("word without a record") << Place::wordAlone << true;
    QTest::newRow("record in a category") << Place::whole << false;
}

void TestLibraryMatch::markShowsForWhatIsNotInTheLibrary()
{
    QFETCH(Place, place);
    presets().activeHeader = nullptr; // which would make a custom record
    put(unknownWord, place);
    setScale(ionian);
    window->checkScaleMatches(true);
    QVERIFY(!markShows());
    QVERIFY(screen().isMatches());
    setScale(unknownWord);
    window->checkScaleMatches(true);
    QTEST(markShows(), "marked");
    QTEST(!screen().isMatches(), "marked");
    setScale(ionian);
    window->checkScaleMatches(true);
    QVERIFY(!markShows());
}

void TestLibraryMatch::wordInNoCategoryShowsTheMarkAndKeepsTheCategory()
{
    library().setCurrentCategory(userCategory);
    play(unknownWord);
    QVERIFY(markShows());
    QCOMPARE(library().currentCategory(), userCategory);
    QCOMPARE(library().currentScaleIndex(userCategory), -1);
}

void TestLibraryMatch::allOffSelectorLeavesTheMarkHidden()
{
    QVERIFY(library().findCategoriesWithScale(octaves).isEmpty()); // no scale at all
    play(octaves);
    QCOMPARE(scale().scaleModifier(), octaves);
    QVERIFY(!markShows());
    QVERIFY(screen().isMatches());
}

void TestLibraryMatch::allOffSelectorHidesAMarkThatShows()
{
    play(unknownWord);
    QVERIFY(markShows());
    scale().setAllOff();
    QCOMPARE(scale().scaleModifier(), octaves);
    QVERIFY(!markShows());
}

void TestLibraryMatch::markIsKeptWhileTheViewIsClosed()
{
    window->showLibraryScreen(false);
    play(unknownWord);
    QVERIFY(!markShows());
    QVERIFY(!screen().isMatches());
    window->showLibraryScreen(true);
    QVERIFY(markShows());
    window->showLibraryScreen(false);
    QVERIFY(!markShows());
    play(ionian);
    QVERIFY(screen().isMatches());
    window->showLibraryScreen(true);
    QVERIFY(!markShows());
}

void TestLibraryMatch::withoutASelectorNothingChanges()
{
    play(unknownWord);
    settle();
    library().setCurrentCategory(userCategory);
    auto* selector = window->scaleController;
    window->scaleController = nullptr;
    window->checkScaleMatches(true);
    window->scaleController = selector;
    QCOMPARE(library().currentCategory(), userCategory);
    QVERIFY(!browserTimer().isActive());
}

void TestLibraryMatch::categoryThatHoldsTheWordIsKept()
{
    const QString first = category(0), second = category(4);
    QVERIFY(words(first).contains(ionian));
    const int index = library().appendScaleToCategory(second, ionian);
    QVERIFY(index > 0);
    library().setCurrentCategory(second);
    library().setCurrentScaleIndex(second, 0);
    play(ionian);
    QCOMPARE(library().currentCategory(), second);
    QCOMPARE(library().currentScaleIndex(second), index);
}

void TestLibraryMatch::firstCategoryWithTheWordIsTaken()
{
    for (const int at : {6, 4, 8})
        library().appendScaleToCategory(category(at), ionian);
    library().removeScaleFromCategory(category(0), words(category(0)).indexOf(ionian));
    library().setCurrentCategoryIndex(9);
    play(ionian);
    QCOMPARE(library().currentCagetoryIndex(), 4);
    QCOMPARE(library().currentScale(), ionian);
}

void TestLibraryMatch::indexOfTheCategoryThatIsLeftIsNone()
{
    play(ionian);
    const QString left = library().currentCategory();
    QVERIFY(library().currentScaleIndex(left) >= 0);
    QVERIFY(!words(left).contains(wholeTone));
    play(wholeTone);
    QVERIFY(library().currentCategory() != left);
    QCOMPARE(library().currentScaleIndex(left), -1);
}

void TestLibraryMatch::argumentIsNotUsed()
{
    for (const bool argument : {true, false}) {
        library().setCurrentCategoryIndex(9);
        window->checkScaleMatches(argument);
        QCOMPARE(library().currentScale(), scale().scaleModifier());
    }
}

void TestLibraryMatch::pageFollowsWhileTheViewShows()
{
    play(wholeTone);
    settle();
    QVERIFY(view().description->toPlainText().startsWith(titleOf(wholeTone)));
    QCOMPARE(button(LibraryButton::scale_label).text(), abbreviations(wholeTone).join(' '));
    play(unknownWord); // it gets a record of its own
    settle();
    QVERIFY(view().description->toPlainText().startsWith(QStringLiteral("User ")));
    QVERIFY(view().description->toPlainText().trimmed().endsWith(QStringLiteral("(no description)")));
}

void TestLibraryMatch::pageDoesNotFollowAClosedView()
{
    play(ionian);
    settle();
    const QString before = view().description->toPlainText().trimmed();
    window->showLibraryScreen(false);
    play(wholeTone);
    QVERIFY(!browserTimer().isActive());
    QCOMPARE(view().description->toPlainText().trimmed(), before);
}

void TestLibraryMatch::browserShowsTheCategoryThatIsTaken()
{
    play(wholeTone);
    settle();
    QCOMPARE(categoryList().currentRow(), library().currentCagetoryIndex());
    QCOMPARE(rows(scaleList()), titles(library().currentCategory()));
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), wholeTone);
    play(unknownWord);
    settle();
    QCOMPARE(scaleList().currentRow(), -1);
    QVERIFY(scaleList().selectedItems().isEmpty());
    QVERIFY(categoryList().currentRow() >= 0);
}

void TestLibraryMatch::everyChangeOfTheWordAsks_data()
{
    QTest::addColumn<QString>("change");
    for (const char* change : {"switch off", "switch on", "all off", "major", "key", "recall", "paste",
                               "reset", "note of a recall"})
        QTest::newRow(change) << QString::fromLatin1(change);
}

void TestLibraryMatch::everyChangeOfTheWordAsks()
{
    QFETCH(QString, change);
    if (change == QLatin1String("paste")) {
        openMenuOn(66);
        presets().copyHdr();
        openMenuOn(firstActive);
    }
    library().setCurrentCategory(userCategory); // where no played word stands
    const QMap<QString, std::function<void()>> changes{
        {QStringLiteral("switch off"), [this] { scale().setSwitchOff(true); }},
        {QStringLiteral("switch on"), [this] { scale().setSwitchOn(true); }},
        {QStringLiteral("all off"), [this] { scale().setAllOff(); }},
        {QStringLiteral("major"), [this] { scale().setIonicMajor(); }},
        {QStringLiteral("key"), [this] { scale().findKey(6)->changeState(true); }},
        {QStringLiteral("recall"), [this] { recall(66); }},
        {QStringLiteral("paste"), [this] { presets().pasteHdr(); }},
        {QStringLiteral("reset"),
         [this] {
             answer(true);
             presets().resetAll();
         }},
        {QStringLiteral("note of a recall"), [this] { sendNote(66, 100); }}};
    settle();
    screen().updateSceneDescr(QStringLiteral("another word")); // what the check corrects
    changes.value(change)();
    settle();
    QCOMPARE(categoryList().currentRow(), library().currentCagetoryIndex());
    const QString word = scale().scaleModifier();
    scale_data record;
    const bool known = library().getScaleData(word, record, DatabaseLibrary::AnyRole);
    QCOMPARE(view().description->toPlainText().section('\n', 0, 0), known ? record.title : QString());
    QCOMPARE(library().currentScale(), words(category(0)).contains(word) ? word : QString());
}

QTEST_MAIN(TestLibraryMatch)
#include "test_library_match.moc"
