// The factory content: what stands in the tables, what of it is loaded, and whether the descriptions are
// true.

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "claim_check.h"
#include "headers/HeaderController.h"
#include "keys/tonic_names.h"
#include "library/DatabaseLibrary.h"
#include "library/default_tables.h"

#include <QLocale>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <set>

namespace {

struct WantedRow
{
    int block, row; // the row counts from 1
    const char *scale, *abbr1, *abbr2, *title;
};

constexpr WantedRow wantedRows[] = {
    {1, 1, "xoxoxoxxoxox", "MAJOR", "Lydian", "Lydian"},
    {1, 2, "xoxoxxoxoxox", "MAJOR", "Ionian", "Ionian"},
    {1, 3, "xoxoxxoxoxxo", "MAJOR", "Mixol", "Mixolydian"},
    {1, 4, "xoxxoxoxoxxo", "MINOR", "Dorian", "Dorian"},
    {1, 5, "xoxxoxoxxoxo", "MINOR", "Aeol.", "Aeolian"},
    {1, 6, "xxoxoxoxxoxo", "MINOR", "Phryg.", "Phrygian"},
    {1, 7, "xxoxoxxoxoxo", "MINOR", "Locr.", "Locrian"},
    {2, 1, "xoxoxoxoxxox", "Mel.MIN", "Ly.Aug", "Lydian Augmented"},
    {2, 2, "xoxoxoxxoxxo", "Mel.MIN", "Ly.Dom", "Lydian Dominant"},
    {2, 3, "xoxoxxoxxoxo", "Mel.MIN", "5thMode", "Fifth Mode"},
    {2, 4, "xoxxoxoxoxox", "Mel.MIN", "Asc.(+)", "Melodic Minor (ascending)"},
    {2, 5, "xoxxoxxoxoxo", "Mel.MIN", "Locr#2", "Locrian #2"},
    {2, 6, "xxoxoxoxoxxo", "Mel.MIN", "Phry#6", "Phrygian #6"},
    {2, 7, "xxoxxoxoxoxo", "Mel.MIN", "Altered", "Altered"},
    {3, 1, "xoxoxoxoxoxo", "SYMM", "WholeT.", "Whole Tone"},
    {3, 2, "xoxxoxxoxxox", "SYMM", "Dim.WH", "Diminished Whole-/Half Tone"},
    {3, 3, "xxoxxoxxoxxo", "SYMM", "Dim.HW", "Diminished Half-/Whole Tone"},
    {4, 1, "xooxoxooxoxo", "PENTA", "MGong", "Man Gong"},
    {4, 2, "xooxoxoxooxo", "PENTA", "Min.Pt", "Minor Pentatonic"},
    {4, 3, "xoxooxoxooxo", "PENTA", "Susp.Pt", "Suspended Pentatonic"},
    {4, 4, "xoxooxoxoxoo", "PENTA", "Yo", "Yo"},
    {4, 5, "xoxoxooxooxo", "PENTA", "Dom.Pt", "Dominant Pentatonic"},
    {4, 6, "xoxoxooxoxoo", "PENTA", "Maj.Pt", "Major Pentatonic"},
    {5, 1, "xooxoxxxooxo", "BLUES", "6Tone", "Blues"},
    {6, 1, "xoxoxxoxoxxx", "BEBOP", "Bep.Dom", "Bebop Dominant"},
    {6, 2, "xoxoxxoxxxox", "BEBOP", "Bep.Maj", "Bebop Major"},
    {6, 3, "xoxxoxoxxxox", "BEBOP", "Mel.Min", "Bebop Melodic Minor"},
    {6, 4, "xoxxxxoxoxxo", "BEBOP", "Bep.Minor", "Bebop Minor"},
    {7, 1, "xoxoxxoxxoox", "HARM", "Major", "Harmonic Major"},
    {7, 2, "xoxxoxoxxoox", "HARM", "Minor", "Harmonic Minor"},
    {7, 3, "xxooxxoxxoox", "HARM", "2xMaj", "Double Harmonic Major"},
    {8, 1, "xooxxoxxoxxo", "EXOTIC", "Hun.Maj", "Hungarian Major"},
    {8, 2, "xoxoxoxooxxo", "EXOTIC", "Promth.", "Prometheus"},
    {8, 3, "xoxoxxxoxoxo", "EXOTIC", "MajLocr", "Major Locrian"},
    {8, 4, "xoxxooxxxoox", "EXOTIC", "H.Gypsy", "Hungarian Gypsy"},
    {8, 5, "xxoooxoxooxo", "EXOTIC", "Trad.Jap", "Traditional Japanese"},
    {8, 6, "xxoooxxoooxo", "EXOTIC", "Iwato", "Iwato"},
    {8, 7, "xxooxoxoxoxx", "EXOTIC", "Enigma", "Enigmatic"},
    {8, 8, "xxooxxoxxoxo", "EXOTIC", "PhrygDom", "Phrygian Dominant"},
    {8, 9, "xxooxxxooxxo", "EXOTIC", "Orient", "Oriental"},
    {8, 10, "xxoxooxxxoxo", "EXOTIC", "Bal.Pel", "Balinese Pelog"},
    {8, 11, "xxoxoxoxoxox", "EXOTIC", "Neap.Maj", "Neapolitan Major"},
    {8, 12, "xxoxoxoxxoox", "EXOTIC", "Neap.Min", "Neapolitan Minor"},
    {8, 13, "xxoxxxxoxoxo", "EXOTIC", "8.Span", "Eight-tone Spanish"},
    {9, 1, "xoxooxoxoooo", "ZOL", "Scale1", "ZOL 2 Scale Name"},
    {9, 2, "xoxxoooxxoxo", "ZOL", "Scale2", "ZOL 1 Scale Name"},
    {9, 3, "xooxxooxxoox", "MISC", "Augm.", "Augmented"},
    {9, 4, "xoxoxoxxxoxo", "MISC", "Ly.Min", "Lydian Minor"},
    {9, 5, "xxxxxxxxxxxx", "MISC", "Chrom", "Chromatic"},
    {9, 6, "xooooooooooo", "MISC", "Oct.", "Octaves Only"},
};

constexpr const char* wantedCategories[] = {
    "1 - Major Scale Modes", "2 - Melodic Minor Modes", "3 - Symmetric Scales", "4 - Pentatonic Scales",
    "5 - Blues Scales",      "6 - Bebop Scales",        "7 - Harmonic Scales",  "8 - Exotic Scales",
    "9 - Miscellaneous",     "10 - User Scales",
};

constexpr std::array<int, 11> wantedCounts = {0, 7, 7, 3, 6, 1, 4, 3, 13, 3, 0};

/// What "Octaves Only" and the two promotional rows say is given and describes nothing.
constexpr const char* undescribed[] = {"ZOL 2 Scale Name", "ZOL 1 Scale Name", "Octaves Only"};

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

const scale_data& tableRow(int block, int row)
{
    return resetScaleData.at(static_cast<std::size_t>(block)).at(static_cast<std::size_t>(row - 1));
}

QStringList fieldsOf(const scale_data& record)
{
    return {record.scale, record.abbr1, record.abbr2, record.title, record.libBody};
}

bool isLoaded(const WantedRow& wanted)
{
    return wanted.row <= wantedCounts.at(static_cast<std::size_t>(wanted.block));
}

bool isDescribed(const char* title)
{
    return std::none_of(std::begin(undescribed), std::end(undescribed),
                        [&](const char* other) { return QLatin1String(other) == QLatin1String(title); });
}

/// One data row for each scale that has a description.
void addDescriptions()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    for (const WantedRow& wanted : wantedRows)
        if (isDescribed(wanted.title))
            QTest::newRow(wanted.title) << wanted.title << tableRow(wanted.block, wanted.row).libBody;
}

