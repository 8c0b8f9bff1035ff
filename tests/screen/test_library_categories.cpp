// New, renamed and deleted categories, through the real dialogs.

#include "LibraryFixture.h"

#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

QString textOf(const QWidget& dialog, const char* button)
{
    return dialog.findChild<QPushButton*>(QLatin1String(button))->text();
}

} // namespace

class TestLibraryCategories : public LibraryFixture
{
    Q_OBJECT

private slots:
    // New
    void newCategoryAsksForItsName();
    void newCategoryIsInsertedAndShown();
    void cancelledNewCategoryIsNone();
    void blankNameCreatesNothing_data();
    void blankNameCreatesNothing();
    void takenNameOnlyShowsTheCategory();

    // Renamed
    void renameAsksWithTheOldName();
    void renameKeepsTheScalesAndThePlace();
    void renameKeepsTheRememberedScale();
    void refusedRenamesChangeNothing_data();
    void refusedRenamesChangeNothing();
    void doubleClickRenames();

    // Deleted
    void deleteAsksInItsWords_data();
    void deleteAsksInItsWords();
    void cancelledDeleteKeepsTheCategory();
    void deletedCategoryGoesWithItsScalesButNotTheirRecords();
    void deletingTheLastInTheListShowsTheOneBefore();
    void everyFactoryCategoryCanBeDeletedButTheLastRemaining();
    void withOneCategoryTheMinusButtonDoesNothing();
    void deletedCategoryOfThePlayedScaleShowsTheMark();
    void deleteBringsHeadersUpToDate();
    void noteBehindTheQuestionIsHeard();

private:
    QStringList state() const
    {
        QStringList lines(library().categories().toList());
        for (const QString& name : library().categories())
            lines << name + QStringList(words(name)).join(',') +
                         QString::number(library().currentScaleIndex(name));
        return lines << library().currentCategory();
    }
    void deleteAnswered(bool accepting)
    {
        whenOpen<AlertWidget>([accepting](AlertWidget& alert) { clickButtonOf(alert, accepting); });
        click(LibraryButton::delete_category);
    }
};

void TestLibraryCategories::newCategoryAsksForItsName()
{
    whenOpen<ChangeDialog>([](ChangeDialog& dialog) {
        QCOMPARE(dialog.label(), QStringLiteral("Choose a name for the new Category:"));
        QCOMPARE(dialog.text(), QString());
        QCOMPARE(textOf(dialog, "okButton"), QStringLiteral("Create"));
        QCOMPARE(textOf(dialog, "cancelButton"), QStringLiteral("Cancel"));
    });
    click(LibraryButton::add_category);
    QCOMPARE(seen, 1);
}

void TestLibraryCategories::newCategoryIsInsertedAndShown()
{
    giveName(QStringLiteral("2b - <New> & \"odd\""));
    click(LibraryButton::add_category);
    QCOMPARE(seen, 1);
    QCOMPARE(library().categoryCount(), 11);
    QCOMPARE(category(2), QStringLiteral("2b - <New> & \"odd\"")); // in its collated place
    QCOMPARE(library().currentCagetoryIndex(), 2);
    QCOMPARE(categoryList().currentRow(), 2);
    QCOMPARE(rows(categoryList()), QStringList(library().categories().toList()));
    QCOMPARE(rows(scaleList()), QStringList{QStringLiteral("(no records)")});
}

void TestLibraryCategories::cancelledNewCategoryIsNone()
{
    const QStringList before = state();
    giveName(QStringLiteral("New"), false);
    click(LibraryButton::add_category);
    QCOMPARE(seen, 1);
    QCOMPARE(state(), before);
}

void TestLibraryCategories::blankNameCreatesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << QStringLiteral("   ");
}

void TestLibraryCategories::blankNameCreatesNothing()
{
    QFETCH(QString, name);
    const QStringList before = state();
    giveName(name);
    click(LibraryButton::add_category);
    giveName(name);
    click(LibraryButton::rename_category);
    QCOMPARE(seen, 2);
    QCOMPARE(state(), before);
}

void TestLibraryCategories::takenNameOnlyShowsTheCategory()
{
    const auto before = library().categories();
    giveName(category(5));
    click(LibraryButton::add_category);
    QCOMPARE(library().categories(), before);
    QCOMPARE(categoryList().currentRow(), 5);
    QCOMPARE(rows(scaleList()), titles(category(5)));
}

