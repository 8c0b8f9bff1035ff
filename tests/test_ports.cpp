// The port lists, what of them is remembered, and the settings behind that, without any MIDI service.

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "keys/ResizableItem.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <QSignalSpy>
#include <QtTest>

class TestPorts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void withoutServiceTheListsHoldTheVirtualRows();
    void virtualRowsAreSelectedOnAFirstRun();
    void addedRowTriggersNothingAtOnce();
    void rowTextOfAMissingRowIsEmpty();
    void clickTogglesARowAndSeveralCanBeSelected();
    void deselectingTheLastOutputClosesMidiOut();
    void openRowIsPassedOver();
    void selectionIsStoredByName();
    void selectionChangeGivesTheFocusBack();
    void changedRowIsFoundByItsText();
    void unknownRowOnlySetsTheFocus();
    void errorTextIsTheWrittenOne();
    void stoppedServiceClosesEverySlot();
    void playingGoesOnWithoutService();

    void registeredPropertyNeverOverrides();
    void setPropertyReplaces();
    void unknownPortGivesItsFallback();
    void defaultKeysStandInOrder();

private:
    RecordingPort* openRecordingPort(int row);

    std::unique_ptr<MainWnd> window;
};

void TestPorts::init()
{
    midiService().choose(MidiService::Wanted::none);
    SettingsStore::setMidiInPortSelected(virtualInName, true);
    SettingsStore::setMidiOutPortSelected(virtualOutName, true);
    window = std::make_unique<MainWnd>();
}

RecordingPort* TestPorts::openRecordingPort(int row)
{
    auto* port = new RecordingPort;
    window->outPorts[row] = port; // the window owns it
    window->midiOutOpen = window->checkActiveMidiOut();
    return port;
}

void TestPorts::withoutServiceTheListsHoldTheVirtualRows()
{
    QCOMPARE(window->centerScreen->inPortList->count(), 1);
    QCOMPARE(window->centerScreen->outPortList->count(), 1);
    QCOMPARE(window->centerScreen->getInPort(0), QStringLiteral("Sorvane MIDI In"));
    QCOMPARE(window->centerScreen->getOutPort(0), QStringLiteral("Sorvane MIDI Out"));
    QCOMPARE(window->inPorts, QList<RtMidiIn*>{nullptr});
    QCOMPARE(window->outPorts, QList<RtMidiOut*>{nullptr});
}

void TestPorts::virtualRowsAreSelectedOnAFirstRun()
{
    QVERIFY(window->centerScreen->inPortList->item(0)->isSelected());
    QVERIFY(window->centerScreen->outPortList->item(0)->isSelected());
}

void TestPorts::addedRowTriggersNothingAtOnce()
{
    const QSignalSpy spy(window->centerScreen->inPortList, &QListWidget::itemSelectionChanged);
    window->inPorts.append(nullptr);
    window->centerScreen->addInPort(QStringLiteral("Keys"), true);
    QCOMPARE(spy.count(), 0);
    QVERIFY(window->centerScreen->inPortList->item(1)->isSelected());
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("MidiInPort-Keys")));
    QTRY_VERIFY_WITH_TIMEOUT(SettingsStore::containsProperty(QStringLiteral("MidiInPort-Keys")), 2000);
}

void TestPorts::rowTextOfAMissingRowIsEmpty()
{
    QCOMPARE(window->centerScreen->getInPort(7), QString());
    QCOMPARE(window->centerScreen->getOutPort(-1), QString());
}

void TestPorts::clickTogglesARowAndSeveralCanBeSelected()
{
    QListWidget* list = window->centerScreen->inPortList;
    window->inPorts.append(nullptr);
    window->centerScreen->addInPort(QStringLiteral("Pads"), false);
    window->show();
    window->centerScreen->setSceneMIDIinOut();
    const auto clickRow = [list](int row) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(row)).center());
    };
    clickRow(1);
    QCOMPARE(list->selectedItems().size(), 2);
    clickRow(0);
    QCOMPARE(list->selectedItems().size(), 1);
    QVERIFY(list->item(1)->isSelected());
}

void TestPorts::deselectingTheLastOutputClosesMidiOut()
{
    openRecordingPort(0);
    QVERIFY(window->midiOutOpen);
    window->centerScreen->outPortList->item(0)->setSelected(false);
    QVERIFY(!window->midiOutOpen);
    QVERIFY(!window->outPorts.at(0));
}

void TestPorts::openRowIsPassedOver()
{
    RecordingPort* port = openRecordingPort(0);
    SettingsStore::setMidiOutPortSelected(virtualOutName, false);
    window->outPortSelectionChange();
    QCOMPARE(window->outPorts.at(0), port);
    QVERIFY(!SettingsStore::getMidiOutPortSelected(virtualOutName, true)); // nothing is stored for it
}

