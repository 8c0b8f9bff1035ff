// The catalogue's deliberate oddities and edges, one test each. That everything else holds together is the
// business of the model's long walk.

#include "library/DatabaseLibrary.h"

#include <QtTest>

namespace {

const QString ionian = QStringLiteral("xoxoxxoxoxox"), lydian = QStringLiteral("xoxoxoxxoxox"),
              played = QStringLiteral("xxxooooooooo");
const QString first = QStringLiteral("1 - Major Scale Modes"), blues = QStringLiteral("5 - Blues Scales"),
              user = QStringLiteral("10 - User Scales");
const QString bluesWord = QStringLiteral("xooxoxxxooxo");

scale_data named(const QString& word, const QString& title)
{
    return {word, QStringLiteral("a"), QStringLiteral("b"), title, QString()};
}

} // namespace

class TestLibrary : public QObject
{
    Q_OBJECT

private slots:
    // Records
    void rolesTellCustomRecordsFromLibraryRecords();
    void refusedReadLeavesTheOutputUntouched();
    void storingAsLibraryRecordEndsACustomOne();
    void storingWithAnyRoleKeepsWhatTheRecordWas();
    void firstCategoryKeepsTheWordOfARemovedScale();

    // Categories
    void renamedCategoryKeepsItsPlaceUntilTheNextInsertion();
    void renameRefusesATakenOrUnknownName();
    void renameLeavesTheScaleIndexUnderTheOldName();
    void removalOfTheCurrentCategoryLeavesTheIndex();
    void removedCategoryKeepsItsRecords();
    void removeScalesWithCategoryDeletesRecordsAndKeepsWords();
    void unknownCurrentCategoryIsNone();
    void categoriesFollowTheLanguageNotTheEnvironment();

    // Words
    void scaleIndexEqualToTheCountIsNone();
    void appendNeedsARecordAndInsertDoesNot();
    void moveToACategoryThatHoldsTheWordOnlyRemoves();

    // Clear, save and load
    void clearKeepsWhereTheUserStood();
    void emptyCategorySurvivesASaveAndALoad();
    void firstRecordOfAWordDecidesItsTitle();
    void customRecordsAreNotSaved();
};

void TestLibrary::rolesTellCustomRecordsFromLibraryRecords()
{
    DatabaseLibrary library;
    library.setScaleData(played, named(played, QStringLiteral("mine")), DatabaseLibrary::CustomRole);
    scale_data out;
    QVERIFY(library.getScaleData(played, out, DatabaseLibrary::AnyRole));
    QCOMPARE(out.title, QStringLiteral("mine"));
    QVERIFY(library.getScaleData(played, out, DatabaseLibrary::CustomRole));
    QVERIFY(!library.getScaleData(played, out, DatabaseLibrary::LibraryRole));
    QVERIFY(library.getScaleData(ionian, out, DatabaseLibrary::AnyRole));
    QVERIFY(library.getScaleData(ionian, out, DatabaseLibrary::LibraryRole));
    QVERIFY(!library.getScaleData(ionian, out, DatabaseLibrary::CustomRole));
}

void TestLibrary::refusedReadLeavesTheOutputUntouched()
{
    DatabaseLibrary library;
    library.setScaleData(played, named(played, QStringLiteral("mine")), DatabaseLibrary::CustomRole);
    scale_data out = named(lydian, QStringLiteral("before"));
    QVERIFY(!library.getScaleData(played, out, DatabaseLibrary::LibraryRole));
    QVERIFY(!library.getScaleData(QStringLiteral("unknown"), out, DatabaseLibrary::AnyRole));
    QCOMPARE(out.scale, lydian);
    QCOMPARE(out.title, QStringLiteral("before"));
}

void TestLibrary::storingAsLibraryRecordEndsACustomOne()
{
    DatabaseLibrary library;
    library.setScaleData(played, named(played, QStringLiteral("mine")), DatabaseLibrary::CustomRole);
    QCOMPARE(library.customScales(), QList<QString>{played});
    library.setScaleData(played, named(played, QStringLiteral("kept")), DatabaseLibrary::LibraryRole);
    QVERIFY(library.customScales().isEmpty());
}

void TestLibrary::storingWithAnyRoleKeepsWhatTheRecordWas()
{
    DatabaseLibrary library;
    library.setScaleData(played, named(played, QStringLiteral("mine")), DatabaseLibrary::CustomRole);
    library.setScaleData(played, named(played, QStringLiteral("again")), DatabaseLibrary::AnyRole);
    library.setScaleData(ionian, named(ionian, QStringLiteral("again")), DatabaseLibrary::AnyRole);
    QCOMPARE(library.customScales(), QList<QString>{played});
}