/// Marks every place of `text` that a claim about `title` takes in.
QVector<bool> claimedPlaces(const QString& title, const QString& text)
{
    QVector<bool> claimed(text.size(), false);
    for (const scale_claims::Claim& claim : scale_claims::claims) {
        const QString phrase = QString::fromLatin1(claim.phrase);
        if (title != QLatin1String(claim.title))
            continue;
        for (int at = text.indexOf(phrase); at >= 0; at = text.indexOf(phrase, at + 1))
            std::fill_n(claimed.begin() + at, phrase.size(), true);
    }
    return claimed;
}

const char* ordinal(int number)
{
    constexpr const char* words[] = {"first", "second", "third", "fourth", "fifth", "sixth", "seventh"};
    return words[std::abs(number) - 1];
}

/// By its title, or by the name that musicians use for it in passing.
bool isNamedIn(const QString& phrase, const QString& title)
{
    static const std::map<QString, QString> otherNames = {
        {"Ionian", "major"}, {"Aeolian", "minor"}, {scale_claims::melodicMinor, "melodic minor"}};
    const auto other = otherNames.find(title);
    return phrase.contains(title) || (other != otherNames.end() && phrase.contains(other->second));
}

/// What a phrase must contain for its claim to be the one that it makes.
QStringList wordsWanted(const scale_claims::Claim& claim)
{
    using scale_claims::Kind;
    const bool byDegree =
        claim.kind == Kind::modeOf || claim.kind == Kind::omitting || claim.kind == Kind::altering;
    QStringList wanted;
    for (const int number : byDegree ? claim.numbers : std::vector<int>()) {
        wanted << ordinal(number);
        if (claim.kind == Kind::altering && QString(claim.phrase).contains(QLatin1String("degree")))
            wanted << (number > 0 ? "raised" : "lowered");
    }
    if (claim.kind == Kind::modeOf)
        wanted << QStringLiteral("mode of");
    if (claim.kind == Kind::omitting)
        wanted << QStringLiteral("omitted");
    if (claim.kind == Kind::adding)
        wanted << QStringLiteral("added");
    return wanted;
}

