// What a load does beyond the letter of the file, so that a file brings a state back as it sounded and
// looked.

#include "FileFixture.h"
#include "keys/TonicKeyItem.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <limits>

class TestFileReadings : public FileFixture
{
    Q_OBJECT

private slots:
    // States that the file does not name
    void storedStatesOfEarlierFilesAreNotApplied();

    // The presets' records win
    void recordsWinOverTheSwapOfThePowerButton();
    void recordsWinOverThePresetThatIsLeft();
    void recordsWinOverTheSelectors();

    // User numbers
    void userNumberComesBack();
    void userNumberIsKeptByTheFirstOfTwo();
    void wordOfTheLibraryTakesNoUserNumber();
    void namesOfAPlayedScaleComeBack_data();
    void namesOfAPlayedScaleComeBack();
    void lastUserNumberIsOneThatCounts();
    void otherUserNumbersStayTaken();
    void userNumberOfASwitchedOffScaleIsFree();

    // A tonic behind its switch
    void tonicBehindItsSwitchComesBack();
    void tonicBehindItsSwitchIsWrittenOnlyThen();
    void tonicBehindItsSwitchComesBehindTheTonic();

    // What is shown is what sounds
    void importEndsInARemap();
    void blackKeysAreNoPresetsWithThePowerOff();
    void libraryViewWaitsForThePower();
    void libraryFollowsThePlayedWord();

    // Places
    void placesAreBounded_data();
    void placesAreBounded();
    void presetsPlaceIsBounded();

    // Keys that no version knows
    void unknownKeysSurvive();
};

void TestFileReadings::storedStatesOfEarlierFilesAreNotApplied()
{
    leaveTheStart();
    import({{ "DatabasePath", "/a.svdb" }});
    const Facts before = facts();
    const QJsonObject earlier{{"PowerOnState", false}, {"TonicOnState", false},      {"ScaleOnState", false},
                              {"TonicModifier", "B"},  {"ScaleModifier", wholeTone}, {"ActiveHeader", 90},
                              {"CurrentScene", 4},     {"LibViewOpened", true},      {"AnchorPosX", -170},
                              {hiddenTonicKey, "B"}};
    for (auto member = earlier.begin(); member != earlier.end(); ++member)
        SettingsStore::setSettingsProperty(member.key(), member.value().toVariant());
    import({{ "DatabasePath", "/b.svdb" }});
    QCOMPARE(changesSince(before), QStringList());
    import(earlier);
    QVERIFY(changesSince(before).size() > 8);
}

void TestFileReadings::recordsWinOverTheSwapOfThePowerButton()
{
    setRecord(powerKey, fullRecord());
    setRecord(61, scaleRecord(wholeTone));
    const QJsonArray array = exportedHeaders();
    import({{headersKey, array}, { powerPlaceKey, window->findInNote(61)->x() - 4 }});
    QCOMPARE(key_roles::pitch(power()), 61);
    QCOMPARE(exportedHeaders(), array);
}

void TestFileReadings::recordsWinOverThePresetThatIsLeft()
{
    window->setPower(true);
    recall(30);
    const QJsonArray array = exportedHeaders();
    setScale(wholeTone);
    setTonic("A");
    import({{headersKey, array}, { "ActiveHeader", 32 }});
    QCOMPARE(active(), 32);
    QCOMPARE(exportedHeaders(), array);
}

void TestFileReadings::recordsWinOverTheSelectors()
{
    window->setPower(true);
    recall(30);
    tonic().setSwitchOn(true);
    setTonic("C");
    const QJsonArray array = exportedHeaders();
    import({{headersKey, array}, {"TonicModifier", "A"}, {"ScaleOnState", false}, { "TonicOnState", true }});
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("A"));
    QCOMPARE(exportedHeaders(), array);
}

void TestFileReadings::userNumberComesBack()
{
    header_data seventh = scaleRecord(unknownWord);
    seventh.nameScenic1 = QStringLiteral("User");
    seventh.nameScenic2 = QStringLiteral("77");
    import({{ headersKey, QJsonArray { headerObject(seventh) } }});
    QCOMPARE(names(header(22)), (QStringList{"User", "77"}));
    QCOMPARE(abbreviations(unknownWord), (QStringList{"User", "77"}));
    QVERIFY(library().isCustomScale(unknownWord));
    scale_data found;
    QVERIFY(library().getScaleData(unknownWord, found, DatabaseLibrary::CustomRole));
    QCOMPARE(found.title, QStringLiteral("User 77"));
    QCOMPARE(found.libBody, QString());
}

