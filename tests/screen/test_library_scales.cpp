// Scales that are added to the library and edited, through the real dialogs.

#include "LibraryFixture.h"

#include "screen/AddWindow.h"
#include "screen/EditWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTextEdit>
#include <QtTest>

namespace {

template <typename Dialog>
QStringList namesIn(const Dialog& dialog)
{
    return {dialog.abbr1(), dialog.abbr2(), dialog.name(), dialog.description()};
}

void typeInto(const QWidget& dialog, const char* field, const QString& text)
{
    if (auto* edit = dialog.findChild<QTextEdit*>(QLatin1String(field)))
        edit->setPlainText(text);
    else
        dialog.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
}

} // namespace

class TestLibraryScales : public LibraryFixture
{
    Q_OBJECT

private slots:
    // Added
    void addWindowComesWithTheNamesOfTheRecord_data();
    void addWindowComesWithTheNamesOfTheRecord();
    void addWindowOffersTheCategories();
    void addedScaleIsARecordInTheChosenCategory();
    void customRecordBecomesALibraryRecord();
    void wordThatIsThereIsNotAddedAgain();
    void cancelledAddChangesNothing();
    void addTakesThePlayedScaleNotTheShownOne();
    void addBringsHeadersUpToDate();

    // Edited
    void editWindowComesWithTheRecord_data();
    void editWindowComesWithTheRecord();
    void editedFieldsAreStored();
    void cancelledEditChangesNothing();
    void editOfAScaleInNoCategoryAddsIt();
    void editOfNoWordDoesNothing();
    void labelEditsThePlayedScale();

private:
};

void TestLibraryScales::addWindowComesWithTheNamesOfTheRecord_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("role");
    QTest::addColumn<QStringList>("names");
    const QStringList mine{QStringLiteral("Ab"), QStringLiteral("Cd"), QStringLiteral("My <scale>"),
                           QStringLiteral("text")};
    QTest::newRow("library") << unknownWord << static_cast<int>(DatabaseLibrary::LibraryRole) << mine;
    QTest::newRow("custom") << unknownWord << static_cast<int>(DatabaseLibrary::CustomRole) << mine;
    QTest::newRow("unknown") << unknownWord << -1
                             << QStringList{QStringLiteral("User"), QStringLiteral("1"),
                                            QStringLiteral("User 1"), QString()};
}

void TestLibraryScales::addWindowComesWithTheNamesOfTheRecord()
{
    QFETCH(QString, word);
    QFETCH(int, role);
    QFETCH(QStringList, names);
    emptyHeaders();
    presets().activeHeader = nullptr; // which would make a custom record
    if (role >= 0)
        library().setScaleData(word, {word, names[0], names[1], names[2], names[3]},
                               static_cast<DatabaseLibrary::UserRole>(role));
    setScale(word);
    window->checkScaleMatches(true);
    whenOpen<AddWindow>([&](AddWindow& dialog) { QCOMPARE(namesIn(dialog), names); });
    click(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
}

void TestLibraryScales::addWindowOffersTheCategories()
{
    play(unknownWord);
    showCategory(6);
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        const auto* box = dialog.findChild<QComboBox*>(QStringLiteral("category"));
        QStringList offered;
        for (int i = 0; i < box->count(); ++i)
            offered << box->itemText(i);
        QCOMPARE(offered, QStringList(library().categories().toList()));
        QCOMPARE(dialog.category(), category(6));
    });
    click(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
}

void TestLibraryScales::addedScaleIsARecordInTheChosenCategory()
{
    play(unknownWord);
    QVERIFY(view().mark->isVisible());
    showCategory(0);
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        typeInto(dialog, "title", QStringLiteral("My <scale>"));
        typeInto(dialog, "description", QStringLiteral("one\ntwo"));
        dialog.setAbbr1(QStringLiteral("Ab"));
        dialog.setAbbr2(QStringLiteral("Cd"));
        dialog.setCurrentCategory(category(4));
        clickButtonOf(dialog, true);
    });
    click(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
    QCOMPARE(storedNames(unknownWord),
             (QStringList{QStringLiteral("Ab"), QStringLiteral("Cd"), QStringLiteral("My <scale>"),
                          QStringLiteral("one\ntwo")}));
    QVERIFY(library().containsScale(unknownWord, DatabaseLibrary::LibraryRole));
    QCOMPARE(words(category(4)).last(), unknownWord);
    QCOMPARE(words(category(4)).size(), 2);
    QCOMPARE(library().findCategoriesWithScale(unknownWord), QList<QString>{category(4)});
    QCOMPARE(categoryList().currentRow(), 4);
    QCOMPARE(scaleList().currentRow(), 1);
    QCOMPARE(scaleList().item(1)->text(), QStringLiteral("My <scale>"));
    QVERIFY(!view().mark->isVisible());
    settle();
    QCOMPARE(view().description->toPlainText().trimmed(), QStringLiteral("My <scale>\nAb Cd\none\ntwo"));
}

