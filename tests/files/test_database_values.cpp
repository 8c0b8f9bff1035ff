// What the page about the file says of odd values, of objects and of places.

#include "DocumentFixture.h"

#include "screen/CenterScreen.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString hirajoshi = QStringLiteral("xoxxoooxxooo");

} // namespace

class TestDatabaseValues : public DocumentFixture
{
    Q_OBJECT

private slots:
    void oddValueIsReadAsThePageSays_data();
    void oddValueIsReadAsThePageSays();
    void scaleObjectsAreTakenAsThePageSays();
    void namesOfUnknownScalesAreKeptAsThePageSays();
    void presetsWithoutSelectorsShowTheActiveOne();
    void libraryOpensWithThePower();
    void unknownKeysStay();
    void powerButtonGoesToTheKeyOfAPlace_data();
    void powerButtonGoesToTheKeyOfAPlace();
    void movedPowerButtonLeavesThePowerAlone_data();
    void movedPowerButtonLeavesThePowerAlone();

private:
    /// What a key of the root stands for in the window.
    QVariant stateOf(const QString& key) const;
};

QVariant TestDatabaseValues::stateOf(const QString& key) const
{
    const QMap<QString, std::function<QVariant()>> readers = {
        {"PowerOnState", [this] { return power()->isSwitchOn(); }},
        {"TonicOnState", [this] { return tonic().switchOn; }},
        {"ScaleOnState", [this] { return scale().switchOn; }},
        {"ActiveHeader", [this] { return active(); }},
        {"TonicModifier", [this] { return tonic().tonicModifier(); }},
        {"TonicKeyBehindSwitch", [this] { return tonic().tonicModifier(); }},
        {"ScaleModifier", [this] { return scale().scaleModifier(); }},
        {"AnchorPosX", [this] { return anchors()->x(); }},
        {"SorvaneAnchorPosition", [this] { return anchors()->x(); }},
        {"SorvanePowerButtonPosition", [this] { return power()->x(); }},
        {"CurrentScene", [this] { return window->centerScreen->currentScene; }},
        {"LibViewOpened", [this] { return window->centerScreen->libraryOpen; }},
        {"SorvaneDefaultScalesArray", [this] { return library().categoryCount(); }},
        {"SorvaneDefaultHeadersArray", [this] { return asText(record(58)); }},
    };
    return readers.contains(key) ? readers.value(key)() : QVariant();
}

void TestDatabaseValues::oddValueIsReadAsThePageSays_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QVariant>("state"); // invalid: as it was
    const QVariant asItWas;
    const auto row = [](const char* key, const QJsonValue& value, const QVariant& state) {
        const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        QTest::addRow("%s %s", key, text.constData()) << QString(key) << value << state;
    };
    for (const char* key : {"PowerOnState", "TonicOnState", "ScaleOnState", "LibViewOpened"}) {
        for (const QJsonValue& value :
             {QJsonValue(2), QJsonValue(-1.5), QJsonValue("yes"), QJsonValue("true")})
            row(key, value, true);
        for (const QJsonValue& value :
             {QJsonValue(0), QJsonValue(0.4), QJsonValue(""), QJsonValue("0"), QJsonValue("false"),
              QJsonValue(), QJsonValue(QJsonArray{1}), QJsonValue(QJsonObject())})
            row(key, value, false);
    }
    row("ActiveHeader", "61", 61);
    row("ActiveHeader", 60.6, 61);
    for (const QJsonValue& value : {QJsonValue(60), QJsonValue(1e300), QJsonValue("C#4"), QJsonValue(true)})
        row("ActiveHeader", value, asItWas);
    for (const char* key : {"TonicModifier", "TonicKeyBehindSwitch"})
        for (const QJsonValue& value : {QJsonValue("H"), QJsonValue("d"), QJsonValue(""), QJsonValue(2)})
            row(key, value, asItWas);
    for (const QJsonValue& value :
         {QJsonValue(""), QJsonValue("xox"), QJsonValue(QJsonArray{"xooxoxoxooxo"})})
        row("ScaleModifier", value, asItWas);
    row("ScaleModifier", "xxoo?xxxxxxx", asItWas);
    row("ScaleModifier", "xooxoxoxooxo?", "xooxoxoxooxo");
    for (const char* key : {"AnchorPosX", "SorvaneAnchorPosition"})
        for (const QJsonValue& value : {QJsonValue("far"), QJsonValue(), QJsonValue(QJsonArray{17})})
            row(key, value, 0);
    row("AnchorPosX", "-17", -17);
    row("SorvaneAnchorPosition", "-17", 0);
    row("AnchorPosX", 1e300, 1000000);
    row("SorvanePowerButtonPosition", "50", asItWas); // there is no flag at 0
    row("CurrentScene", 2.4, 2);
    row("CurrentScene", "4", 4);
    for (const QJsonValue& value : {QJsonValue(0), QJsonValue(5), QJsonValue("MIDI"), QJsonValue()})
        row("CurrentScene", value, asItWas);
    row("SorvaneDefaultScalesArray", "none", 0);
    row("SorvaneDefaultHeadersArray", "none", asItWas);
    row("SorvaneDefaultHeadersArray",
        QJsonArray{{},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   {},
                   QJsonObject{{"TonicOn", "true"},
                               {"ScaleOn", 1},
                               {"AnchorValid", 1},
                               {"AnchorPos", 2.5},
                               {"NameTonic", 5}}},
        asText(header_data()));
}

