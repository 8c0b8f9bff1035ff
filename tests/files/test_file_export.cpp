// What stands in a written file.

#include "FileFixture.h"
#include "HeaderLog.h"
#include "library/DbReadWriter.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <algorithm>

namespace {

QStringList members(const QJsonArray& array, const char* key)
{
    QStringList values;
    for (const QJsonValue& value : array)
        values << value.toObject().value(QLatin1String(key)).toString();
    return values;
}

QJsonArray ofCategory(const QJsonArray& scales, const QString& category)
{
    QJsonArray found;
    for (const QJsonValue& value : scales)
        if (value.toObject().value(QStringLiteral("Category")).toString() == category)
            found.append(value);
    return found;
}

} // namespace

class TestFileExport : public FileFixture
{
    Q_OBJECT

private slots:
    // The root
    void databaseKeysHaveTheirTypes();
    void settingsKeysHaveTheirTypes();
    void settingsTellThePresentState();
    void noActivePresetIsNumberZero();
    void fourKeysAreSetInARootThatKeepsTheOthers();
    void databaseKeysWinOverWhatTheStoreHolds();
    void everyStoredValueIsWritten();
    void placesAreTheOnesOfTheStage();

    // Scales
    void scaleHasSixStrings();
    void categoriesAreWrittenByTheirNames();
    void categoryIsWrittenBackwards();
    void scaleInSeveralCategoriesIsWrittenInEach();
    void emptyCategoryIsOneObjectOfEmptyStrings();
    void playedScalesAreLeftOut();
    void orderOfTheCategoriesLastUsedDoesNotShow();

    // Presets
    void presetsAreWrittenInTheirOrder();
    void presetHasElevenMembers();
    void flagsAreWrittenAtHome();

    // The file
    void textIsIndented();
    void fileIsReplacedAsAWhole();
    void writingIsLogged();
    void failureIsReturnedAndNotLogged();
};

void TestFileExport::databaseKeysHaveTheirTypes()
{
    const QJsonObject root = exported();
    QCOMPARE(root.value(scalesKey).type(), QJsonValue::Array);
    QCOMPARE(root.value(headersKey).type(), QJsonValue::Array);
    QCOMPARE(root.value(powerPlaceKey).type(), QJsonValue::Double);
    QCOMPARE(root.value(anchorsPlaceKey).type(), QJsonValue::Double);
}

void TestFileExport::settingsKeysHaveTheirTypes()
{
    const QJsonObject root = exported();
    for (const char* key : {"PowerOnState", "TonicOnState", "ScaleOnState", "LibViewOpened"})
        QCOMPARE(root.value(QLatin1String(key)).type(), QJsonValue::Bool);
    for (const char* key : {"ActiveHeader", "CurrentScene", "AnchorPosX"})
        QCOMPARE(root.value(QLatin1String(key)).type(), QJsonValue::Double);
    for (const char* key : {"TonicModifier", "ScaleModifier"})
        QCOMPARE(root.value(QLatin1String(key)).type(), QJsonValue::String);
}

void TestFileExport::settingsTellThePresentState()
{
    leaveTheStart();
    QJsonObject root = exported();
    QCOMPARE(root.value("PowerOnState"), QJsonValue(true));
    QCOMPARE(root.value("ActiveHeader"), QJsonValue(27));
    QCOMPARE(root.value("TonicOnState"), QJsonValue(true));
    QCOMPARE(root.value("ScaleOnState"), QJsonValue(true));
    QCOMPARE(root.value("TonicModifier"), QJsonValue("E"));
    QCOMPARE(root.value("ScaleModifier"), QJsonValue(scale().scaleModifier()));
    QCOMPARE(root.value("AnchorPosX"), QJsonValue(34));
    QCOMPARE(root.value("CurrentScene"), QJsonValue(3));
    QCOMPARE(root.value("LibViewOpened"), QJsonValue(false));
    scale().setSwitchOff(true);
    tonic().setSwitchOff(true);
    window->showLibraryScreen(true);
    root = exported();
    QCOMPARE(root.value("TonicOnState"), QJsonValue(false));
    QCOMPARE(root.value("ScaleOnState"), QJsonValue(false));
    QCOMPARE(root.value("TonicModifier"), QJsonValue(""));
    QCOMPARE(root.value("LibViewOpened"), QJsonValue(true));
    window->setPower(false);
    QCOMPARE(exported().value("PowerOnState"), QJsonValue(false));
}

void TestFileExport::noActivePresetIsNumberZero()
{
    presets().activeHeader = nullptr;
    QCOMPARE(exported().value("ActiveHeader"), QJsonValue(0));
}

void TestFileExport::fourKeysAreSetInARootThatKeepsTheOthers()
{
    QJsonObject root{{"Other", 5}, {scalesKey, 1}};
    DbReadWriter::exportJsonDatabase(root);
    QCOMPARE(root.size(), 5);
    QCOMPARE(root.value("Other"), QJsonValue(5));
    QVERIFY(!root.value(scalesKey).toArray().isEmpty());
}

