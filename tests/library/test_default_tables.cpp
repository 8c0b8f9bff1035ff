// The factory content: what stands in the tables, what of it is loaded and what a fresh window shows of it.

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "factory_rows.h"
#include "headers/HeaderController.h"
#include "keys/tonic_names.h"
#include "library/DatabaseLibrary.h"
#include "library/default_tables.h"

#include <QLocale>
#include <QRegularExpression>
#include <QtTest>

#include <array>
#include <map>
#include <set>

namespace {

constexpr const char* wantedCategories[] = {
    "1 - Major Scale Modes", "2 - Melodic Minor Modes", "3 - Symmetric Scales", "4 - Pentatonic Scales",
    "5 - Blues Scales",      "6 - Bebop Scales",        "7 - Harmonic Scales",  "8 - Exotic Scales",
    "9 - Miscellaneous",     "10 - User Scales",
};

constexpr std::array<int, 11> wantedCounts = {0, 7, 7, 3, 6, 1, 4, 3, 13, 3, 0};

struct WantedHeader
{
    const char *name1, *name2, *tonicName;
    bool tonicOn;
    const char* tonic;
    bool scaleOn;
    const char* scale;
};

constexpr bool on = true, off = false;

/// All other presets are empty.
const std::map<int, WantedHeader> wantedHeaders = {
    {12, {"", "", "D#", on, "D#", off, ""}},
    {13, {"", "", "F#", on, "F#", off, ""}},
    {14, {"", "", "G", on, "G", off, ""}},
    {15, {"MAJOR", "Lydian", "C", on, "C", on, "xoxoxoxxoxox"}},
    {16, {"ZOL", "Scale1", "G", on, "G", on, "xoxooxoxoooo"}},
    {18, {"MINOR", "Aeol.", "", off, "", on, "xoxxoxoxxoxo"}},
    {19, {"MAJOR", "Ionian", "", off, "", on, "xoxoxxoxoxox"}},
    {20, {"MAJOR", "Lydian", "", off, "", on, "xoxoxoxxoxox"}},
    {21, {"ZOL", "Scale1", "C#", on, "C#", on, "xoxxoooxxoxo"}},
    {22, {"EXOTIC", "Iwato", "D#", on, "D#", on, "xxoooxxoooxo"}},
    {23, {"MAJOR", "Lydian", "F#", on, "F#", on, "xoxoxoxxoxox"}},
    {24, {"BLUES", "6Tone", "", off, "", on, "xooxoxxxooxo"}},
    {25, {"PENTA", "Yo", "", off, "", on, "xoxooxoxoxoo"}},
    {26, {"MyScale", "ZOL1", "D#", on, "D#", on, "xoxooxoxoooo"}},
    {27, {"MISC", "Chrom", "C", on, "C", on, "xxxxxxxxxxxx"}},
    {28, {"BEBOP", "Bep.Maj", "F#", on, "F#", on, "xoxoxxoxxxox"}},
    {29, {"MISC", "Ly.Min", "G", on, "G", on, "xoxoxoxxxoxo"}},
    {30, {"MAJOR", "Lydian", "C", on, "C", on, "xoxoxoxxoxox"}},
};

const QString lastCategory = QStringLiteral("10 - User Scales");
const QString chromatic = QStringLiteral("xxxxxxxxxxxx");
const QString lydianMinor = QStringLiteral("xoxoxoxxxoxo");
const QString octavesOnly = QStringLiteral("xooooooooooo");

QStringList fieldsOf(const scale_data& record)
{
    return {record.scale, record.abbr1, record.abbr2, record.title, record.libBody};
}

bool isLoaded(const WantedRow& wanted)
{
    return wanted.row <= wantedCounts.at(static_cast<std::size_t>(wanted.block));
}

} // namespace