void TestLibrary::firstCategoryKeepsTheWordOfARemovedScale()
{
    DatabaseLibrary library;
    QCOMPARE(library.appendScaleToCategory(blues, ionian), 1);
    library.removeScale(ionian);
    QVERIFY(library.scalesFromCategory(first).contains(ionian));
    QVERIFY(!library.scalesFromCategory(blues).contains(ionian));
    scale_data out;
    QVERIFY(!library.getScaleData(ionian, out, DatabaseLibrary::AnyRole));
}

void TestLibrary::renamedCategoryKeepsItsPlaceUntilTheNextInsertion()
{
    DatabaseLibrary library;
    QVERIFY(library.renameCategory(first, QStringLiteral("20 - Renamed")));
    QCOMPARE(library.categories().first(), QStringLiteral("20 - Renamed"));
    library.insertCategory(QStringLiteral("30 - New"));
    QCOMPARE(library.categories().at(9), QStringLiteral("20 - Renamed"));
    QCOMPARE(library.categories().at(10), QStringLiteral("30 - New"));
    QCOMPARE(library.scalesCountFromCategory(QStringLiteral("20 - Renamed")), 7); // its words went with it
    QCOMPARE(library.scalesFromCategory(blues), QList<QString>{bluesWord});
}

void TestLibrary::renameRefusesATakenOrUnknownName()
{
    DatabaseLibrary library;
    const QVector<QString> before = library.categories();
    QVERIFY(!library.renameCategory(first, blues));
    QVERIFY(!library.renameCategory(QStringLiteral("unknown"), QStringLiteral("new")));
    QCOMPARE(library.categories(), before);
}

void TestLibrary::renameLeavesTheScaleIndexUnderTheOldName()
{
    DatabaseLibrary library;
    library.setCurrentScaleIndex(first, 3);
    QVERIFY(library.renameCategory(first, QStringLiteral("1 - Modes")));
    QCOMPARE(library.currentScaleIndex(QStringLiteral("1 - Modes")), -1);
    QCOMPARE(library.currentScaleIndex(first), 3);
}

void TestLibrary::removalOfTheCurrentCategoryLeavesTheIndex()
{
    DatabaseLibrary library;
    library.setCurrentCategory(first);
    library.removeCategory(first);
    QCOMPARE(library.currentCagetoryIndex(), 0);
    QCOMPARE(library.currentCategory(), QStringLiteral("2 - Melodic Minor Modes")); // the next one
    library.setCurrentCategory(user);
    library.removeCategory(user);
    QCOMPARE(library.currentCagetoryIndex(), library.categoryCount()); // past the end
    QCOMPARE(library.currentCategory(), QString());
    QCOMPARE(library.currentScale(), QString());
}

void TestLibrary::removedCategoryKeepsItsRecords()
{
    DatabaseLibrary library;
    library.removeCategory(blues);
    QVERIFY(library.containsScale(bluesWord, DatabaseLibrary::LibraryRole));
    QVERIFY(library.findCategoriesWithScale(bluesWord).isEmpty());
}

void TestLibrary::removeScalesWithCategoryDeletesRecordsAndKeepsWords()
{
    DatabaseLibrary library;
    library.removeScalesWithCategory(blues);
    QVERIFY(!library.containsScale(bluesWord, DatabaseLibrary::AnyRole));
    QCOMPARE(library.scalesFromCategory(blues), QList<QString>{bluesWord});
}

void TestLibrary::unknownCurrentCategoryIsNone()
{
    DatabaseLibrary library;
    QCOMPARE(library.currentCagetoryIndex(), -1);
    library.setCurrentCategory(blues);
    QCOMPARE(library.currentCagetoryIndex(), 4);
    library.setCurrentCategory(QStringLiteral("unknown"));
    QCOMPARE(library.currentCagetoryIndex(), -1);
    library.setCurrentCategoryIndex(10);
    QCOMPARE(library.currentCagetoryIndex(), -1);
    library.setCurrentCategoryIndex(9);
    QCOMPARE(library.currentCategory(), user);
}