void TestFileExport::databaseKeysWinOverWhatTheStoreHolds()
{
    for (const QString& key : {scalesKey, headersKey, powerPlaceKey, anchorsPlaceKey})
        SettingsStore::setSettingsProperty(key, QStringLiteral("stale"));
    const QJsonObject root = exported();
    for (const QString& key : {scalesKey, headersKey, powerPlaceKey, anchorsPlaceKey})
        QVERIFY(!root.value(key).isString());
}

void TestFileExport::everyStoredValueIsWritten()
{
    SettingsStore::setSettingsProperty(QStringLiteral("aBool"), true);
    SettingsStore::setSettingsProperty(QStringLiteral("aNumber"), 1.5);
    SettingsStore::setSettingsProperty(QStringLiteral("aList"), QVariantList{1, QStringLiteral("x")});
    SettingsStore::setSettingsProperty(QStringLiteral("aMap"), QVariantMap{{QStringLiteral("k"), 1}});
    SettingsStore::setSettingsProperty(QStringLiteral("nothing"), QVariant());
    SettingsStore::setDbFileName(QStringLiteral("/a.svdb"));
    SettingsStore::setPointFProperty(QStringLiteral("Home"), {1.5, -2});
    SettingsStore::setMidiInPortSelected(QStringLiteral("Piano"), false);
    const QJsonObject root = exported();
    QCOMPARE(root.value("aBool"), QJsonValue(true));
    QCOMPARE(root.value("aNumber"), QJsonValue(1.5));
    QCOMPARE(root.value("aList"), QJsonValue(QJsonArray{1, "x"}));
    QCOMPARE(root.value("aMap"), QJsonValue(QJsonObject{{"k", 1}}));
    QCOMPARE(root.value("nothing"), QJsonValue(QJsonValue::Null));
    QCOMPARE(root.value("DatabasePath"), QJsonValue("/a.svdb"));
    QCOMPARE(root.value("Home-PointFX"), QJsonValue(1.5));
    QCOMPARE(root.value("Home-PointFY"), QJsonValue(-2));
    QCOMPARE(root.value("MidiInPort-Piano"), QJsonValue(false));
}

void TestFileExport::placesAreTheOnesOfTheStage()
{
    placeAnchors(-51.5);
    power()->setLastPos({101, 5});
    const QJsonObject root = exported();
    QCOMPARE(root.value(powerPlaceKey), QJsonValue(101));
    QCOMPARE(root.value(anchorsPlaceKey), QJsonValue(-51.5));
    QCOMPARE(root.value("AnchorPosX"), QJsonValue(-51.5));
}

void TestFileExport::scaleHasSixStrings()
{
    for (const QJsonValue& value : exportedScales()) {
        const QJsonObject object = value.toObject();
        QCOMPARE(object.keys(), (QStringList{"Abbr1", "Abbr2", "Category", "LibBody", "Scale", "Title"}));
        for (const QJsonValue& member : object)
            QVERIFY(member.isString());
    }
    library().insertCategory(QStringLiteral("Mine"));
    library().setScaleData(unknownWord, {unknownWord, "one", "two", "title", "body"},
                           DatabaseLibrary::LibraryRole);
    library().appendScaleToCategory(QStringLiteral("Mine"), unknownWord);
    QCOMPARE(ofCategory(exportedScales(), QStringLiteral("Mine")),
             (QJsonArray{QJsonObject{{"Category", "Mine"},
                                     {"Title", "title"},
                                     {"Abbr1", "one"},
                                     {"Abbr2", "two"},
                                     {"Scale", unknownWord},
                                     {"LibBody", "body"}}}));
}

// By the letters' numbers: "10 - ..." before "2 - ...", although the library shows it behind "9 - ...".
void TestFileExport::categoriesAreWrittenByTheirNames()
{
    for (const char* name : {"b", "B", "", "a"})
        library().insertCategory(QLatin1String(name));
    QStringList written = members(exportedScales(), "Category");
    written.erase(std::unique(written.begin(), written.end()), written.end());
    QStringList expected = library().categories().toList();
    std::sort(expected.begin(), expected.end());
    QCOMPARE(written, expected);
    QVERIFY(written != library().categories().toList());
}

void TestFileExport::categoryIsWrittenBackwards()
{
    const QJsonArray scales = exportedScales();
    for (const QString& category : library().categories()) {
        QStringList words = library().scalesFromCategory(category);
        std::reverse(words.begin(), words.end());
        if (words.isEmpty())
            words << QString();
        QCOMPARE(members(ofCategory(scales, category), "Scale"), words);
    }
}

void TestFileExport::scaleInSeveralCategoriesIsWrittenInEach()
{
    const int before = members(exportedScales(), "Scale").count(ionian);
    for (const char* name : {"one", "two"}) {
        library().insertCategory(QLatin1String(name));
        library().appendScaleToCategory(QLatin1String(name), ionian);
    }
    const QJsonArray scales = exportedScales();
    QCOMPARE(members(scales, "Scale").count(ionian), before + 2);
    const QJsonObject one = ofCategory(scales, QStringLiteral("one")).first().toObject();
    QJsonObject two = ofCategory(scales, QStringLiteral("two")).first().toObject();
    two.insert(QStringLiteral("Category"), QStringLiteral("one"));
    QCOMPARE(two, one);
}