class TestDefaultTables : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { midiService().choose(MidiService::Wanted::none); }

    // The tables
    void fiftyRowsStandInTheirBlocks();
    void everyLiteralStandsByteForByte_data();
    void everyLiteralStandsByteForByte();
    void wordsAreTwelveLettersAndDiffer();
    void promotionalRowsCross();
    void octavesOnlyIsHardlyDescribed();
    void categoriesStandInTheirOrder();
    void countsOfTheBlocks();
    void namesOfTonicsAndIntervals();
    void presetsStandInTheirRows();

    // What is loaded
    void fortySevenScalesAreLoaded();
    void everyCategoryHoldsItsRowsInOrder();
    void rowsPastTheCountAreNotLoaded();
    void userCategoryExistsAndIsEmpty();
    void loadDefaultLosesUserScales();
    void categoriesCollateAlikeInEveryLocale_data();
    void categoriesCollateAlikeInEveryLocale();
    void categoriesAreSortedAnewInAnotherLocale();

    // The presets of a fresh window
    void presetTakesItsNamesFromTheLibrary();
    void unloadedWordsBecomeUserScales();
};

// The tables

void TestDefaultTables::fiftyRowsStandInTheirBlocks()
{
    std::set<std::pair<int, int>> wanted, found;
    for (const WantedRow& row : wantedRows)
        wanted.emplace(row.block, row.row);
    for (std::size_t block = 0; block < resetScaleData.size(); ++block)
        for (std::size_t row = 0; row < resetScaleData[block].size(); ++row)
            if (!fieldsOf(resetScaleData[block][row]).join(QString()).isEmpty())
                found.emplace(static_cast<int>(block), static_cast<int>(row) + 1);
    QCOMPARE(resetScaleData.size(), std::size_t(11));
    QCOMPARE(resetScaleData[0].size(), std::size_t(13));
    QCOMPARE(found.size(), std::size_t(50));
    QVERIFY(found == wanted);
}

void TestDefaultTables::everyLiteralStandsByteForByte_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 50; ++i)
        QTest::newRow(wantedRows[i].title) << i;
}

void TestDefaultTables::everyLiteralStandsByteForByte()
{
    QFETCH(int, index);
    const WantedRow& wanted = wantedRows[index];
    const scale_data& row = tableRow(wanted.block, wanted.row);
    QCOMPARE(row.scale.toLatin1(), QByteArray(wanted.scale));
    QCOMPARE(row.abbr1.toLatin1(), QByteArray(wanted.abbr1));
    QCOMPARE(row.abbr2.toLatin1(), QByteArray(wanted.abbr2));
    QCOMPARE(row.title.toLatin1(), QByteArray(wanted.title));
}

void TestDefaultTables::wordsAreTwelveLettersAndDiffer()
{
    std::set<QString> words;
    const QRegularExpression shape(QStringLiteral("^x[xo]{11}$"));
    for (const WantedRow& wanted : wantedRows) {
        const QString& word = tableRow(wanted.block, wanted.row).scale;
        QVERIFY2(shape.match(word).hasMatch(), wanted.title);
        words.insert(word);
    }
    QCOMPARE(words.size(), std::size_t(50));
}

void TestDefaultTables::promotionalRowsCross()
{
    QCOMPARE(tableRow(9, 1).abbr2, QStringLiteral("Scale1"));
    QCOMPARE(tableRow(9, 1).title, QStringLiteral("ZOL 2 Scale Name"));
    QCOMPARE(tableRow(9, 1).libBody, QStringLiteral("ZOL 2 Scale Description Text"));
    QCOMPARE(tableRow(9, 2).abbr2, QStringLiteral("Scale2"));
    QCOMPARE(tableRow(9, 2).title, QStringLiteral("ZOL 1 Scale Name"));
    QCOMPARE(tableRow(9, 2).libBody, QStringLiteral("ZOL 1 Scale Description Text"));
}

void TestDefaultTables::octavesOnlyIsHardlyDescribed()
{
    QCOMPARE(tableRow(9, 6).libBody, QStringLiteral("..."));
}

void TestDefaultTables::categoriesStandInTheirOrder()
{
    QCOMPARE(resetCatrgoryData.size(), std::size(wantedCategories));
    for (std::size_t i = 0; i < resetCatrgoryData.size(); ++i)
        QCOMPARE(resetCatrgoryData[i].toLatin1(), QByteArray(wantedCategories[i]));
}