/// The name of an added note.
const char* addedName(int semitones)
{
    static const std::map<int, const char*> names = {{4, "major third"},
                                                     {5, "perfect fourth"},
                                                     {6, "tritone"},
                                                     {7, "perfect fifth"},
                                                     {8, "between the fifth and the sixth degrees"},
                                                     {11, "major seventh"}};
    return names.at(semitones);
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

    // The presets of a fresh window
    void presetTakesItsNamesFromTheLibrary();
    void unloadedWordsBecomeUserScales();

    // The descriptions
    void manGongIsDescribedAsGiven();
    void lengthOfDescription_data() { addDescriptions(); }
    void lengthOfDescription();
    void descriptionIsOneParagraphOfAscii_data() { addDescriptions(); }
    void descriptionIsOneParagraphOfAscii();
    void descriptionBeginsWithItsTitle_data() { addDescriptions(); }
    void descriptionBeginsWithItsTitle();
    void descriptionEndsWithExamples_data() { addDescriptions(); }
    void descriptionEndsWithExamples();

    // What they claim
    void claimIsTrue_data();
    void claimIsTrue();
    void claimIsTheOneOfItsPhrase_data() { claimIsTrue_data(); }
    void claimIsTheOneOfItsPhrase();
    void everyEquivalenceIsClaimed_data() { addDescriptions(); }
    void everyEquivalenceIsClaimed();
    void falseClaimsAreRefused();
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

// The descriptions

void TestDefaultTables::manGongIsDescribedAsGiven()
{
    QCOMPARE(tableRow(4, 1).libBody,
             QString::fromLatin1(
                 "The Man Gong scale, also known as the Phrygian Pentatonic scale, is the third mode of the "
                 "Major Pentatonic scale. It is equivalent to an Aeolian, Phrygian, or Locrian scale with "
                 "the second and fifth degrees omitted. This is a rarely-used scale which originated in "
                 "China in the 15th century. Its rarity may be attributable to the fact that it is the only "
                 "mode of the Major Pentatonic which lacks a perfect fifth above the tonic, making the tonic "
                 "more difficult to establish. The tonic has a tendency to be heard as the dominant of a "
                 "Minor Pentatonic scale instead. Example: Huo Lin (traditional)"));
}

void TestDefaultTables::lengthOfDescription()
{
    QFETCH(QString, text);
    QVERIFY2(text.size() >= 338 && text.size() <= 933, qPrintable(QString::number(text.size())));
}

void TestDefaultTables::descriptionIsOneParagraphOfAscii()
{
    QFETCH(QString, text);
    for (const QChar c : text)
        QVERIFY2(c >= QLatin1Char(' ') && c <= QLatin1Char('~'), qPrintable(text));
    QCOMPARE(text, text.simplified()); // a doubled blank is a slip where two literals meet
}

void TestDefaultTables::descriptionBeginsWithItsTitle()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    QVERIFY2(text.startsWith(QStringLiteral("The %1 scale").arg(title)), qPrintable(text));
}

void TestDefaultTables::descriptionEndsWithExamples()
{
    QFETCH(QString, text);
    const QRegularExpression closing(QStringLiteral("\\. Examples?: (\\S.*)$"));
    const auto found = closing.match(text);
    QVERIFY2(found.hasMatch(), qPrintable(text));
    QCOMPARE(text.count(QRegularExpression(QStringLiteral("Examples?:"))), 1);
    QVERIFY2(found.capturedStart() > text.size() / 2, qPrintable(text));
}

// What they claim

void TestDefaultTables::claimIsTrue_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const scale_claims::Claim& claim : scale_claims::claims) {
        QTest::addRow("%d %s: %s", index, claim.title, claim.phrase) << index;
        ++index;
    }
}

void TestDefaultTables::claimIsTrue()
{
    QFETCH(int, index);
    const scale_claims::Claim& claim = scale_claims::claims.at(static_cast<std::size_t>(index));
    const scale_data* row = scale_claims::rowOf(claim.title);
    QVERIFY(row);
    QVERIFY2(row->libBody.contains(QLatin1String(claim.phrase)), "the description does not say this");
    QVERIFY2(scale_claims::holds(claim), "the words of the scales do not bear this out");
}

