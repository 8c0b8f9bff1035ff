// Scales that are deleted from a category, through the real dialog.

#include "LibraryFixture.h"

#include "screen/AlertWidget.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestLibraryDeleteScale : public LibraryFixture
{
    Q_OBJECT

private slots:

    // Deleted
    void deleteAsksWithTheTitle();
    void deleteAsksWithTheWordWithoutATitle();
    void deletedScaleLeavesItsRecord();
    void cancelledDeleteKeepsTheScale();
    void deletingTheLastScaleLeavesNoRecordsAndNoIndex();
    void deletedScaleSelectsItsNeighbour_data();
    void deletedScaleSelectsItsNeighbour();
    void withoutAScaleNothingIsAsked();
    void deletedPlayedScaleShowsTheMark();
    void noteBehindTheQuestionDeletesNothingElse();

private:
    void deleteAnswered(bool accepting)
    {
        whenOpen<AlertWidget>([accepting](AlertWidget& alert) { clickButtonOf(alert, accepting); });
        click(LibraryButton::delete_scale);
    }
};

void TestLibraryDeleteScale::deleteAsksWithTheTitle()
{
    play(unknownWord);
    addWord(unknownWord, QStringLiteral("<i>A</i> & \"B\" %1"), category(9));
    library().setCurrentCategory(category(9));
    library().setCurrentScaleIndex(category(9), 0);
    screen().refreshBrowser();
    whenOpen<AlertWidget>([&](AlertWidget& alert) {
        QCOMPARE(alert.findChild<QLabel*>(QStringLiteral("message"))->text(),
                 QStringLiteral("<h4>Are you sure you want to delete <br/>&quot;&lt;i&gt;A&lt;/i&gt; &amp; "
                                "&quot;B&quot; %1&quot;?</h4><h6>You can't undo this action.</h6>"));
        QCOMPARE(alert.findChild<QPushButton*>(QStringLiteral("okButton"))->text(), QStringLiteral("Delete"));
        QCOMPARE(alert.findChild<QPushButton*>(QStringLiteral("cancelButton"))->text(),
                 QStringLiteral("Cancel"));
    });
    click(LibraryButton::delete_scale);
    QCOMPARE(seen, 1);
}

void TestLibraryDeleteScale::deleteAsksWithTheWordWithoutATitle()
{
    library().insertScaleToCategory(category(9), 0, unknownWord);
    library().setCurrentScaleIndex(category(9), 0);
    showCategory(9);
    whenOpen<AlertWidget>([&](AlertWidget& alert) {
        QVERIFY(alert.findChild<QLabel*>(QStringLiteral("message"))
                    ->text()
                    .contains(QStringLiteral("&quot;") + unknownWord + QStringLiteral("&quot;?")));
    });
    click(LibraryButton::delete_scale);
    QCOMPARE(seen, 1);
}

void TestLibraryDeleteScale::deletedScaleLeavesItsRecord()
{
    play(unknownWord);
    showCategory(2);
    clickRow(scaleList(), 0);
    const QString gone = words(category(2)).first();
    library().setCurrentScaleIndex(category(2), 0);
    screen().refreshBrowser();
    deleteAnswered(true);
    QVERIFY(!words(category(2)).contains(gone));
    QCOMPARE(rows(scaleList()), titles(category(2)));
    QVERIFY(library().containsScale(gone, DatabaseLibrary::LibraryRole));
}

void TestLibraryDeleteScale::cancelledDeleteKeepsTheScale()
{
    play(ionian);
    settle();
    const auto before = wholeLibrary();
    deleteAnswered(false);
    QCOMPARE(seen, 1);
    QCOMPARE(wholeLibrary(), before);
    QCOMPARE(library().currentScale(), ionian);
}

void TestLibraryDeleteScale::deletingTheLastScaleLeavesNoRecordsAndNoIndex()
{
    const QString blues = category(4), word = words(category(4)).first();
    QCOMPARE(words(blues).size(), 1);
    play(word);
    settle();
    QCOMPARE(library().currentCategory(), blues);
    deleteAnswered(true);
    QCOMPARE(seen, 1);
    QVERIFY(library().isEmptyCategory(blues));
    QCOMPARE(library().currentScaleIndex(blues), -1);
    QCOMPARE(library().currentCategory(), blues);
    QCOMPARE(rows(scaleList()), QStringList{QStringLiteral("(no records)")});
    QCOMPARE(scaleList().currentRow(), -1);
    QVERIFY(!button(LibraryButton::delete_scale).isEnabled());
    settle();
    QCOMPARE(rows(scaleList()), QStringList{QStringLiteral("(no records)")});
}

void TestLibraryDeleteScale::deletedScaleSelectsItsNeighbour_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("then");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("middle") << 3 << 3;
    QTest::newRow("last") << 6 << 5;
}

// Seen before the played scale, which is another one, takes the index along.
void TestLibraryDeleteScale::deletedScaleSelectsItsNeighbour()
{
    QFETCH(int, row);
    QFETCH(int, then);
    scale().setSwitchOff(true);
    play(unknownWord);
    showCategory(0);
    clickRow(scaleList(), row);
    QList<int> rowsShown;
    const QObject here; // ends the counting
    connect(&scaleList(), &QListWidget::currentRowChanged, &here, [&](int now) { rowsShown << now; });
    deleteAnswered(true);
    QCOMPARE(words(category(0)).size(), 6);
    QVERIFY(!rowsShown.isEmpty());
    QCOMPARE(rowsShown.last(), then);
}

void TestLibraryDeleteScale::withoutAScaleNothingIsAsked()
{
    showCategory(9);
    QCOMPARE(whatOpens([this] {
                 screen().deleteScale();
                 screen().copyScale();
                 screen().moveScale();
             }),
             QString());
}

void TestLibraryDeleteScale::deletedPlayedScaleShowsTheMark()
{
    play(ionian);
    settle();
    QVERIFY(!view().mark->isVisible());
    deleteAnswered(true);
    QVERIFY(!words(category(0)).contains(ionian));
    QVERIFY(view().mark->isVisible());
    QCOMPARE(library().currentScaleIndex(category(0)), -1);
}

void TestLibraryDeleteScale::noteBehindTheQuestionDeletesNothingElse()
{
    play(ionian);
    settle();
    const QList<QString> before = words(category(0));
    whenOpen<AlertWidget>([this](AlertWidget& alert) {
        play(lydian); // the same category, another scale
        clickButtonOf(alert, true);
    });
    click(LibraryButton::delete_scale);
    QList<QString> after = before;
    after.removeOne(ionian);
    QCOMPARE(words(category(0)), after);
    QCOMPARE(library().currentScale(), lydian);
}

QTEST_MAIN(TestLibraryDeleteScale)
#include "test_library_delete_scale.moc"