void TestDefaultTables::countsOfTheBlocks()
{
    QVERIFY(numResetScales == wantedCounts);
}

void TestDefaultTables::namesOfTonicsAndIntervals()
{
    const std::array<QString, 12> tonics = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    const std::array<QString, 12> intervals = {"P1", "m2", "M2", "m3", "M3", "P4",
                                               "^",  "P5", "m6", "M6", "m7", "M7"};
    QVERIFY(tonicModifierName == tonics);
    QVERIFY(scaleModifierName == intervals);
}

void TestDefaultTables::presetsStandInTheirRows()
{
    QCOMPARE(resetHeaderData.size(), std::size_t(36));
    for (int i = 0; i < 36; ++i) {
        const auto found = wantedHeaders.find(i);
        const WantedHeader wanted =
            found != wantedHeaders.end() ? found->second : WantedHeader{"", "", "", off, "", off, ""};
        const header_data& row = resetHeaderData.at(static_cast<std::size_t>(i));
        const auto texts =
            QStringList{row.nameScenic1, row.nameScenic2, row.nameTonic, row.tonicData, row.scaleData};
        QCOMPARE(texts,
                 (QStringList{wanted.name1, wanted.name2, wanted.tonicName, wanted.tonic, wanted.scale}));
        QCOMPARE(row.tonicOn, wanted.tonicOn);
        QCOMPARE(row.scaleOn, wanted.scaleOn);
        QVERIFY(!row.anchorValid);
    }
}

// What is loaded

void TestDefaultTables::fortySevenScalesAreLoaded()
{
    const DatabaseLibrary library;
    int total = 0;
    for (const QString& category : library.categories())
        total += library.scalesCountFromCategory(category);
    QCOMPARE(library.categoryCount(), 10);
    QCOMPARE(total, 47);
    QVERIFY(library.customScales().isEmpty());
}

void TestDefaultTables::everyCategoryHoldsItsRowsInOrder()
{
    const DatabaseLibrary library;
    QMap<QString, QStringList> wanted;
    for (const WantedRow& row : wantedRows)
        if (isLoaded(row)) {
            wanted[wantedCategories[row.block - 1]] << row.scale;
            scale_data record;
            QVERIFY2(library.getScaleData(row.scale, record, DatabaseLibrary::LibraryRole), row.title);
            QCOMPARE(fieldsOf(record), fieldsOf(tableRow(row.block, row.row)));
        }
    for (const char* category : wantedCategories)
        QCOMPARE(QStringList(library.scalesFromCategory(category)), wanted.value(category));
}

void TestDefaultTables::rowsPastTheCountAreNotLoaded()
{
    const DatabaseLibrary library;
    QCOMPARE(library.scalesCountFromCategory(QStringLiteral("9 - Miscellaneous")), 3);
    for (const QString& word : {lydianMinor, chromatic, octavesOnly}) {
        QVERIFY(!library.containsScale(word, DatabaseLibrary::AnyRole));
        QVERIFY(library.findCategoriesWithScale(word).isEmpty());
    }
}

void TestDefaultTables::userCategoryExistsAndIsEmpty()
{
    DatabaseLibrary library;
    library.loadDefault();
    QCOMPARE(library.indexOfCategory(lastCategory, 0), 9);
    QVERIFY(library.isEmptyCategory(lastCategory));
}

void TestDefaultTables::loadDefaultLosesUserScales()
{
    DatabaseLibrary library;
    const QString custom = QStringLiteral("xxxooooooooo");
    library.setScaleData(lydianMinor, {lydianMinor, "a", "b", "Mine", ""}, DatabaseLibrary::LibraryRole);
    library.setScaleData(custom, {custom, "User", "1", "User 1", ""}, DatabaseLibrary::CustomRole);
    library.insertCategory(QStringLiteral("11 - Mine"));
    QCOMPARE(library.appendScaleToCategory(lastCategory, lydianMinor), 0);
    QCOMPARE(library.appendScaleToCategory(QStringLiteral("11 - Mine"), lydianMinor), 0);
    library.removeCategory(QStringLiteral("5 - Blues Scales"));

    library.loadDefault();
    QVERIFY(!library.containsScale(lydianMinor, DatabaseLibrary::AnyRole));
    QVERIFY(!library.containsScale(custom, DatabaseLibrary::AnyRole));
    QVERIFY(library.customScales().isEmpty());
    QVERIFY(library.isEmptyCategory(lastCategory));
    QCOMPARE(library.categoryCount(), 10);
    QCOMPARE(library.scalesCountFromCategory(QStringLiteral("5 - Blues Scales")), 1);
}

