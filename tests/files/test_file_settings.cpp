// What a file's settings do to the window, one by one and in their order, and what a file does that is none.

#include "FileFixture.h"
#include "keys/TonicKeyItem.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <QFile>
#include <QJsonDocument>

#include <sys/stat.h>

class TestFileSettings : public FileFixture
{
    Q_OBJECT

private slots:
    // One key alone
    void keyAloneChangesItsOwnState_data();
    void keyAloneChangesItsOwnState();
    void activePresetIsLimited_data();
    void activePresetIsLimited();
    void sceneIsLimited_data();
    void sceneIsLimited();
    void libraryViewFollowsThePower_data();
    void libraryViewFollowsThePower();
    void emptyNamesSetNothing();

    // In their order
    void presetComesBeforeTheSelectors();
    void presetIsRecalledWithThePowerAsItWas();
    void tonicSwitchComesBeforeTheTonic();
    void scaleSwitchComesBeforeTheScale();
    void anchorsComeBehindThePreset();
    void settingOfTheAnchorsComesBehindTheDatabase();
    void powerComesBeforeTheLibraryView();
    void sceneComesBeforeTheLibraryView();
    void databaseComesBeforeTheSettings();

    // The store
    void everyRootKeyIsStored();
    void writingStoresTheNineStates();

    // Scenes
    void sceneHasTheWaysOutOfItsButton_data();
    void sceneHasTheWaysOutOfItsButton();

    // Files
    void fileThatCannotBeReadChangesNothing_data();
    void fileThatCannotBeReadChangesNothing();
    void emptyObjectChangesNothing();
    void startingTwiceShowsTheFactoryLibrary();

private:
    CenterScreen& screen() const { return *window->centerScreen; }
};

void TestFileSettings::keyAloneChangesItsOwnState_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QStringList>("changed");
    const auto row = [](const QString& key, const QJsonValue& value, const QStringList& changed) {
        QTest::newRow(qPrintable(key)) << key << value << changed;
    };
    row(scalesKey, QJsonArray{scaleObject("new", wholeTone, "Whole")}, {"catalogue"});
    row(headersKey, QJsonArray{headerObject(scaleRecord(ionian))}, {"presets"});
    row(powerPlaceKey, 407, {"power's place"});
    row(anchorsPlaceKey, 68, {"anchors", "map"});
    row("PowerOnState", false, {"map", "power"});
    row("TonicOnState", false, {"presets", "tonic switch"});
    row("ScaleOnState", false, {"presets", "scale switch"});
    row("TonicModifier", "G", {"map", "presets", "tonic"});
    row("ScaleModifier", wholeTone, {"map", "scale"}); // kept: the preset learns of it when it is left
    row("ActiveHeader", 22, {"active preset", "anchors", "map", "presets", "scale"});
    row("CurrentScene", 4, {"scene"});
    row("LibViewOpened", true, {"library view"});
    row("AnchorPosX", 68, {"anchors", "map"});
    row(hiddenTonicKey, "G", {"map", "presets", "tonic"});
    // Stored, not applied
    row("DatabasePath", "/a.svdb", {});
    row("PowerPointX", 407, {});
    row("MidiInPort-Piano", true, {});
}

void TestFileSettings::keyAloneChangesItsOwnState()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QStringList, changed);
    leaveTheStart();
    setRecord(22, fullRecord());
    const Facts before = facts();
    import({{ key, value }});
    QCOMPARE(changesSince(before), changed);
    QVERIFY(SettingsStore::containsProperty(key));
}

