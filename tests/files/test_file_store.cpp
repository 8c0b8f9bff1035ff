// The store of named values: its operations, its keys and its defaults.

#include "library/SettingsStore.h"
#include "library/settings_keys.h"

#include <QJsonObject>
#include <QPointF>
#include <QStandardPaths>
#include <QtTest>

#include <type_traits>

class TestFileStore : public QObject
{
    Q_OBJECT

private slots:
    // First, while the process has stored nothing
    void valuesWithoutADefaultAreNotThere();
    void defaultsAreThoseOfTheTable_data();
    void defaultsAreThoseOfTheTable();
    void keysStandInTheirOrder();
    void indexesNameTheirKeys();
    void storeCannotBeMade();

    void registeringAKeyTwiceKeepsItsValue();
    void registeringNoKeyDoesNothing();
    void registeringDefaultsKeepsWhatIsStored();
    void settingReplacesTheValue();
    void unknownKeyGivesTheFallback();
    void storedKeyIsContained();

    void fileNameIsTheDatabasePath();
    void powerStateIsItsKey();
    void unknownPortGivesItsFallback();
    void portsAreStoredByDirectionAndName();
    void unknownPointGivesItsFallback();
    void pointIsTwoNumbers();
    void pointMayBeHalfThere();
    void portsOfAFileAreRemembered();
    void loadingAndSavingAllDoNothing();
};

void TestFileStore::valuesWithoutADefaultAreNotThere()
{
    SettingsStore::registerDefaultValues();
    for (const settings_key key : {key_power_point_x, key_midi_in_port, key_midi_out_port})
        QVERIFY(!SettingsStore::containsProperty(defaultKeys.at(key)));
}

void TestFileStore::defaultsAreThoseOfTheTable_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QVariant>("value");
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QTest::newRow("path") << int(key_database_path) << QVariant(desktop + QStringLiteral("/sorvane.svdb"));
    QTest::newRow("power") << int(key_power_on) << QVariant(false);
    QTest::newRow("tonic switch") << int(key_tonic_on) << QVariant(false);
    QTest::newRow("scale switch") << int(key_scale_on) << QVariant(false);
    QTest::newRow("tonic") << int(key_tonic_modifier) << QVariant(QString());
    QTest::newRow("scale") << int(key_scale_modifier) << QVariant(QString());
    QTest::newRow("header") << int(key_active_header) << QVariant(QString());
    QTest::newRow("scene") << int(key_current_scene) << QVariant(0);
    QTest::newRow("library") << int(key_library_opened) << QVariant(false);
    QTest::newRow("anchors") << int(key_anchor_x) << QVariant(0);
}

void TestFileStore::defaultsAreThoseOfTheTable()
{
    QFETCH(int, key);
    QFETCH(QVariant, value);
    SettingsStore::registerDefaultValues();
    const QVariant stored = SettingsStore::settingsProperty(defaultKeys.at(key), QStringLiteral("none"));
    QCOMPARE(stored.userType(), value.userType());
    QCOMPARE(stored, value);
}

void TestFileStore::keysStandInTheirOrder()
{
    QCOMPARE(defaultKeys,
             (QStringList{"DatabasePath", "PowerOnState", "PowerPointX", "TonicOnState", "ScaleOnState",
                          "TonicModifier", "ScaleModifier", "ActiveHeader", "CurrentScene", "LibViewOpened",
                          "AnchorPosX", "MidiInPort-", "MidiOutPort-"}));
}

void TestFileStore::indexesNameTheirKeys()
{
    QCOMPARE(defaultKeys.at(key_database_path), QStringLiteral("DatabasePath"));
    QCOMPARE(defaultKeys.at(key_power_point_x), QStringLiteral("PowerPointX"));
    QCOMPARE(defaultKeys.at(key_anchor_x), QStringLiteral("AnchorPosX"));
    QCOMPARE(defaultKeys.at(key_midi_out_port), QStringLiteral("MidiOutPort-"));
}

void TestFileStore::storeCannotBeMade()
{
    QVERIFY(!std::is_default_constructible_v<SettingsStore>);
    QVERIFY((std::is_base_of_v<QObject, SettingsStore>));
    QCOMPARE(SettingsStore::staticMetaObject.className(), "SettingsStore");
}

void TestFileStore::registeringAKeyTwiceKeepsItsValue()
{
    SettingsStore::registerSettingProperty(QStringLiteral("twice"), 1);
    SettingsStore::registerSettingProperty(QStringLiteral("twice"), 2);
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("twice"), 0), QVariant(1));
    SettingsStore::setSettingsProperty(QStringLiteral("twice"), 3);
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("twice"), 0), QVariant(3));
}

void TestFileStore::registeringNoKeyDoesNothing()
{
    SettingsStore::registerSettingProperty(QString(), 1);
    SettingsStore::registerSettingProperty(QStringLiteral(""), 1);
    QVERIFY(!SettingsStore::containsProperty(QString()));
}