void TestDatabaseValues::oddValueIsReadAsThePageSays()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QVariant, state);
    window->setPower(true);
    window->showLibraryScreen(key == "LibViewOpened" && !state.toBool());
    if (!state.toBool() && state.type() == QVariant::Bool) {
        QCOMPARE(stateOf(key), QVariant(true));
    } else if (state.type() == QVariant::Bool && key != "LibViewOpened") {
        importRoot({{key, false}});
        QCOMPARE(stateOf(key), QVariant(false));
    }
    placeAnchors(34);
    const QVariant before = stateOf(key);
    QVERIFY(before.isValid());
    QVERIFY(before != state);
    importRoot({{key, value}});
    QCOMPARE(stateOf(key), state.isValid() ? state : before);
}

void TestDatabaseValues::scaleObjectsAreTakenAsThePageSays()
{
    const auto scale = [](const char* category, const char* title, const QString& word) {
        return QJsonObject{{"Category", category}, {"Title", title}, {"Scale", word}, {"Abbr1", 5}};
    };
    importRoot({{"SorvaneDefaultScalesArray",
                 QJsonArray{scale("2 - b", "later", hirajoshi), scale("10 - a", "earlier", hirajoshi),
                            scale("10 - a", "twice", unknownWord), scale("10 - a", "once", unknownWord),
                            scale("2 - b", "", ionian), scale("2 - b", "none", ""), "no object"}}});
    QCOMPARE(library().categories(), QVector<QString>({"", "2 - b", "10 - a"}));
    QCOMPARE(library().scalesFromCategory("10 - a"), QList<QString>({unknownWord, hirajoshi}));
    QCOMPARE(library().scalesFromCategory("2 - b"), QList<QString>({hirajoshi}));
    scale_data found;
    QVERIFY(library().getScaleData(hirajoshi, found, DatabaseLibrary::LibraryRole));
    QCOMPARE(found.title, QString("earlier")); // "10 - a" stands before "2 - b" letter by letter
    QCOMPARE(found.abbr1, QString());
    QVERIFY(library().getScaleData(unknownWord, found, DatabaseLibrary::LibraryRole));
    QCOMPARE(found.title, QString("once"));
}

void TestDatabaseValues::namesOfUnknownScalesAreKeptAsThePageSays()
{
    const auto preset = [](const char* upper, const char* lower, const QString& word) {
        return QJsonObject{
            {"NameScenic1", upper}, {"NameScenic2", lower}, {"ScaleOn", true}, {"ScaleData", word}};
    };
    emptyHeaders();
    importRoot({{"SorvaneDefaultHeadersArray",
                 QJsonArray{preset("User", "7", unknownWord), preset("User", "7", otherUnknownWord),
                            preset("User", "8", unknownWord), preset("My", "drone", octaves),
                            preset("User", "9", ionian)}}});
    QCOMPARE(names(header(22)), QStringList({"User", "7"}));
    QCOMPARE(names(header(25)), QStringList({"User", "1"}));
    QCOMPARE(names(header(27)), QStringList({"User", "7"}));
    QCOMPARE(names(header(30)), QStringList({"My", "drone"}));
    QCOMPARE(names(header(32)), abbreviations(ionian));
}