void TestLibraryScales::customRecordBecomesALibraryRecord()
{
    setScale(unknownWord);
    scale().setSwitchOn(true); // the active header gives the word a record
    presets().storeScale(true, unknownWord);
    window->checkScaleMatches(true);
    QVERIFY(library().isCustomScale(unknownWord));
    whenOpen<AddWindow>([](AddWindow& dialog) { clickButtonOf(dialog, true); });
    click(LibraryButton::add_scale);
    QVERIFY(!library().isCustomScale(unknownWord));
    QVERIFY(library().customScales().isEmpty() || !library().customScales().contains(unknownWord));
    QVERIFY(library().containsScale(unknownWord, DatabaseLibrary::LibraryRole));
    QCOMPARE(library().findCategoriesWithScale(unknownWord).size(), 1);
}

void TestLibraryScales::wordThatIsThereIsNotAddedAgain()
{
    play(ionian);
    const QList<QString> before = words(category(0));
    const auto add = [this](int to) {
        whenOpen<AddWindow>([this, to](AddWindow& dialog) {
            dialog.setCurrentCategory(category(to));
            clickButtonOf(dialog, true);
        });
        click(LibraryButton::add_scale);
    };
    add(0);
    QCOMPARE(words(category(0)), before);
    add(4);
    QCOMPARE(words(category(0)), before);
    QCOMPARE(words(category(4)).count(ionian), 1);
    add(4);
    QCOMPARE(words(category(4)).count(ionian), 1);
    QCOMPARE(seen, 3);
}

void TestLibraryScales::cancelledAddChangesNothing()
{
    play(unknownWord);
    const auto before = wholeLibrary();
    whenOpen<AddWindow>([](AddWindow& dialog) {
        typeInto(dialog, "title", QStringLiteral("Another"));
        clickButtonOf(dialog, false);
    });
    click(LibraryButton::add_scale);
    QCOMPARE(seen, 1);
    QCOMPARE(wholeLibrary(), before);
}

void TestLibraryScales::addTakesThePlayedScaleNotTheShownOne()
{
    scale().setSwitchOff(true);
    play(unknownWord);
    showCategory(0);
    clickRow(scaleList(), 2);
    QVERIFY(view().description->toPlainText().startsWith(scaleList().item(2)->text()));
    whenOpen<AddWindow>([](AddWindow& dialog) {
        typeInto(dialog, "title", QStringLiteral("Played"));
        clickButtonOf(dialog, true);
    });
    click(LibraryButton::add_scale);
    QCOMPARE(titleOf(unknownWord), QStringLiteral("Played"));
    QCOMPARE(library().currentScale(), unknownWord);
}

void TestLibraryScales::addBringsHeadersUpToDate()
{
    setRecord(66, scaleRecord(unknownWord));
    play(unknownWord);
    whenOpen<AddWindow>([](AddWindow& dialog) {
        dialog.setAbbr1(QStringLiteral("Ab"));
        dialog.setAbbr2(QStringLiteral("Cd"));
        clickButtonOf(dialog, true);
    });
    click(LibraryButton::add_scale);
    QCOMPARE(names(header(66)), (QStringList{QStringLiteral("Ab"), QStringLiteral("Cd")}));
}

void TestLibraryScales::editWindowComesWithTheRecord_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {8, 9, 12, 13})
        QTest::addRow("%d", code) << code;
}