void TestDefaultTables::categoriesCollateAlikeInEveryLocale_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* name : {"C", "en_US", "de_DE"})
        QTest::newRow(name) << name;
}

void TestDefaultTables::categoriesCollateAlikeInEveryLocale()
{
    QFETCH(QString, locale);
    const QLocale before;
    QLocale::setDefault(QLocale(locale));
    DatabaseLibrary library;
    library.loadDefault();
    const QVector<QString> factory = library.categories();
    for (const char* name : {"11 - Z", "2 - A", "Zebra", "alpha"})
        library.insertCategory(name);
    const QVector<QString> extended = library.categories();
    QLocale::setDefault(before);

    QVector<QString> wanted;
    for (const char* name : wantedCategories)
        wanted << name;
    QCOMPARE(factory, wanted);
    wanted.insert(1, QStringLiteral("2 - A"));
    wanted << QStringLiteral("11 - Z") << QStringLiteral("alpha") << QStringLiteral("Zebra");
    QCOMPARE(extended, wanted);
}

void TestDefaultTables::categoriesAreSortedAnewInAnotherLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    const QString umlaut(QChar(0xC4)); // a kind of A in German, a letter behind Z in Swedish
    DatabaseLibrary library;
    library.clear();
    library.insertCategory(QStringLiteral("Z"));
    library.insertCategory(umlaut);
    const QVector<QString> german = library.categories();
    QLocale::setDefault(QLocale(QStringLiteral("sv_SE")));
    library.insertCategory(QStringLiteral("B"));
    const QVector<QString> swedish = library.categories();
    QLocale::setDefault(before);
    QCOMPARE(german, (QVector<QString>{umlaut, "Z"}));
    QCOMPARE(swedish, (QVector<QString>{"B", "Z", umlaut}));
}

// The presets of a fresh window

void TestDefaultTables::presetTakesItsNamesFromTheLibrary()
{
    const MainWnd window;
    QList<header_data> records;
    window.headerController->getHeadersData(records);
    QCOMPARE(records.size(), 36);
    QCOMPARE(resetHeaderData[21].nameScenic2, QStringLiteral("Scale1"));
    QCOMPARE(records.at(21).nameScenic1, QStringLiteral("ZOL"));
    QCOMPARE(records.at(21).nameScenic2, QStringLiteral("Scale2"));
    QCOMPARE(records.at(26).nameScenic1, QStringLiteral("ZOL"));
    QCOMPARE(records.at(26).nameScenic2, QStringLiteral("Scale1"));
}

void TestDefaultTables::unloadedWordsBecomeUserScales()
{
    const MainWnd window;
    QList<header_data> records;
    window.headerController->getHeadersData(records);
    QCOMPARE(QStringList(window.library.customScales()), (QStringList{chromatic, lydianMinor}));
    const std::pair<int, QString> presets[] = {{27, chromatic}, {29, lydianMinor}};
    int number = 0;
    for (const auto& [index, word] : presets) {
        const QString name = QString::number(++number);
        QCOMPARE(records.at(index).scaleData, word);
        QCOMPARE(records.at(index).nameScenic1, QStringLiteral("User"));
        QCOMPARE(records.at(index).nameScenic2, name);
        scale_data record;
        QVERIFY(!window.library.containsScale(word, DatabaseLibrary::LibraryRole));
        QVERIFY(window.library.getScaleData(word, record, DatabaseLibrary::CustomRole));
        QCOMPARE(fieldsOf(record), (QStringList{word, "User", name, "User " + name, ""}));
        QVERIFY(window.library.findCategoriesWithScale(word).isEmpty());
    }
}

QTEST_MAIN(TestDefaultTables)
#include "test_default_tables.moc"