void TestFileSettings::activePresetIsLimited_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("lowest") << QJsonValue(22) << 22;
    QTest::newRow("below") << QJsonValue(21) << 30;
    QTest::newRow("another") << QJsonValue(63) << 63;
    QTest::newRow("highest") << QJsonValue(106) << 106;
    QTest::newRow("white key") << QJsonValue(64) << 30;
    QTest::newRow("far above") << QJsonValue(1000) << 30;
    QTest::newRow("negative") << QJsonValue(-63) << 30;
    QTest::newRow("huge") << QJsonValue(1e300) << 30;
    QTest::newRow("text") << QJsonValue("63") << 63;
    QTest::newRow("word") << QJsonValue("C") << 30;
    QTest::newRow("nothing") << QJsonValue("") << 30;
    QTest::newRow("array") << QJsonValue(QJsonArray{63}) << 30;
}

void TestFileSettings::activePresetIsLimited()
{
    QFETCH(QJsonValue, value);
    QFETCH(int, expected);
    window->setPower(true);
    recall(30);
    import({{ "ActiveHeader", value }});
    QCOMPARE(active(), expected);
    QCOMPARE(header(expected)->status(), header_active);
}

void TestFileSettings::sceneIsLimited_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("expected");
    for (int scene = 1; scene <= 4; ++scene)
        QTest::addRow("%d", scene) << QJsonValue(scene) << scene;
    QTest::newRow("0") << QJsonValue(0) << 2;
    QTest::newRow("5") << QJsonValue(5) << 2;
    QTest::newRow("-1") << QJsonValue(-1) << 2;
    QTest::newRow("huge") << QJsonValue(1e300) << 2;
    QTest::newRow("text") << QJsonValue("3") << 3;
    QTest::newRow("word") << QJsonValue("ports") << 2;
    QTest::newRow("bool") << QJsonValue(true) << 1; // converts to 1
}

void TestFileSettings::sceneIsLimited()
{
    QFETCH(QJsonValue, value);
    QFETCH(int, expected);
    window->showScene(CenterScreen::scene_clean);
    import({{ "CurrentScene", value }});
    QCOMPARE(screen().currentScene, expected);
}

void TestFileSettings::libraryViewFollowsThePower_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<bool>("opened");
    for (const bool power : {true, false})
        for (const bool opened : {true, false})
            QTest::addRow("power %d, opened %d", power, opened) << power << opened;
}

void TestFileSettings::libraryViewFollowsThePower()
{
    QFETCH(bool, switchedOn);
    QFETCH(bool, opened);
    window->setPower(true);
    window->showLibraryScreen(!opened);
    window->setPower(switchedOn);
    import({{ "LibViewOpened", opened }});
    QCOMPARE(screen().libraryOpen, switchedOn && opened);
    window->setPower(!switchedOn);
    window->setPower(true);
    QCOMPARE(screen().libraryOpen, opened);
}

void TestFileSettings::emptyNamesSetNothing()
{
    leaveTheStart();
    const Facts before = facts();
    import({{"TonicModifier", ""}, {"ScaleModifier", ""}, { hiddenTonicKey, "" }});
    import({{"TonicModifier", "H"}, {"ScaleModifier", "xx"}, { hiddenTonicKey, "c" }});
    import({{"TonicModifier", 5}, { "ScaleModifier", QJsonArray { ionian } }});
    QCOMPARE(changesSince(before), QStringList());
}

void TestFileSettings::presetComesBeforeTheSelectors()
{
    window->setPower(true);
    setRecord(25, fullRecord()); // E lydian
    import({{"ActiveHeader", 25}, {"TonicModifier", "D"}, { "ScaleModifier", wholeTone }});
    QCOMPARE(active(), 25);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
    QCOMPARE(record(25).tonicData, QStringLiteral("D"));
}

void TestFileSettings::presetIsRecalledWithThePowerAsItWas()
{
    setRecord(25, fullRecord());
    import({{"ActiveHeader", 25}, { "PowerOnState", true }});
    QCOMPARE(scale().scaleModifier(), ionian); // the recall loaded nothing
    window->setPower(true);
    recall(30);
    setRecord(25, fullRecord());
    import({{"ActiveHeader", 25}, { "PowerOnState", false }});
    QCOMPARE(scale().scaleModifier(), lydian);
}

