// The sample database: what a newcomer gets who opens it, and that it is what the program itself would write.

#include "DocumentFixture.h"
#include "first_steps.h"
#include "words.h"

#include "screen/CenterScreen.h"
#include "screen/library_name.h"

#include <QRegularExpression>

#include <set>

namespace {

const QString userCategory = QStringLiteral("10 - User Scales");
const QString hirajoshi = QStringLiteral("xoxxoooxxooo");

constexpr int noteOfA = 9, noteOfC = 0, noteOfD = 2, noteOfF = 5;

/// The presets that the sample has beside the factory's, with the tonic as a note of the octave.
struct NewPreset
{
    int key;
    const char* tonicName;
    int tonic;
    const char* title;
};

constexpr NewPreset newPresets[] = {
    {25, "F", noteOfF, "Major Blues"},
    {27, "D", noteOfD, "Blues"},
    {30, "D", noteOfD, "Minor Seventh Chord"},
    {32, "F", noteOfF, "Major Triad"},
    {34, "D", noteOfD, "Messiaen's Third Mode"},
    {37, "D", noteOfD, "Hirajoshi"},
    {39, "A", noteOfA, "Miyako-bushi"},
    {42, "D", noteOfD, "Kumoi"},
    {44, "D", noteOfD, "Dorian #4"},
    {46, "A", noteOfA, "Harmonic Minor"},
    {63, "C", noteOfC, "Ionian"},
};

bool isOfThisMachine(const QString& key)
{
    return key == QLatin1String("DatabasePath") || key.startsWith(QLatin1String("Midi"));
}

} // namespace

class TestFirstSteps : public DocumentFixture
{
    Q_OBJECT

private slots:
    void init();

    void holdsNothingOfAMachine();
    void holdsTheFactoryLibrary();
    void userScalesAreOnesThatADialogWouldTake();
    void otherPresetsAreTheFactorys();
    void opensWithItsFirstScalePlayed();
    void presetPlaysItsScale_data();
    void presetPlaysItsScale();
    void neighboursShareTheirNotes();
    void isWhatTheProgramWrites();

private:
    /// The notes of the octave that a preset plays.
    [[nodiscard]] std::set<int> notesOf(int key) const;
};

void TestFirstSteps::init()
{
    openWindow();
    QCOMPARE(window->importDatabase(first_steps::path), QString());
}

std::set<int> TestFirstSteps::notesOf(int key) const
{
    for (const NewPreset& preset : newPresets)
        if (preset.key == key)
            return words::notes(record(key).scaleData, preset.tonic);
    return {};
}

void TestFirstSteps::holdsNothingOfAMachine()
{
    const QStringList keys = first_steps::root().keys();
    QVERIFY(!keys.isEmpty());
    for (const QString& key : keys)
        QVERIFY2(!isOfThisMachine(key), qPrintable(key));
}

void TestFirstSteps::holdsTheFactoryLibrary()
{
    const DatabaseLibrary factory;
    QCOMPARE(library().categories(), factory.categories());
    for (const QString& category : factory.categories()) {
        if (category == userCategory)
            continue;
        QCOMPARE(library().scalesFromCategory(category), factory.scalesFromCategory(category));
        for (const QString& key : factory.scalesFromCategory(category)) {
            scale_data own, wanted;
            QVERIFY(library().getScaleData(key, own, DatabaseLibrary::LibraryRole));
            QVERIFY(factory.getScaleData(key, wanted, DatabaseLibrary::LibraryRole));
            QCOMPARE(QStringList({own.title, own.abbr1, own.abbr2, own.libBody}),
                     QStringList({wanted.title, wanted.abbr1, wanted.abbr2, wanted.libBody}));
        }
    }
}

void TestFirstSteps::userScalesAreOnesThatADialogWouldTake()
{
    static const QRegularExpression isWord(QStringLiteral("\\Ax[xo]{11}\\z"));
    const DatabaseLibrary factory;
    const QList<QString> keys = library().scalesFromCategory(userCategory);
    QCOMPARE(keys.size(), 8);
    QCOMPARE(keys.first(), hirajoshi);
    for (const QString& key : keys) {
        scale_data scale;
        QVERIFY(library().getScaleData(key, scale, DatabaseLibrary::LibraryRole));
        QVERIFY2(isWord.match(key).hasMatch() && key == scale.scale, qPrintable(key));
        QVERIFY2(!factory.containsScale(key, DatabaseLibrary::AnyRole), qPrintable(scale.title));
        QVERIFY2(library_name::fits(scale.abbr1), qPrintable(scale.abbr1));
        QVERIFY2(library_name::fits(scale.abbr2), qPrintable(scale.abbr2));
        QVERIFY(!scale.abbr1.isEmpty() && !scale.abbr2.isEmpty() && !scale.title.isEmpty());
        QVERIFY2(scale.libBody.size() > 100, qPrintable(scale.title));
    }
}