void TestDatabaseValues::presetsWithoutSelectorsShowTheActiveOne()
{
    const QJsonObject d{{"TonicOn", true}, {"TonicData", "D"}, {"ScaleOn", true}, {"ScaleData", hirajoshi}};
    const QJsonObject root{{"SorvaneDefaultHeadersArray", QJsonArray{d}}, {"ActiveHeader", lowest}};
    importRoot(root);
    QCOMPARE(tonic().tonicModifier() + scale().scaleModifier(), "D" + hirajoshi);
    QJsonObject other = root;
    other.insert("TonicModifier", "E");
    setScale(ionian);
    importRoot(other);
    QCOMPARE(tonic().tonicModifier() + scale().scaleModifier(), "E" + ionian);
    QCOMPARE(record(lowest).tonicData + record(lowest).scaleData, "D" + hirajoshi);
}

void TestDatabaseValues::libraryOpensWithThePower()
{
    importRoot({{"LibViewOpened", true}});
    QVERIFY(!window->centerScreen->libraryOpen);
    window->setPower(true);
    QVERIFY(window->centerScreen->libraryOpen);
}

void TestDatabaseValues::unknownKeysStay()
{
    const QJsonObject strangers{{"x-note", "of a script"},
                                {"x-list", QJsonArray{1, "two", QJsonValue(), 2.5}},
                                {"PowerPointX", 3},
                                {"MidiInPort-not here", true}};
    importRoot(strangers);
    closeWindow();
    openWindow(); // the store outlives it
    const QJsonObject written = exportRoot();
    for (auto stranger = strangers.begin(); stranger != strangers.end(); ++stranger)
        QVERIFY2(written.value(stranger.key()) == stranger.value(), qPrintable(stranger.key()));
}

void TestDatabaseValues::powerButtonGoesToTheKeyOfAPlace_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("key");
    const auto row = [](int key, int place) { QTest::addRow("key %d", key) << place << key; };
    row(22, 16);
    const std::pair<int, int> firstOctave[] = {{25, 50}, {27, 67}, {30, 101}, {32, 118}, {34, 135}};
    for (int octave = 0; octave < 7; ++octave)
        for (const auto& [key, place] : firstOctave)
            row(key + 12 * octave, place + 119 * octave);
}

void TestDatabaseValues::powerButtonGoesToTheKeyOfAPlace()
{
    QFETCH(int, place);
    QFETCH(int, key);
    for (const int error : {0, -5, 5}) {
        importRoot({{"SorvanePowerButtonPosition", key < 60 ? 849 : 16}}); // far from there
        QVERIFY(key_roles::pitch(power()) != key);
        importRoot({{"SorvanePowerButtonPosition", place + error}});
        QCOMPARE(key_roles::pitch(power()), key);
        QCOMPARE(power()->x(), qreal(place));
    }
}

void TestDatabaseValues::movedPowerButtonLeavesThePowerAlone_data()
{
    QTest::addColumn<bool>("wasOn");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void TestDatabaseValues::movedPowerButtonLeavesThePowerAlone()
{
    QFETCH(bool, wasOn);
    window->setPower(wasOn);
    importRoot({{"SorvanePowerButtonPosition", 50}});
    QCOMPARE(key_roles::pitch(power()), 25);
    QCOMPARE(power()->isSwitchOn(), wasOn);
    QCOMPARE(window->centerScreen->isLibraryAccessible(), wasOn);
    QCOMPARE(header(powerKey)->isVisible(), wasOn);
    QVERIFY(!header(25)->isVisible());
}

QTEST_MAIN(TestDatabaseValues)
#include "test_database_values.moc"