// A tonic that is set while it is off is not stored.
void TestFileSettings::tonicSwitchComesBeforeTheTonic()
{
    window->setPower(true);
    tonic().setSwitchOn(true);
    setTonic("C");
    import({{"TonicOnState", false}, { "TonicModifier", "D" }});
    QCOMPARE(tonic().activeKey->tableName(), QStringLiteral("D"));
    QCOMPARE(record(active()).tonicData, QStringLiteral("C"));
}

// The switch stores the word that the keys show by then; the word by itself stores nothing.
void TestFileSettings::scaleSwitchComesBeforeTheScale()
{
    window->setPower(true);
    setScale(ionian);
    record(active()).scaleData = lydian;
    import({{"ScaleOnState", true}, { "ScaleModifier", wholeTone }});
    QCOMPARE(scale().scaleModifier(), wholeTone);
    QCOMPARE(record(active()).scaleData, ionian);
}

void TestFileSettings::anchorsComeBehindThePreset()
{
    window->setPower(true);
    setRecord(25, fullRecord()); // moves the anchors by 51
    import({{"ActiveHeader", 25}, { "AnchorPosX", 17 }});
    QCOMPARE(anchors()->x(), 17.0);
}

void TestFileSettings::settingOfTheAnchorsComesBehindTheDatabase()
{
    import({{anchorsPlaceKey, 68}, { "AnchorPosX", 17 }});
    QCOMPARE(anchors()->x(), 17.0);
}

void TestFileSettings::powerComesBeforeTheLibraryView()
{
    import({{"PowerOnState", true}, { "LibViewOpened", true }});
    QVERIFY(screen().libraryOpen);
    import({{"PowerOnState", false}, { "LibViewOpened", false }});
    window->setPower(true);
    QVERIFY(!screen().libraryOpen);
}

void TestFileSettings::sceneComesBeforeTheLibraryView()
{
    window->setPower(true);
    import({{"CurrentScene", 3}, { "LibViewOpened", true }});
    QVERIFY(screen().libraryOpen);
    window->showLibraryScreen(false);
    QCOMPARE(screen().currentScene, 3);
}

void TestFileSettings::databaseComesBeforeTheSettings()
{
    window->setPower(true);
    header_data data = fullRecord();
    data.scaleData = wholeTone;
    QJsonArray array;
    for (int i = 0; i < 36; ++i)
        array.append(headerObject(data));
    import({{headersKey, array}, { "ActiveHeader", 25 }});
    QCOMPARE(scale().scaleModifier(), wholeTone); // recalled from the file's own record
}

void TestFileSettings::everyRootKeyIsStored()
{
    const QJsonObject root{{scalesKey, QJsonArray{scaleObject("c", ionian, "t")}},
                           {headersKey, QJsonArray{headerObject(fullRecord())}},
                           {powerPlaceKey, 407.5},
                           {anchorsPlaceKey, 17},
                           {"Unknown", QJsonObject{{"a", QJsonArray{1, true, "x"}}}},
                           {"Null", QJsonValue()},
                           {"", "nameless"}};
    import(root);
    for (auto member = root.begin(); member != root.end(); ++member) {
        QVERIFY(SettingsStore::containsProperty(member.key()));
        QCOMPARE(SettingsStore::settingsProperty(member.key(), QStringLiteral("none")),
                 member.value().toVariant());
    }
}

void TestFileSettings::writingStoresTheNineStates()
{
    leaveTheStart();
    static_cast<void>(exported());
    QCOMPARE(SettingsStore::getPowerState(), true);
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("ActiveHeader"), 0), QVariant(27));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("CurrentScene"), 0), QVariant(3));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("TonicModifier"), 0), QVariant("E"));
}