void TestFileReadings::userNumberIsKeptByTheFirstOfTwo()
{
    header_data first = scaleRecord(unknownWord), second = scaleRecord(otherUnknownWord);
    for (header_data* data : {&first, &second}) {
        data->nameScenic1 = QStringLiteral("User");
        data->nameScenic2 = QStringLiteral("77");
    }
    emptyHeaders();
    import({{ headersKey, QJsonArray { headerObject(first), headerObject(second) } }});
    QCOMPARE(names(header(22)), (QStringList{"User", "77"}));
    QCOMPARE(names(header(25)), (QStringList{"User", "1"}));
}

void TestFileReadings::wordOfTheLibraryTakesNoUserNumber()
{
    emptyHeaders();
    header_data data = scaleRecord(lydian);
    data.nameScenic1 = QStringLiteral("User");
    data.nameScenic2 = QStringLiteral("77");
    const QStringList before = abbreviations(lydian);
    import({{ headersKey, QJsonArray { headerObject(data) } }});
    QCOMPARE(names(header(22)), before);
    QVERIFY(!library().isCustomScale(lydian));
}

void TestFileReadings::namesOfAPlayedScaleComeBack_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("kept");
    for (const char* number : {"1", "108", "0", "109", "-1", "x", ""})
        QTest::addRow("number '%s'", number) << "User" << QString(QLatin1String(number)) << true;
    QTest::newRow("names of its own") << "Mine"
                                      << "5" << true;
    QTest::newRow("second name alone") << ""
                                       << "5" << true;
    QTest::newRow("no name") << ""
                             << "" << false;
}

void TestFileReadings::namesOfAPlayedScaleComeBack()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, kept);
    emptyHeaders();
    header_data data = scaleRecord(unknownWord);
    data.nameScenic1 = first;
    data.nameScenic2 = second;
    import({{ headersKey, QJsonArray { headerObject(data) } }});
    QCOMPARE(names(header(22)), kept ? (QStringList{first, second}) : (QStringList{"User", "1"}));
    QVERIFY(library().isCustomScale(unknownWord));
}

void TestFileReadings::lastUserNumberIsOneThatCounts()
{
    emptyHeaders();
    header_data first = scaleRecord(unknownWord), second = scaleRecord(otherUnknownWord);
    for (header_data* data : {&first, &second}) {
        data->nameScenic1 = QStringLiteral("User");
        data->nameScenic2 = QStringLiteral("108");
    }
    import({{ headersKey, QJsonArray { headerObject(first), headerObject(second) } }});
    QCOMPARE(names(header(25)), (QStringList{"User", "1"}));
}

// The first preset is named before the second is looked at, and must not take its number.
void TestFileReadings::otherUserNumbersStayTaken()
{
    emptyHeaders();
    header_data nameless = scaleRecord(unknownWord), first = scaleRecord(otherUnknownWord);
    nameless.nameScenic1.clear();
    nameless.nameScenic2.clear();
    first.nameScenic1 = QStringLiteral("User");
    first.nameScenic2 = QStringLiteral("1");
    import({{ headersKey, QJsonArray { headerObject(nameless), headerObject(first) } }});
    QCOMPARE(names(header(25)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(22)), (QStringList{"User", "2"}));
}

void TestFileReadings::userNumberOfASwitchedOffScaleIsFree()
{
    emptyHeaders();
    header_data asleep = scaleRecord(unknownWord, off), awake = scaleRecord(otherUnknownWord);
    for (header_data* data : {&asleep, &awake}) {
        data->nameScenic1 = QStringLiteral("User");
        data->nameScenic2 = QStringLiteral("5");
    }
    import({{ headersKey, QJsonArray { headerObject(asleep), headerObject(awake) } }});
    QVERIFY(!library().containsScale(unknownWord, DatabaseLibrary::AnyRole));
    QCOMPARE(names(header(22)), (QStringList{"", ""}));
    QCOMPARE(names(header(25)), (QStringList{"User", "5"}));
}

void TestFileReadings::tonicBehindItsSwitchComesBack()
{
    window->setPower(true);
    tonic().setSwitchOn(true);
    setTonic("G");
    tonic().setSwitchOff(true);
    const QString map = facts().value(QStringLiteral("map"));
    const QJsonObject root = exported();
    QCOMPARE(root.value("TonicModifier"), QJsonValue(""));
    QCOMPARE(root.value(hiddenTonicKey), QJsonValue("G"));
    closeWindow();
    openWindow();
    import(root);
    QCOMPARE(tonic().activeKey->tableName(), QStringLiteral("G"));
    QVERIFY(!tonic().switchOn);
    QCOMPARE(facts().value(QStringLiteral("map")), map);
}

