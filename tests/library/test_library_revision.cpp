// The number by which a browser knows that the catalogue has changed.

#include "library/DatabaseLibrary.h"

#include <QSet>
#include <QtTest>

#include <functional>

namespace {

using Act = std::function<void(DatabaseLibrary&)>;

const QString ionian = QStringLiteral("xoxoxxoxoxox"), played = QStringLiteral("xxxooooooooo");
const QString first = QStringLiteral("1 - Major Scale Modes"), blues = QStringLiteral("5 - Blues Scales");

const scale_data mine{played, QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QString()};

} // namespace

Q_DECLARE_METATYPE(Act)

class TestLibraryRevision : public QObject
{
    Q_OBJECT

private slots:
    void eachChangeGivesAnotherNumber_data();
    void eachChangeGivesAnotherNumber();
    void lookingGivesTheSame();
    void standingElsewhereGivesTheSame();
    void noNumberComesTwice();
};

void TestLibraryRevision::eachChangeGivesAnotherNumber_data()
{
    QTest::addColumn<Act>("change");
    const auto add = [](const char* name, Act change) { QTest::newRow(name) << std::move(change); };
    add("clear", [](DatabaseLibrary& l) { l.clear(); });
    add("load default", [](DatabaseLibrary& l) { l.loadDefault(); });
    add("set data", [](DatabaseLibrary& l) { l.setData({}); });
    add("library record", [](DatabaseLibrary& l) { l.setScaleData(played, mine, l.LibraryRole); });
    add("custom record", [](DatabaseLibrary& l) { l.setScaleData(played, mine, l.CustomRole); });
    add("record of either role", [](DatabaseLibrary& l) { l.setScaleData(ionian, mine, l.AnyRole); });
    add("custom mark", [](DatabaseLibrary& l) { l.setCustomScale(ionian); });
    add("removed record", [](DatabaseLibrary& l) { l.removeScale(ionian); });
    add("new category", [](DatabaseLibrary& l) { l.insertCategory(QStringLiteral("new")); });
    add("removed category", [](DatabaseLibrary& l) { l.removeCategory(blues); });
    add("records of a category", [](DatabaseLibrary& l) { l.removeScalesWithCategory(blues); });
    add("renamed category", [](DatabaseLibrary& l) { l.renameCategory(blues, QStringLiteral("new")); });
    add("appended word", [](DatabaseLibrary& l) { l.appendScaleToCategory(blues, ionian); });
    add("appended words", [](DatabaseLibrary& l) { l.appendScalesToCategory(blues, {ionian}); });
    add("inserted word", [](DatabaseLibrary& l) { l.insertScaleToCategory(blues, 0, ionian); });
    add("removed word", [](DatabaseLibrary& l) { l.removeScaleFromCategory(first, 0); });
    add("cleared category", [](DatabaseLibrary& l) { l.clearScalesFromCategory(first); });
    add("moved word", [](DatabaseLibrary& l) { l.moveScale(0, 2, first); });
    add("word to another category", [](DatabaseLibrary& l) { l.moveScale(0, 0, first, blues); });
}

void TestLibraryRevision::eachChangeGivesAnotherNumber()
{
    QFETCH(Act, change);
    DatabaseLibrary library;
    const int before = library.revision();
    change(library);
    QVERIFY(library.revision() != before);
}

void TestLibraryRevision::lookingGivesTheSame()
{
    DatabaseLibrary library;
    const int before = library.revision();
    scale_data record;
    QMap<QString, scale_data> data;
    QVERIFY(library.getScaleData(ionian, record, DatabaseLibrary::AnyRole));
    QVERIFY(library.containsScale(ionian, DatabaseLibrary::LibraryRole) && !library.isCustomScale(ionian));
    QVERIFY(library.customScales().isEmpty());
    QVERIFY(library.categories().size() == library.categoryCount());
    QCOMPARE(library.findCategoriesWithScale(ionian), QList<QString>{first});
    QCOMPARE(library.indexOfScaleFromCategory(first, ionian, 0),
             library.scalesFromCategory(first).indexOf(ionian));
    QVERIFY(!library.isEmptyCategory(first) && library.scaleFromCategory(first, 99).isEmpty());
    library.getData(data);
    QCOMPARE(library.revision(), before);
}

void TestLibraryRevision::standingElsewhereGivesTheSame()
{
    DatabaseLibrary library;
    const int before = library.revision();
    library.setCurrentCategory(blues);
    library.setCurrentCategoryIndex(2);
    library.setCurrentScaleIndex(first, 3);
    QCOMPARE(library.currentCagetoryIndex(), 2);
    QCOMPARE(library.revision(), before);
}

// A browser that missed some changes must not take a new state for an old one.
void TestLibraryRevision::noNumberComesTwice()
{
    DatabaseLibrary library;
    QSet<int> numbers{library.revision()};
    for (int i = 0; i < 50; ++i) {
        library.moveScale(0, 1, first); // there and back
        QVERIFY(!numbers.contains(library.revision()));
        numbers.insert(library.revision());
        if (i % 10 == 0) {
            library.loadDefault();
            QVERIFY(!numbers.contains(library.revision()));
            numbers.insert(library.revision());
        }
    }
}

QTEST_APPLESS_MAIN(TestLibraryRevision)
#include "test_library_revision.moc"