// The environment of the tests has no collation; a user's may have another language's than the window.
void TestLibrary::categoriesFollowTheLanguageNotTheEnvironment()
{
    const QLocale before;
    for (const QLocale::Language language : {QLocale::German, QLocale::English, QLocale::C}) {
        QLocale::setDefault(QLocale(language));
        QVector<QString> names{QStringLiteral("10 - a"), QStringLiteral("9 - b"), QStringLiteral("1 - c")};
        DatabaseLibrary::sortStringVector(names);
        QCOMPARE(names, (QVector<QString>{QStringLiteral("1 - c"), QStringLiteral("9 - b"),
                                          QStringLiteral("10 - a")}));
    }
    QLocale::setDefault(before);
}

void TestLibrary::scaleIndexEqualToTheCountIsNone()
{
    DatabaseLibrary library;
    library.setCurrentCategory(first);
    library.setCurrentScaleIndex(first, 6);
    QCOMPARE(library.currentScale(), QStringLiteral("xxoxoxxoxoxo"));
    library.setCurrentScaleIndex(first, 7);
    QCOMPARE(library.currentScaleIndex(first), -1);
    QCOMPARE(library.currentScale(), QString());
}

void TestLibrary::appendNeedsARecordAndInsertDoesNot()
{
    DatabaseLibrary library;
    QCOMPARE(library.appendScaleToCategory(user, played), -1);
    QCOMPARE(library.insertScaleToCategory(user, 0, played), 0);
    QCOMPARE(library.insertScaleToCategory(user, 0, played), -1); // at most once
    QCOMPARE(library.appendScaleToCategory(user, ionian), 1);
    QCOMPARE(library.appendScaleToCategory(QStringLiteral("unknown"), ionian), -1);
}

void TestLibrary::moveToACategoryThatHoldsTheWordOnlyRemoves()
{
    DatabaseLibrary library;
    library.appendScalesToCategory(user, {lydian, ionian});
    library.moveScale(1, 0, first, user); // Ionian
    QVERIFY(!library.scalesFromCategory(first).contains(ionian));
    QCOMPARE(library.scalesFromCategory(user), (QList<QString>{lydian, ionian}));
}

void TestLibrary::clearKeepsWhereTheUserStood()
{
    DatabaseLibrary library;
    library.setCurrentCategory(blues);
    library.setCurrentScaleIndex(blues, 0);
    library.clear();
    QCOMPARE(library.categoryCount(), 0);
    QVERIFY(!library.containsScale(ionian, DatabaseLibrary::AnyRole));
    QCOMPARE(library.currentCagetoryIndex(), 4);
    QCOMPARE(library.currentScaleIndex(blues), 0);
    QCOMPARE(library.currentCategory(), QString());
}

void TestLibrary::emptyCategorySurvivesASaveAndALoad()
{
    DatabaseLibrary library, loaded;
    QMap<QString, scale_data> data;
    library.getData(data);
    QVERIFY(data.contains(user) && data.value(user).scale.isEmpty());
    loaded.clear();
    loaded.setData(data);
    QCOMPARE(loaded.categories(), library.categories());
    QVERIFY(loaded.isEmptyCategory(user));
}

void TestLibrary::firstRecordOfAWordDecidesItsTitle()
{
    // The value inserted last is the first one met.
    QMultiMap<QString, scale_data> data;
    data.insert(QStringLiteral("a"), named(ionian, QStringLiteral("second")));
    data.insert(QStringLiteral("a"), named(ionian, QStringLiteral("first")));
    data.insert(QStringLiteral("b"), named(ionian, QStringLiteral("third")));
    data.insert(QStringLiteral("b"), named(lydian, QString())); // no title: no scale
    DatabaseLibrary library;
    library.setData(data);
    scale_data out;
    QVERIFY(library.getScaleData(ionian, out, DatabaseLibrary::LibraryRole));
    QCOMPARE(out.title, QStringLiteral("first"));
    QCOMPARE(library.findCategoriesWithScale(ionian), (QList<QString>{"a", "b"}));
    QVERIFY(!library.containsScale(lydian, DatabaseLibrary::AnyRole));
}

void TestLibrary::customRecordsAreNotSaved()
{
    DatabaseLibrary library;
    library.setScaleData(played, named(played, QStringLiteral("mine")), DatabaseLibrary::CustomRole);
    library.appendScaleToCategory(user, played);
    QMap<QString, scale_data> data;
    library.getData(data);
    for (const scale_data& record : qAsConst(data))
        QVERIFY(record.scale != played);
}

QTEST_GUILESS_MAIN(TestLibrary)
#include "test_library.moc"