void TestLibraryScales::editWindowComesWithTheRecord()
{
    QFETCH(int, code);
    const QString word = words(QStringLiteral("7 - Harmonic Scales")).value(0); // its names fit
    play(word);
    settle();
    whenOpen<EditWindow>([&](EditWindow& dialog) { QCOMPARE(namesIn(dialog), storedNames(word)); });
    click(static_cast<LibraryButton::Code>(code));
    QCOMPARE(seen, 1);
}

void TestLibraryScales::editedFieldsAreStored()
{
    play(lydian);
    settle();
    const auto at = words(category(0)).indexOf(lydian);
    whenOpen<EditWindow>([](EditWindow& dialog) {
        typeInto(dialog, "title", QStringLiteral("New & <title>"));
        typeInto(dialog, "description", QStringLiteral("\u00fc\n\u266a"));
        dialog.setAbbr1(QStringLiteral("Ab"));
        dialog.setAbbr2(QStringLiteral("Cd"));
        clickButtonOf(dialog, true);
    });
    click(LibraryButton::edit_description);
    QCOMPARE(seen, 1);
    QCOMPARE(storedNames(lydian),
             (QStringList{QStringLiteral("Ab"), QStringLiteral("Cd"), QStringLiteral("New & <title>"),
                          QStringLiteral("\u00fc\n\u266a")}));
    QCOMPARE(words(category(0)).indexOf(lydian), at);
    QCOMPARE(scaleList().item(at)->text(), QStringLiteral("New & <title>"));
    QCOMPARE(view().description->toPlainText().trimmed(),
             QStringLiteral("New & <title>\nAb Cd\n\u00fc\n\u266a"));
    QCOMPARE(button(LibraryButton::edit_abbr1).text(), QStringLiteral("Ab"));
    QCOMPARE(button(LibraryButton::edit_abbr2).text(), QStringLiteral("Cd"));
    QCOMPARE(button(LibraryButton::scale_label).text(), QStringLiteral("Ab Cd"));
    QVERIFY(library().containsScale(lydian, DatabaseLibrary::LibraryRole));
}

void TestLibraryScales::cancelledEditChangesNothing()
{
    const auto before = wholeLibrary();
    whenOpen<EditWindow>([](EditWindow& dialog) {
        typeInto(dialog, "title", QStringLiteral("Another"));
        clickButtonOf(dialog, false);
    });
    click(LibraryButton::edit_description);
    QCOMPARE(seen, 1);
    QCOMPARE(wholeLibrary(), before);
}

void TestLibraryScales::editOfAScaleInNoCategoryAddsIt()
{
    play(unknownWord);
    settle();
    for (const auto code : {LibraryButton::edit_abbr1, LibraryButton::edit_abbr2, LibraryButton::scale_label,
                            LibraryButton::edit_description})
        QVERIFY(whatOpens([&] { click(code); }).startsWith(QStringLiteral("AddWindow")));
    whenOpen<AddWindow>([this](AddWindow& dialog) {
        dialog.setCurrentCategory(category(9));
        clickButtonOf(dialog, true);
    });
    click(LibraryButton::edit_description);
    QCOMPARE(words(category(9)), QList<QString>{unknownWord});
}

void TestLibraryScales::editOfNoWordDoesNothing()
{
    QCOMPARE(whatOpens([this] { screen().openEditSceneDlg(QString(), 1); }), QString());
    window->dialogOpen = true;
    QCOMPARE(whatOpens([this] { screen().openEditSceneDlg(ionian, 1); }), QString());
    window->dialogOpen = false;
    QVERIFY(!whatOpens([this] { screen().openEditSceneDlg(ionian, 1); }).isEmpty());
}

void TestLibraryScales::labelEditsThePlayedScale()
{
    scale().setSwitchOff(true);
    play(ionian);
    showCategory(4);
    clickRow(scaleList(), 0);
    const QString blues = words(category(4)).first();
    whenOpen<EditWindow>([this](EditWindow& dialog) { QCOMPARE(dialog.name(), titleOf(ionian)); });
    click(LibraryButton::scale_label);
    whenOpen<EditWindow>([&](EditWindow& dialog) { QCOMPARE(dialog.name(), titleOf(blues)); });
    click(LibraryButton::edit_abbr1);
    QCOMPARE(seen, 2);
}

QTEST_MAIN(TestLibraryScales)
#include "test_library_scales.moc"
