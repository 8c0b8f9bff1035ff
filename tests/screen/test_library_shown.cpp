// What the browser shows, and when it is built anew: not for notes, not before notes that wait, not for
// nothing.

#include "LibraryFixture.h"

#include <QDeadlineTimer>
#include <QTextDocument>
#include <QtTest>

#include <thread>

namespace {

/// Counts what is rebuilt.
class Rebuilds : public QObject
{
public:
    explicit Rebuilds(LibraryView& view)
    {
        for (const QAbstractItemView* list : {static_cast<QAbstractItemView*>(view.categories),
                                              static_cast<QAbstractItemView*>(view.scales)}) {
            connect(list->model(), &QAbstractItemModel::rowsInserted, this, [this] { note(); });
            connect(list->model(), &QAbstractItemModel::rowsRemoved, this, [this] { note(); });
            connect(list->model(), &QAbstractItemModel::modelReset, this, [this] { note(); });
            connect(list->model(), &QAbstractItemModel::dataChanged, this, [this] { note(); });
        }
        connect(view.description->document(), &QTextDocument::contentsChanged, this, [this] { note(); });
    }

    int count = 0;
    std::function<void()> atFirst = [] {};

private:
    void note()
    {
        if (count++ == 0)
            atFirst();
    }
};

} // namespace

class TestLibraryShown : public LibraryFixture
{
    Q_OBJECT

private slots:
    // The lists
    void categoriesStandInTheLibrarysOrder();
    void withoutACategoryItSaysSo();
    void scalesStandInTheirCategorysOrder();
    void emptyCategorySaysSo();
    void wordWithoutATitleShowsItself();
    void titleIsShownAsItIs();
    void currentRowsAreTheLibrarys();
    void noScaleSelectsNoRow();

    // When
    void browserWaitsForItsTimer();
    void handIsFollowedAtOnce();
    void samePlayedNotesRebuildNothing();
    void sameUpdateRebuildsNothing();
    void anotherScaleOfACategoryKeepsItsRows();
    void anotherUpdateIsNotPutOff();
    void notesThatWaitArePlayedFirst();
    void closingForgetsTheUpdate();
};

void TestLibraryShown::categoriesStandInTheLibrarysOrder()
{
    QCOMPARE(rows(categoryList()), QStringList(library().categories().toList()));
    QCOMPARE(categoryList().count(), 10);
    QCOMPARE(rows(categoryList()).first(), QStringLiteral("1 - Major Scale Modes"));
    QCOMPARE(rows(categoryList()).last(), QStringLiteral("10 - User Scales"));
    for (int row = 0; row < 10; ++row)
        QCOMPARE(categoryList().keyAt(row), category(row));
}

void TestLibraryShown::withoutACategoryItSaysSo()
{
    library().clear();
    screen().updateCategoryItems();
    QCOMPARE(rows(categoryList()), QStringList{QStringLiteral("(no categories)")});
    QCOMPARE(categoryList().keyAt(0), QString());
    QVERIFY(!(categoryList().item(0)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsSelectable)));
    screen().refreshBrowser();
    QCOMPARE(rows(categoryList()), QStringList{QStringLiteral("(no categories)")});
    QCOMPARE(rows(scaleList()), QStringList{QStringLiteral("(no records)")});
    library().loadDefault();
    screen().refreshBrowser();
    QCOMPARE(categoryList().count(), 10);
}

void TestLibraryShown::scalesStandInTheirCategorysOrder()
{
    for (int row = 0; row < 9; ++row) {
        showCategory(row);
        QCOMPARE(rows(scaleList()), titles(category(row)));
        for (int i = 0; i < scaleList().count(); ++i)
            QCOMPARE(scaleList().keyAt(i), words(category(row)).at(i));
    }
    screen().updateNameItems(category(0), 3);
    QCOMPARE(rows(scaleList()), titles(category(0)));
    QCOMPARE(scaleList().currentRow(), 3);
}

void TestLibraryShown::emptyCategorySaysSo()
{
    showCategory(9);
    QCOMPARE(rows(scaleList()), QStringList{QStringLiteral("(no records)")});
    QCOMPARE(scaleList().keyAt(0), QString());
    QVERIFY(!(scaleList().item(0)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsSelectable)));
    QCOMPARE(scaleList().currentRow(), -1);
    showCategory(0);
    QCOMPARE(scaleList().count(), 7);
}

void TestLibraryShown::wordWithoutATitleShowsItself()
{
    library().insertScaleToCategory(category(9), 0, unknownWord);
    addWord(otherUnknownWord, QString(), category(9));
    showCategory(9);
    QCOMPARE(rows(scaleList()), (QStringList{unknownWord, otherUnknownWord}));
}