void TestFileSettings::sceneHasTheWaysOutOfItsButton_data()
{
    QTest::addColumn<int>("scene");
    QTest::newRow("default") << 1;
    QTest::newRow("clean") << 2;
    QTest::newRow("ports") << 3;
    QTest::newRow("credits") << 4;
}

// What lies on top of the display, in the scene that was clicked for and in the one that the file brings.
void TestFileSettings::sceneHasTheWaysOutOfItsButton()
{
    QFETCH(int, scene);
    show();
    const auto hits = [this] {
        QStringList names;
        for (int y = 100; y < 300; y += 7)
            for (int x = 3; x < window->width(); x += 11) {
                const QWidget* hit = window->childAt(x, y);
                names << (hit ? hit->objectName() : QString());
            }
        return names;
    };
    if (scene == 2)
        window->ui.scene1Button->click();
    else if (scene == 3)
        window->ui.buttonMIDIinOut->click();
    else if (scene == 4)
        window->ui.buttonCredits->click();
    QCOMPARE(screen().currentScene, scene);
    const QStringList clicked = hits();
    import({{ "CurrentScene", scene == 4 ? 3 : 4 }});
    import({{ "CurrentScene", scene }});
    QCOMPARE(hits(), clicked);
    if (scene < 3)
        return;
    QVERIFY(hits().contains(QStringLiteral("scene34TopButton")));
    window->ui.scene34TopButton->click();
    QCOMPARE(screen().currentScene, 1);
}

void TestFileSettings::fileThatCannotBeReadChangesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray whole =
        QJsonDocument(QJsonObject{{scalesKey, QJsonArray()}, {"CurrentScene", 4}}).toJson();
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("folder") << QByteArray();
    QTest::newRow("pipe") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("cut") << whole.left(whole.size() - 5);
    QTest::newRow("more") << whole + "}";
    QTest::newRow("array") << QByteArray("[" + whole + "]");
    QTest::newRow("number") << QByteArray("5");
    QTest::newRow("null") << QByteArray("null");
}

void TestFileSettings::fileThatCannotBeReadChangesNothing()
{
    QFETCH(QByteArray, text);
    const QString kind = QLatin1String(QTest::currentDataTag());
    const QString file = pathOf("broken.svdb");
    QFile::remove(file);
    if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(qPrintable(file), 0600), 0);
    else if (kind != QLatin1String("missing") && kind != QLatin1String("folder"))
        write(file, text);
    leaveTheStart();
    SettingsStore::setSettingsProperty(QStringLiteral("CurrentScene"), 77);
    const Facts before = facts();
    const QString name = kind == QLatin1String("folder") ? pathOf(".") : file;
    QVERIFY(!SettingsStore::importDatabase(name).isEmpty());
    QCOMPARE(changesSince(before), QStringList());
    QVERIFY(!window->importDatabase(name).isEmpty());
    QCOMPARE(changesSince(before), QStringList());
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("CurrentScene"), 0), QVariant(77));
    QFile::remove(file);
}

void TestFileSettings::emptyObjectChangesNothing()
{
    leaveTheStart();
    SettingsStore::setSettingsProperty(QStringLiteral("CurrentScene"), 1);
    SettingsStore::setPowerState(false);
    const Facts before = facts();
    import({});
    QCOMPARE(changesSince(before), QStringList());
}

void TestFileSettings::startingTwiceShowsTheFactoryLibrary()
{
    const Facts factory = facts();
    leaveTheStart();
    library().removeCategory(library().categories().first());
    static_cast<void>(exported());
    import({{scalesKey, QJsonArray()}, {"CurrentScene", 4}, { "PowerOnState", true }});
    window->close();
    for (int start = 0; start < 2; ++start) {
        closeWindow();
        openWindow();
        QCOMPARE(changesSince(factory), QStringList());
    }
    QCOMPARE(library().categoryCount(), 10);
}

QTEST_MAIN(TestFileSettings)
#include "test_file_settings.moc"