void TestFileStore::registeringDefaultsKeepsWhatIsStored()
{
    SettingsStore::setSettingsProperty(defaultKeys.at(key_current_scene), 3);
    SettingsStore::registerDefaultValues();
    QCOMPARE(SettingsStore::settingsProperty(defaultKeys.at(key_current_scene), 9), QVariant(3));
}

void TestFileStore::settingReplacesTheValue()
{
    const QString key = QStringLiteral("replaced");
    SettingsStore::setSettingsProperty(key, 1);
    SettingsStore::setSettingsProperty(key, QStringLiteral("two"));
    QCOMPARE(SettingsStore::settingsProperty(key, 0), QVariant(QStringLiteral("two")));
    SettingsStore::setSettingsProperty(key, QVariant());
    QVERIFY(SettingsStore::containsProperty(key));
    QCOMPARE(SettingsStore::settingsProperty(key, 5), QVariant());
}

void TestFileStore::unknownKeyGivesTheFallback()
{
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("unknown"), 5), QVariant(5));
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("unknown")));
}

void TestFileStore::storedKeyIsContained()
{
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("contained")));
    SettingsStore::setSettingsProperty(QStringLiteral("contained"), false);
    QVERIFY(SettingsStore::containsProperty(QStringLiteral("contained")));
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("Contained")));
}

void TestFileStore::fileNameIsTheDatabasePath()
{
    SettingsStore::setDbFileName(QStringLiteral("/a/b.svdb"));
    QCOMPARE(SettingsStore::getDbFileName(), QStringLiteral("/a/b.svdb"));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("DatabasePath"), 0).toString(),
             QStringLiteral("/a/b.svdb"));
}

void TestFileStore::powerStateIsItsKey()
{
    for (const bool on : {true, false}) {
        SettingsStore::setPowerState(on);
        QCOMPARE(SettingsStore::getPowerState(), on);
        QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("PowerOnState"), 7), QVariant(on));
    }
}

void TestFileStore::unknownPortGivesItsFallback()
{
    for (const bool fallback : {true, false}) {
        QCOMPARE(SettingsStore::getMidiInPortSelected(QStringLiteral("unknown"), fallback), fallback);
        QCOMPARE(SettingsStore::getMidiOutPortSelected(QStringLiteral("unknown"), fallback), fallback);
    }
}

void TestFileStore::portsAreStoredByDirectionAndName()
{
    SettingsStore::setMidiInPortSelected(QStringLiteral("Piano"), true);
    SettingsStore::setMidiOutPortSelected(QStringLiteral("Piano"), false);
    QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("Piano"), false));
    QVERIFY(!SettingsStore::getMidiOutPortSelected(QStringLiteral("Piano"), true));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("MidiInPort-Piano"), 7), QVariant(true));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("MidiOutPort-Piano"), 7), QVariant(false));
    SettingsStore::setMidiInPortSelected(QString(), true);
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("MidiInPort-"), 7), QVariant(true));
}

void TestFileStore::unknownPointGivesItsFallback()
{
    QCOMPARE(SettingsStore::getPointFProperty(QStringLiteral("unknown"), {1.5, -2}), QPointF(1.5, -2));
}

void TestFileStore::pointIsTwoNumbers()
{
    SettingsStore::setPointFProperty(QStringLiteral("Home"), {1.5, -2});
    QCOMPARE(SettingsStore::getPointFProperty(QStringLiteral("Home"), {}), QPointF(1.5, -2));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("Home-PointFX"), 0), QVariant(1.5));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("Home-PointFY"), 0), QVariant(-2.0));
}

void TestFileStore::pointMayBeHalfThere()
{
    SettingsStore::setSettingsProperty(QStringLiteral("Half-PointFY"), 8);
    QCOMPARE(SettingsStore::getPointFProperty(QStringLiteral("Half"), {1, 2}), QPointF(1, 8));
}

void TestFileStore::portsOfAFileAreRemembered()
{
    SettingsStore::setMidiInPortSelected(QStringLiteral("a"), false);
    SettingsStore::setMidiOutPortSelected(QStringLiteral("b"), true);
    SettingsStore::setPowerState(false);
    SettingsStore::rememberPorts(
        {{"MidiInPort-a", true}, {"MidiOutPort-b", false}, {"PowerOnState", true}, {"midiInPort-c", true}});
    QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("a"), false));
    QVERIFY(!SettingsStore::getMidiOutPortSelected(QStringLiteral("b"), true));
    QVERIFY(!SettingsStore::getPowerState());
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("midiInPort-c")));
}

void TestFileStore::loadingAndSavingAllDoNothing()
{
    SettingsStore::setDbFileName(QStringLiteral("/nowhere/at/all.svdb"));
    SettingsStore::setPowerState(true);
    SettingsStore::loadAllSettings();
    SettingsStore::saveAllSettings();
    QVERIFY(SettingsStore::getPowerState());
    QCOMPARE(SettingsStore::getDbFileName(), QStringLiteral("/nowhere/at/all.svdb"));
}

QTEST_GUILESS_MAIN(TestFileStore)
#include "test_file_store.moc"