void TestLibraryCategories::renameAsksWithTheOldName()
{
    showCategory(3);
    whenOpen<ChangeDialog>([this](ChangeDialog& dialog) {
        QCOMPARE(dialog.label(), QStringLiteral("Choose a new name"));
        QCOMPARE(dialog.text(), category(3));
        QCOMPARE(textOf(dialog, "okButton"), QStringLiteral("Rename"));
    });
    click(LibraryButton::rename_category);
    QCOMPARE(seen, 1);
}

void TestLibraryCategories::renameKeepsTheScalesAndThePlace()
{
    showCategory(3);
    const QList<QString> before = words(category(3));
    giveName(QStringLiteral("Zebra"));
    click(LibraryButton::rename_category);
    QCOMPARE(category(3), QStringLiteral("Zebra"));
    QCOMPARE(library().categoryCount(), 10);
    QCOMPARE(words(QStringLiteral("Zebra")), before);
    QCOMPARE(library().currentCategory(), QStringLiteral("Zebra"));
    QCOMPARE(categoryList().item(3)->text(), QStringLiteral("Zebra"));
    QCOMPARE(categoryList().currentRow(), 3);
}

void TestLibraryCategories::renameKeepsTheRememberedScale()
{
    showCategory(2);
    library().setCurrentScaleIndex(category(2), 1);
    giveName(QStringLiteral("Zebra"));
    click(LibraryButton::rename_category);
    QCOMPARE(library().currentScaleIndex(QStringLiteral("Zebra")), 1);
    QCOMPARE(scaleList().currentRow(), 1);
}

void TestLibraryCategories::refusedRenamesChangeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepting");
    QTest::newRow("cancelled") << QStringLiteral("Zebra") << false;
    QTest::newRow("the same") << QStringLiteral("1 - Major Scale Modes") << true;
    QTest::newRow("taken") << QStringLiteral("10 - User Scales") << true;
}

void TestLibraryCategories::refusedRenamesChangeNothing()
{
    QFETCH(QString, name);
    QFETCH(bool, accepting);
    showCategory(0);
    const QStringList before = state();
    giveName(name, accepting);
    click(LibraryButton::rename_category);
    QCOMPARE(seen, 1);
    QCOMPARE(state(), before);
}