void TestFileExport::emptyCategoryIsOneObjectOfEmptyStrings()
{
    library().insertCategory(QStringLiteral("none"));
    QCOMPARE(ofCategory(exportedScales(), QStringLiteral("none")),
             (QJsonArray{QJsonObject{{"Category", "none"},
                                     {"Title", ""},
                                     {"Abbr1", ""},
                                     {"Abbr2", ""},
                                     {"Scale", ""},
                                     {"LibBody", ""}}}));
}

void TestFileExport::playedScalesAreLeftOut()
{
    setRecord(25, scaleRecord(unknownWord));
    QVERIFY(library().isCustomScale(unknownWord));
    QVERIFY(!members(exportedScales(), "Scale").contains(unknownWord));
    const QString category = library().categories().last();
    library().appendScaleToCategory(category, unknownWord);
    QVERIFY(!members(exportedScales(), "Scale").contains(unknownWord));
    library().setScaleData(unknownWord, {unknownWord, {}, {}, "t", {}}, DatabaseLibrary::LibraryRole);
    QVERIFY(members(exportedScales(), "Scale").contains(unknownWord));
}

void TestFileExport::orderOfTheCategoriesLastUsedDoesNotShow()
{
    const QJsonArray before = exportedScales();
    library().setCurrentCategory(library().categories().at(4));
    QCOMPARE(exportedScales(), before);
}

void TestFileExport::presetsAreWrittenInTheirOrder()
{
    setRecord(22, fullRecord());
    setRecord(106, scaleRecord(wholeTone));
    const QJsonArray array = exportedHeaders();
    QCOMPARE(array.size(), 36);
    for (int i = 0; i < array.size(); ++i) {
        QJsonObject expected = headerObject(presets().headers.at(i)->record);
        expected.insert(QStringLiteral("XPos"), presets().headers.at(i)->x());
        expected.insert(QStringLiteral("YPos"), presets().headers.at(i)->y());
        QCOMPARE(array.at(i).toObject(), expected);
    }
    QCOMPARE(array.first().toObject().value("AnchorPos"), QJsonValue(51));
}

void TestFileExport::presetHasElevenMembers()
{
    for (const QJsonValue& value : exportedHeaders())
        QCOMPARE(value.toObject().keys(),
                 (QStringList{"AnchorPos", "AnchorValid", "NameScenic1", "NameScenic2", "NameTonic",
                              "ScaleData", "ScaleOn", "TonicData", "TonicOn", "XPos", "YPos"}));
}

void TestFileExport::flagsAreWrittenAtHome()
{
    const QJsonArray array = exportedHeaders();
    for (int i = 0; i < array.size(); ++i) {
        const QJsonObject object = array.at(i).toObject();
        QCOMPARE(QPointF(object.value("XPos").toDouble(), object.value("YPos").toDouble()),
                 presets().headers.at(i)->homePos);
    }
}

void TestFileExport::textIsIndented()
{
    const QString file = pathOf("text.svdb");
    QCOMPARE(SettingsStore::exportDatabase(file), QString());
    QFile in(file);
    QVERIFY(in.open(QIODevice::ReadOnly));
    const QByteArray text = in.readAll();
    QCOMPARE(text, QJsonDocument::fromJson(text).toJson(QJsonDocument::Indented));
    QVERIFY(text.startsWith("{\n    \""));
}

void TestFileExport::fileIsReplacedAsAWhole()
{
    const QString file = pathOf("old.svdb");
    write(file, QByteArray(1000000, 'x'));
    QCOMPARE(SettingsStore::exportDatabase(file), QString());
    QCOMPARE(read(file).value(headersKey).toArray().size(), 36);
}

void TestFileExport::writingIsLogged()
{
    const HeaderLog log(lcLibrary());
    expectLine("^\"?Success Write File\"?$");
    QCOMPARE(SettingsStore::exportDatabase(pathOf("logged.svdb")), QString());
}

// The test fails on a line that it does not expect.
void TestFileExport::failureIsReturnedAndNotLogged()
{
    const HeaderLog log(lcLibrary());
    static QStringList lines;
    lines.clear();
    const auto keep = [](QtMsgType, const QMessageLogContext&, const QString& line) { lines << line; };
    const QtMessageHandler before = qInstallMessageHandler(keep);
    const QString missing = SettingsStore::exportDatabase(pathOf("no/such/folder.svdb"));
    const QString onFolder = SettingsStore::exportDatabase(QDir(pathOf("")).absolutePath());
    qInstallMessageHandler(before);
    QVERIFY(!missing.isEmpty());
    QVERIFY(!onFolder.isEmpty());
    QCOMPARE(lines.filter(QStringLiteral("Success")), QStringList());
}

QTEST_MAIN(TestFileExport)
#include "test_file_export.moc"