void TestFileReadings::tonicBehindItsSwitchIsWrittenOnlyThen()
{
    window->setPower(true);
    tonic().setSwitchOn(true);
    setTonic("G");
    SettingsStore::setSettingsProperty(hiddenTonicKey, QStringLiteral("A"));
    QVERIFY(!exported().contains(hiddenTonicKey));
    QVERIFY(!SettingsStore::containsProperty(hiddenTonicKey));
    tonic().setSwitchOff(true);
    QCOMPARE(exported().value(hiddenTonicKey), QJsonValue("G"));
}

void TestFileReadings::tonicBehindItsSwitchComesBehindTheTonic()
{
    import({{"TonicModifier", "A"}, {hiddenTonicKey, "G"}, { "TonicOnState", false }});
    QCOMPARE(tonic().activeKey->tableName(), QStringLiteral("G"));
}

void TestFileReadings::importEndsInARemap()
{
    window->setPower(true);
    setTonic("C");
    setScale(ionian);
    QCOMPARE(target(60), 60);
    import({{ "AnchorPosX", 17 }}); // one white key
    QCOMPARE(target(62), 60);
    window->receiveMessage({0x90, 62, 64});
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x90, 60, 64}}));
}

void TestFileReadings::blackKeysAreNoPresetsWithThePowerOff()
{
    const auto pictures = [this] {
        QList<QImage> images;
        for (const QGraphicsItem* key : qAsConst(window->listItemsIN))
            images << static_cast<const ResizableItem*>(key)->pixmap().toImage();
        return images;
    };
    window->setPower(true);
    const QList<QImage> withPower = pictures();
    window->setPower(false);
    const QList<QImage> without = pictures();
    QVERIFY(without != withPower);
    import({{ "AnchorPosX", 0 }});
    QCOMPARE(pictures(), without);
}

void TestFileReadings::libraryViewWaitsForThePower()
{
    import({{ "LibViewOpened", true }});
    QVERIFY(!window->centerScreen->libraryOpen);
    QCOMPARE(exported().value("LibViewOpened"), QJsonValue(false));
    window->setPower(true);
    QVERIFY(window->centerScreen->libraryOpen);
}

void TestFileReadings::libraryFollowsThePlayedWord()
{
    import({{ "ScaleModifier", lydian }});
    QCOMPARE(library().currentScale(), lydian);
}

void TestFileReadings::placesAreBounded_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("on the stage") << QJsonValue(-170.25) << -170.25;
    QTest::newRow("far right") << QJsonValue(1e308) << 1e6;
    QTest::newRow("far left") << QJsonValue(-1e7) << -1e6;
    QTest::newRow("edge") << QJsonValue(1e6) << 1e6;
    QTest::newRow("nothing") << QJsonValue() << 0.0;
    QTest::newRow("word") << QJsonValue("nowhere") << 0.0;
    QTest::newRow("not a number") << QJsonValue("nan") << 0.0;
    QTest::newRow("no end") << QJsonValue("inf") << 0.0;
    QTest::newRow("no beginning") << QJsonValue("-inf") << 0.0;
}

void TestFileReadings::placesAreBounded()
{
    QFETCH(QJsonValue, value);
    QFETCH(double, expected);
    placeAnchors(34);
    import({{ "AnchorPosX", value }});
    QCOMPARE(anchors()->x(), expected);
    if (value.isString())
        return; // a text is no number in the database's part
    placeAnchors(34);
    import({{ anchorsPlaceKey, value }});
    QCOMPARE(anchors()->x(), expected);
}

void TestFileReadings::presetsPlaceIsBounded()
{
    window->setPower(true);
    header_data data = fullRecord();
    data.anchorPos = std::numeric_limits<int>::max();
    import({{headersKey, QJsonArray { headerObject(data) }}, { "ActiveHeader", 22 }});
    QCOMPARE(anchors()->x(), 1e6);
    recall(30);
    recall(22);
    QVERIFY(qAbs(anchors()->x()) <= 1e6);
}

void TestFileReadings::unknownKeysSurvive()
{
    const QJsonObject later{{"LaterObject", QJsonObject{{"a", QJsonArray{1, "x", false, QJsonValue()}}}},
                            {"LaterText", "%1"},
                            {"Home-PointFX", 1.5},
                            {"MidiInPort-Gone", true}};
    import(later);
    const QJsonObject root = exported();
    for (auto member = later.begin(); member != later.end(); ++member)
        QCOMPARE(root.value(member.key()), member.value());
}

QTEST_MAIN(TestFileReadings)
#include "test_file_readings.moc"