void TestDefaultTables::claimIsTheOneOfItsPhrase()
{
    QFETCH(int, index);
    const scale_claims::Claim& claim = scale_claims::claims.at(static_cast<std::size_t>(index));
    const QString phrase = QString::fromLatin1(claim.phrase);
    for (const QString& word : wordsWanted(claim))
        QVERIFY2(phrase.contains(word), qPrintable(word));
    for (const char* title : claim.of)
        QVERIFY2(isNamedIn(phrase, title), title);
    if (claim.kind == scale_claims::Kind::adding)
        QVERIFY2(phrase.contains(addedName(claim.numbers.at(0))), addedName(claim.numbers.at(0)));
}

// A sentence that compares scales and that no claim takes in would go unchecked.
void TestDefaultTables::everyEquivalenceIsClaimed()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    const QVector<bool> claimed = claimedPlaces(title, text);
    const QRegularExpression comparing(
        QStringLiteral("mode of|omitted|raised|lowered|added|equivalent to|transpositions|the same notes"
                       "|the notes of|read the same|of three semitones|differs from|partials"));
    for (auto it = comparing.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        for (int at = match.capturedStart(); at < match.capturedEnd(); ++at)
            QVERIFY2(claimed.at(at), qPrintable(text.mid(qMax(0, at - 40), 80)));
    }
}

// One of each kind, so that no check lets everything pass.
void TestDefaultTables::falseClaimsAreRefused()
{
    using scale_claims::Kind;
    const std::vector<scale_claims::Claim> falseClaims = {
        {"No Such Scale", "", Kind::noteCount, {}, {7}},
        {"Lydian", "", Kind::modeOf, {"No Such Scale"}, {4}},
        {"Lydian", "", Kind::modeOf, {"Ionian"}, {5}},
        {"Lydian", "", Kind::otherModeOf, {"Lydian"}},
        {"Lydian", "", Kind::notModeOf, {"Ionian"}},
        {"Man Gong", "", Kind::omitting, {"Aeolian", "Ionian"}, {2, 5}},
        {"Lydian", "", Kind::altering, {"Ionian"}, {-4}},
        {"Ionian", "", Kind::altering, {"Ionian"}, {}},
        {"Blues", "", Kind::adding, {"Minor Pentatonic"}, {4}},
        {"Eight-tone Spanish", "", Kind::uniting, {"Locrian", "Phrygian"}},
        {"Aeolian", "", Kind::sameNotesOn, {"Ionian"}, {4}},
        {"Blues", "", Kind::partOf, {"Minor Pentatonic"}},
        {"Lydian", "", Kind::holdsAllOthers},
        {"Lydian", "", Kind::differsInOne, {"Aeolian"}},
        {"Lydian", "", Kind::sharesLetters, {"Ionian"}, {0, 6}},
        {"Lydian", "", Kind::palindrome},
        {"Lydian", "", Kind::transpositions, {}, {11}},
        {"Lydian", "", Kind::modes, {}, {6}},
        {"Harmonic Minor", "", Kind::modesFillBlock},
        {"Lydian", "", Kind::ownComplement},
        {"Lydian", "", Kind::noteCount, {}, {6}},
        {"Lydian", "", Kind::steps, {}, {2, 2, 2}},
        {"Lydian", "", Kind::firstSteps, {}, {2, 2, 1}},
        {"Lydian", "", Kind::stepAt, {}, {3, 1}},
        {"Lydian", "", Kind::stepCount, {}, {1, 1}},
        {"Lydian", "", Kind::exactly, {}, {0, 4, 7}},
        {"Lydian", "", Kind::holds, {}, {0, 5}},
        {"Lydian", "", Kind::lacks, {}, {5, 6}},
        {"Lydian", "", Kind::everyOther, {}, {0, 4, 7, 10}},
        {"Lydian", "", Kind::chordRoots, {}, {0, 2}, {0, 4, 7}},
        {"Lydian", "", Kind::alternateTriads, {}, {}, {0, 4, 7}},
        {"Lydian", "", Kind::onlyModeWith, {}, {3, 4}},
        {"Lydian", "", Kind::onlyModeLacking, {"Ionian"}, {7}},
        {"Phrygian", "", Kind::brightestWith, {}, {3}},
        {"Harmonic Minor", "", Kind::fifthsInARow},
        {"Ionian", "", Kind::partials, {}, {8, 9, 10, 11, 12, 13, 14}},
        {"Lydian", "", Kind::melakarta, {}, {29}},
    };
    std::set<Kind> kinds, refused;
    for (const scale_claims::Claim& claim : scale_claims::claims)
        kinds.insert(claim.kind);
    for (std::size_t i = 0; i < falseClaims.size(); ++i) {
        QVERIFY2(!scale_claims::holds(falseClaims[i]), qPrintable(QString::number(i)));
        refused.insert(falseClaims[i].kind);
    }
    QVERIFY(std::includes(refused.begin(), refused.end(), kinds.begin(), kinds.end()));
}

QTEST_MAIN(TestDefaultTables)
#include "test_default_tables.moc"