void TestLibraryShown::titleIsShownAsItIs()
{
    const QString hard = QStringLiteral("<b>A & \"B\"</b> &c");
    addWord(unknownWord, hard, category(9));
    library().insertCategory(hard);
    showCategory(9);
    QCOMPARE(rows(scaleList()), QStringList{hard});
    QVERIFY(rows(categoryList()).contains(hard));
}

void TestLibraryShown::currentRowsAreTheLibrarys()
{
    library().setCurrentCategoryIndex(2);
    library().setCurrentScaleIndex(category(2), 1);
    screen().refreshBrowser();
    QCOMPARE(categoryList().currentRow(), 2);
    QCOMPARE(scaleList().currentRow(), 1);
    QCOMPARE(rows(scaleList()), titles(category(2)));
    QVERIFY(view().description->toPlainText().startsWith(titleOf(words(category(2)).at(1))));
}

void TestLibraryShown::noScaleSelectsNoRow()
{
    library().setCurrentScaleIndex(library().currentCategory(), -1);
    screen().refreshBrowser();
    QCOMPARE(scaleList().currentRow(), -1);
    QVERIFY(scaleList().selectedItems().isEmpty());
}

void TestLibraryShown::browserWaitsForItsTimer()
{
    Rebuilds rebuilds(view());
    play(wholeTone);
    QVERIFY(browserTimer().isActive());
    QCOMPARE(browserTimer().interval(), 40);
    QCOMPARE(rebuilds.count, 0);
    settle();
    QVERIFY(rebuilds.count > 0);
    QCOMPARE(rows(scaleList()), titles(library().currentCategory()));
}

void TestLibraryShown::handIsFollowedAtOnce()
{
    clickRow(categoryList(), 3);
    QVERIFY(!browserTimer().isActive());
    QCOMPARE(rows(scaleList()), titles(category(3)));
}

void TestLibraryShown::samePlayedNotesRebuildNothing()
{
    play(ionian);
    settle();
    Rebuilds rebuilds(view());
    for (int i = 0; i < 20; ++i) {
        sendNote(60 + 2 * (i % 3), 100);
        sendNote(60 + 2 * (i % 3), 0);
        window->checkScaleMatches(true);
        screen().updateBrowser();
        QVERIFY(!browserTimer().isActive());
    }
    QCoreApplication::processEvents();
    QCOMPARE(rebuilds.count, 0);
    play(wholeTone); // the counter counts
    settle();
    QVERIFY(rebuilds.count > 0);
}

void TestLibraryShown::sameUpdateRebuildsNothing()
{
    Rebuilds rebuilds(view());
    screen().refreshBrowser();
    screen().updateNameItems(library().currentCategory(), scaleList().currentRow());
    QCOMPARE(rebuilds.count, 0);
}

void TestLibraryShown::anotherScaleOfACategoryKeepsItsRows()
{
    play(ionian);
    settle();
    int rowChanges = 0;
    const QObject here; // ends the counting
    connect(scaleList().model(), &QAbstractItemModel::rowsInserted, &here, [&] { ++rowChanges; });
    connect(scaleList().model(), &QAbstractItemModel::modelReset, &here, [&] { ++rowChanges; });
    play(lydian);
    settle();
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), lydian);
    QCOMPARE(rowChanges, 0);
}

void TestLibraryShown::anotherUpdateIsNotPutOff()
{
    play(wholeTone);
    for (const QDeadlineTimer soon(15); !soon.hasExpired();) // no event may come
        continue;
    play(lydian);
    QVERIFY(browserTimer().remainingTime() <= 30); // a stream of changes must not hold it for ever
    settle();
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), lydian);
}

// From the thread of a port, as the notes come: ten notes, a recall, ten notes.
void TestLibraryShown::notesThatWaitArePlayedFirst()
{
    settle();
    Rebuilds rebuilds(view());
    std::size_t playedBefore = 0;
    rebuilds.atFirst = [&] { playedBefore = port->messages().size(); };
    port->clear();
    const int recalled = 66; // Aeolian
    std::thread player([&] {
        for (int i = 0; i < 20; ++i) {
            if (i == 10) {
                sendNote(recalled, 100);
                sendNote(recalled, 0);
            }
            sendNote(60 + i % 2 * 4, i % 4 < 2 ? 100 : 0);
        }
    });
    player.join();
    QCOMPARE(port->messages().size(), std::size_t(0));
    QTRY_COMPARE(active(), recalled);
    QTRY_VERIFY(rebuilds.count > 0);
    QCOMPARE(playedBefore, std::size_t(20));
    QVERIFY(view().description->toPlainText().startsWith(titleOf(scale().scaleModifier())));
}

void TestLibraryShown::closingForgetsTheUpdate()
{
    play(wholeTone);
    QVERIFY(browserTimer().isActive());
    window->showLibraryScreen(false);
    QVERIFY(!browserTimer().isActive());
}

QTEST_MAIN(TestLibraryShown)
#include "test_library_shown.moc"