void TestFirstSteps::otherPresetsAreTheFactorys()
{
    const QSet<int> own = [] {
        QSet<int> keys;
        for (const NewPreset& preset : newPresets)
            keys.insert(preset.key);
        return keys;
    }();
    closeWindow();
    openWindow();
    QMap<int, QString> factory;
    for (const HeaderItem* item : qAsConst(presets().headers))
        factory.insert(key_roles::pitch(item), asText(item->record));
    QCOMPARE(window->importDatabase(first_steps::path), QString());
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        QCOMPARE(asText(item->record) == factory.value(key), !own.contains(key));
    }
}

void TestFirstSteps::opensWithItsFirstScalePlayed()
{
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(key_roles::pitch(power()), powerKey);
    QCOMPARE(active(), 37);
    QCOMPARE(tonic().tonicModifier(), QString("D"));
    QCOMPARE(scale().scaleModifier(), hirajoshi);
    QVERIFY(window->centerScreen->libraryOpen);
    QCOMPARE(library().currentCategory(), userCategory);
    QCOMPARE(library().currentScale(), hirajoshi);
    const QList<int> played = {target(60), target(62), target(64), target(65), target(67), target(69)};
    QCOMPARE(played, QList<int>({62, 64, 65, 69, 70, 74})); // D E F A A# D
}

void TestFirstSteps::presetPlaysItsScale_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const NewPreset& preset : newPresets)
        QTest::addRow("%s %s", preset.tonicName, preset.title) << row++;
}

void TestFirstSteps::presetPlaysItsScale()
{
    QFETCH(int, row);
    const NewPreset& preset = newPresets[row];
    const scale_data wanted = first_steps::scaleOf(preset.title);
    QVERIFY(!wanted.scale.isEmpty());
    recall(lowest);
    recall(preset.key);
    QCOMPARE(tonic().tonicModifier(), QString(preset.tonicName));
    QCOMPARE(record(preset.key).nameTonic, QString(preset.tonicName));
    QCOMPARE(scale().scaleModifier(), wanted.scale);
    QCOMPARE(names(header(preset.key)), QStringList({wanted.abbr1, wanted.abbr2}));
    // The white keys from middle C up climb the scale from the tonic at or above it.
    const std::set<int> notes = words::notes(wanted.scale, preset.tonic);
    constexpr int whiteKeys[] = {60, 62, 64, 65, 67, 69, 71, 72};
    int expected = 60 + preset.tonic;
    for (const int key : whiteKeys) {
        QCOMPARE(target(key), expected);
        do
            ++expected;
        while (notes.count(expected % words::octave) == 0);
    }
}

// What makes the two rows of presets a tune to walk through: each begins where the one beside it has been.
void TestFirstSteps::neighboursShareTheirNotes()
{
    QCOMPARE(notesOf(25), notesOf(27)); // F Major Blues, D Blues
    QVERIFY(words::includes(notesOf(27), notesOf(30)));
    QVERIFY(words::includes(notesOf(30), notesOf(32)));
    QCOMPARE(notesOf(37), notesOf(39)); // D Hirajoshi, A Miyako-bushi
    QVERIFY(words::includes(notesOf(44), notesOf(42)));
    QCOMPARE(notesOf(44), notesOf(46)); // D Dorian #4, A Harmonic Minor
}

void TestFirstSteps::isWhatTheProgramWrites()
{
    QJsonObject written = exportRoot();
    QJsonObject wanted = first_steps::root();
    const QStringList keys = written.keys();
    for (const QString& key : keys)
        if (!wanted.contains(key)) {
            QVERIFY2(isOfThisMachine(key), qPrintable(key));
            written.remove(key);
        }
    for (const QString& key : wanted.keys())
        QVERIFY2(written.value(key) == wanted.value(key), qPrintable(key));
    QCOMPARE(written, wanted);
}

QTEST_MAIN(TestFirstSteps)
#include "test_first_steps.moc"
