// The port lists and a file: at the start the file's selection counts, while the program runs the rows do.

#include "FakeMidiService.h"
#include "FileFixture.h"
#include "app/MidiService.h"
#include "app/start.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <QListWidget>

class TestFilePorts : public FileFixture
{
    Q_OBJECT

private slots:
    void init();

    void rowsStayWhileTheProgramRuns();
    void storeSaysWhatTheRowsSayBehindAnImport();
    void rememberedPortsAreSelectedAtTheStart();
    void portsThatAreAwayStayInTheFile();
    void portThatIsNamedAtTheStartIsOpenedWhateverWasRemembered_data();
    void portThatIsNamedAtTheStartIsOpenedWhateverWasRemembered();
    void twinsAreRememberedIfOneIsSelected();

private:
    QStringList selected() const;
    static void choose(bool inPiano, bool outPiano, bool inVirtual, bool outVirtual);
};

void TestFilePorts::init()
{
    rig.names = QStringList{QStringLiteral("Piano"), QStringLiteral("Synth")};
    choose(false, false, false, false);
    openWindow();
}

void TestFilePorts::choose(bool inPiano, bool outPiano, bool inVirtual, bool outVirtual)
{
    SettingsStore::setMidiInPortSelected(QStringLiteral("Piano"), inPiano);
    SettingsStore::setMidiOutPortSelected(QStringLiteral("Piano"), outPiano);
    SettingsStore::setMidiInPortSelected(virtualInName, inVirtual);
    SettingsStore::setMidiOutPortSelected(virtualOutName, outVirtual);
}

QStringList TestFilePorts::selected() const
{
    QStringList rows;
    for (const QListWidgetItem* item : window->centerScreen->inPortList->selectedItems())
        rows << QStringLiteral("in ") + item->text();
    for (const QListWidgetItem* item : window->centerScreen->outPortList->selectedItems())
        rows << QStringLiteral("out ") + item->text();
    rows.sort();
    return rows;
}

void TestFilePorts::rowsStayWhileTheProgramRuns()
{
    closeWindow();
    choose(true, false, true, false);
    openWindow();
    const QStringList before = selected();
    QCOMPARE(before, (QStringList{"in Piano", "in " + virtualInName}));
    import({{"MidiInPort-Piano", false},
            {"MidiOutPort-Piano", true},
            { "MidiInPort-" + virtualInName,
              false }});
    QCOMPARE(selected(), before);
}

void TestFilePorts::storeSaysWhatTheRowsSayBehindAnImport()
{
    import({{"MidiInPort-Piano", true}, {"MidiOutPort-Piano", true}, { "MidiOutPort-Gone", true }});
    QVERIFY(!SettingsStore::getMidiInPortSelected(QStringLiteral("Piano"), true));
    QVERIFY(!SettingsStore::getMidiOutPortSelected(QStringLiteral("Piano"), true));
    QVERIFY(SettingsStore::getMidiOutPortSelected(QStringLiteral("Gone"), false));
    QCOMPARE(exported().value("MidiInPort-Piano"), QJsonValue(false));
}

void TestFilePorts::rememberedPortsAreSelectedAtTheStart()
{
    closeWindow();
    SettingsStore::rememberPorts({{"MidiInPort-Piano", true},
                                  {"MidiOutPort-Synth", true},
                                  {"MidiOutPort-" + virtualOutName, true},
                                  {"MidiInPort-Gone", true}});
    openWindow();
    QCOMPARE(selected(), (QStringList{"in Piano", "out " + virtualOutName, "out Synth"}));
}

void TestFilePorts::portsThatAreAwayStayInTheFile()
{
    import({{"MidiInPort-Gone", true}, { "MidiOutPort-Gone", false }});
    const QJsonObject root = exported();
    QCOMPARE(root.value("MidiInPort-Gone"), QJsonValue(true));
    QCOMPARE(root.value("MidiOutPort-Gone"), QJsonValue(false));
}

void TestFilePorts::portThatIsNamedAtTheStartIsOpenedWhateverWasRemembered_data()
{
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("opened");
    QTest::newRow("a system's") << QStringList{"Synth"} << QStringList{"in Synth", "out Synth"};
    QTest::newRow("its own") << QStringList{"Sorvane MIDI"}
                             << QStringList{"in " + virtualInName, "out " + virtualOutName};
    QTest::newRow("both") << QStringList{"Synth", "Sorvane MIDI"}
                          << QStringList{"in " + virtualInName, "in Synth", "out " + virtualOutName,
                                         "out Synth"};
}

void TestFilePorts::portThatIsNamedAtTheStartIsOpenedWhateverWasRemembered()
{
    QFETCH(QStringList, named);
    QFETCH(QStringList, opened);
    closeWindow();
    choose(true, true, false, false);
    CommandLine wanted;
    wanted.inPorts = wanted.outPorts = named;
    QCOMPARE(start::selectPorts(wanted), QString());
    openWindow();
    QCOMPARE(selected(), opened);
}

void TestFilePorts::twinsAreRememberedIfOneIsSelected()
{
    closeWindow();
    rig.names = QStringList{QStringLiteral("Piano"), QStringLiteral("Piano")};
    openWindow();
    for (const int row : {0, 1}) {
        window->centerScreen->inPortList->item(row)->setSelected(true);
        QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("Piano"), false));
        import({});
        QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("Piano"), false));
        window->centerScreen->inPortList->item(row)->setSelected(false);
        QVERIFY(!SettingsStore::getMidiInPortSelected(QStringLiteral("Piano"), true));
    }
}

QTEST_MAIN(TestFilePorts)
#include "test_file_ports.moc"