void TestLibraryCategories::doubleClickRenames()
{
    giveName(QStringLiteral("Zebra"));
    const QPoint place = categoryList().visualItemRect(categoryList().item(4)).center();
    QTest::mouseClick(categoryList().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(categoryList().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(seen, 1);
    QCOMPARE(category(4), QStringLiteral("Zebra"));
}

void TestLibraryCategories::deleteAsksInItsWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("html");
    QTest::newRow("plain") << "Plain"
                           << "Plain";
    QTest::newRow("markup") << "<b>A</b> & \"B\""
                            << "&lt;b&gt;A&lt;/b&gt; &amp; &quot;B&quot;";
    const QString forty(40, QLatin1Char('<'));
    QTest::newRow("as long as there is room") << forty << forty.toHtmlEscaped();
    QTest::newRow("too long") << forty + QLatin1Char('x')
                              << forty.left(39).toHtmlEscaped() + QChar(0x2026); // cut, then escaped
    const QString clef = QString::fromUtf8("\U0001D11E"); // two units, which stay together
    QTest::newRow("cut before a pair")
        << forty.left(38) + clef + QStringLiteral("xyz") << forty.left(38).toHtmlEscaped() + QChar(0x2026);
    QTest::newRow("cut behind a pair") << forty.left(37) + clef + QStringLiteral("xyz")
                                       << forty.left(37).toHtmlEscaped() + clef + QChar(0x2026);
    QTest::newRow("place mark") << "50 %1 %2"
                                << "50 %1 %2";
}

void TestLibraryCategories::deleteAsksInItsWords()
{
    QFETCH(QString, name);
    QFETCH(QString, html);
    library().insertCategory(name);
    library().setCurrentCategory(name);
    screen().refreshBrowser();
    whenOpen<AlertWidget>([&](AlertWidget& alert) {
        QCOMPARE(alert.findChild<QLabel*>(QStringLiteral("message"))->text(),
                 QStringLiteral("<h4>Are you sure you want to delete <br/>&quot;") + html +
                     QStringLiteral("&quot;?</h4><h6>You can't undo this action.</h6>"));
        QCOMPARE(textOf(alert, "okButton"), QStringLiteral("Delete"));
        QCOMPARE(textOf(alert, "cancelButton"), QStringLiteral("Cancel"));
        QVERIFY(!alert.findChild<QLabel*>(QStringLiteral("title")));
        clickButtonOf(alert, true);
    });
    click(LibraryButton::delete_category);
    QCOMPARE(seen, 1);
    QVERIFY(!library().categories().contains(name));
}

void TestLibraryCategories::cancelledDeleteKeepsTheCategory()
{
    const QStringList before = state();
    deleteAnswered(false);
    QCOMPARE(seen, 1);
    QCOMPARE(state(), before);
}

void TestLibraryCategories::deletedCategoryGoesWithItsScalesButNotTheirRecords()
{
    showCategory(4); // Blues
    const QString gone = category(4), next = category(5);
    const QList<QString> scales = words(gone);
    library().setCurrentScaleIndex(library().currentCategory(), -1);
    deleteAnswered(true);
    QVERIFY(!library().categories().contains(gone));
    QCOMPARE(library().categoryCount(), 9);
    QCOMPARE(rows(categoryList()), QStringList(library().categories().toList()));
    for (const QString& word : scales)
        QVERIFY(library().containsScale(word, DatabaseLibrary::LibraryRole));
}

// The played scale stands nowhere, so that nothing else takes the browser along.
void TestLibraryCategories::deletingTheLastInTheListShowsTheOneBefore()
{
    play(unknownWord);
    showCategory(9);
    deleteAnswered(true);
    QCOMPARE(library().currentCagetoryIndex(), 8);
    QCOMPARE(categoryList().currentRow(), 8);
    library().setCurrentCategoryIndex(3);
    const QString next = category(4);
    deleteAnswered(true);
    QCOMPARE(library().currentCagetoryIndex(), 3); // the next one has come there
    QCOMPARE(library().currentCategory(), next);
    QCOMPARE(rows(scaleList()), titles(next));
}

void TestLibraryCategories::everyFactoryCategoryCanBeDeletedButTheLastRemaining()
{
    for (int left = 9; left > 0; --left) {
        showCategory(0);
        deleteAnswered(true);
        QCOMPARE(library().categoryCount(), left);
    }
    QCOMPARE(seen, 9);
    QCOMPARE(whatOpens([this] { click(LibraryButton::delete_category); }), QString());
    QCOMPARE(library().categoryCount(), 1);
}

void TestLibraryCategories::withOneCategoryTheMinusButtonDoesNothing()
{
    library().clear();
    library().insertCategory(QStringLiteral("Only"));
    library().setCurrentCategoryIndex(0);
    addWord(ionian, QStringLiteral("Ionian"), QStringLiteral("Only"));
    const QStringList before = state();
    QCOMPARE(whatOpens([this] { click(LibraryButton::delete_category); }), QString());
    QCOMPARE(state(), before);
    library().insertCategory(QStringLiteral("Other"));
    deleteAnswered(true);
    QCOMPARE(library().categories(), QVector<QString>{QStringLiteral("Other")});
}

void TestLibraryCategories::deletedCategoryOfThePlayedScaleShowsTheMark()
{
    play(ionian);
    QCOMPARE(library().currentCagetoryIndex(), 0);
    QVERIFY(!view().mark->isVisible());
    deleteAnswered(true);
    QVERIFY(view().mark->isVisible());
    settle();
    QVERIFY(view().description->toPlainText().startsWith(titleOf(ionian))); // its record is there
}

void TestLibraryCategories::deleteBringsHeadersUpToDate()
{
    setRecord(66, scaleRecord(ionian));
    header(66)->record.nameScenic1 = QStringLiteral("stale");
    header(66)->record.nameScenic2 = QStringLiteral("stale");
    showCategory(4);
    deleteAnswered(true);
    QCOMPARE(names(header(66)), abbreviations(ionian));
}

// The note takes the browser to a category behind the one that is deleted; the next one holds its scale too.
void TestLibraryCategories::noteBehindTheQuestionIsHeard()
{
    library().appendScaleToCategory(category(3), wholeTone);
    play(ionian);
    showCategory(0);
    const QString asked = category(0), played = category(2);
    whenOpen<AlertWidget>([this](AlertWidget& alert) {
        play(wholeTone);
        clickButtonOf(alert, true);
    });
    click(LibraryButton::delete_category);
    QVERIFY(!library().categories().contains(asked));
    QCOMPARE(library().categoryCount(), 9);
    QCOMPARE(library().currentCategory(), played);
    QCOMPARE(library().currentScale(), wholeTone);
}

QTEST_MAIN(TestLibraryCategories)
#include "test_library_categories.moc"