void TestPorts::selectionIsStoredByName()
{
    window->centerScreen->inPortList->item(0)->setSelected(false);
    QVERIFY(!SettingsStore::getMidiInPortSelected(virtualInName, true));
    window.reset();
    window = std::make_unique<MainWnd>();
    QVERIFY(!window->centerScreen->inPortList->item(0)->isSelected());
    QVERIFY(window->centerScreen->outPortList->item(0)->isSelected());
}

void TestPorts::selectionChangeGivesTheFocusBack()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    window->ui.buttonMIDIinOut->setFocus();
    window->centerScreen->inPortList->item(0)->setSelected(false);
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
}

void TestPorts::changedRowIsFoundByItsText()
{
    QListWidgetItem elsewhere(virtualOutName);
    window->centerScreen->outPortList->blockSignals(true);
    window->centerScreen->outPortList->item(0)->setSelected(false);
    window->centerScreen->outPortList->blockSignals(false);
    openRecordingPort(0);
    window->outPortChanged(&elsewhere);
    QVERIFY(!window->outPorts.at(0));
    QVERIFY(!window->midiOutOpen);
}

void TestPorts::unknownRowOnlySetsTheFocus()
{
    RecordingPort* port = openRecordingPort(0);
    QListWidgetItem unknown(QStringLiteral("nobody"));
    window->outPortChanged(&unknown);
    window->inPortChanged(&unknown);
    QCOMPARE(window->outPorts.at(0), port);
}

void TestPorts::errorTextIsTheWrittenOne()
{
    QCOMPARE(
        MainWnd::portErrorText(QStringLiteral("busy")),
        QStringLiteral("There was an error with selected MIDI port:<br/>busy<br/>Please check if this port "
                       "is not opened in some other software."));
}

void TestPorts::stoppedServiceClosesEverySlot()
{
    openRecordingPort(0);
    window->midiServiceStopped();
    QVERIFY(!window->outPorts.at(0));
    QVERIFY(!window->midiOutOpen);
    QVERIFY(window->centerScreen->outPortList->item(0)->isSelected());
}

void TestPorts::playingGoesOnWithoutService()
{
    emit window->signalKey({0x90, 60, 100});
    QVERIFY(window->findInNote(60)->isPushed);
    emit window->signalKey({0x80, 60, 0});
    QVERIFY(!window->findInNote(60)->isPushed);
}

void TestPorts::registeredPropertyNeverOverrides()
{
    SettingsStore::setSettingsProperty(QStringLiteral("k"), 1);
    SettingsStore::registerSettingProperty(QStringLiteral("k"), 2);
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("k"), 0).toInt(), 1);
    SettingsStore::registerSettingProperty(QString(), 2);
    QVERIFY(!SettingsStore::containsProperty(QString()));
}

void TestPorts::setPropertyReplaces()
{
    SettingsStore::setSettingsProperty(QStringLiteral("r"), 1);
    SettingsStore::setSettingsProperty(QStringLiteral("r"), QStringLiteral("two"));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("r"), 0).toString(), QStringLiteral("two"));
    QCOMPARE(SettingsStore::settingsProperty(QStringLiteral("absent"), 7).toInt(), 7);
}

void TestPorts::unknownPortGivesItsFallback()
{
    QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("?"), true));
    QVERIFY(!SettingsStore::getMidiInPortSelected(QStringLiteral("?"), false));
    QVERIFY(SettingsStore::getMidiOutPortSelected(QStringLiteral("?"), true));
    SettingsStore::setMidiOutPortSelected(QStringLiteral("?"), false);
    QVERIFY(!SettingsStore::getMidiOutPortSelected(QStringLiteral("?"), true));
    QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("?"), true)); // a direction of its own
}

void TestPorts::defaultKeysStandInOrder()
{
    QCOMPARE(defaultKeys.size(), 13);
    QCOMPARE(defaultKeys.first(), QStringLiteral("DatabasePath"));
    QCOMPARE(defaultKeys.last(), QStringLiteral("MidiOutPort-"));
    SettingsStore::registerDefaultValues();
    QVERIFY(SettingsStore::settingsProperty(QStringLiteral("DatabasePath"), QVariant())
                .toString()
                .endsWith(QStringLiteral("/sorvane.svdb")));
    QVERIFY(!SettingsStore::containsProperty(QStringLiteral("PowerPointX")));
}

QTEST_MAIN(TestPorts)
#include "test_ports.moc"
