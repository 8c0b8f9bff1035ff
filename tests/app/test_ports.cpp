// What a change of a port list opens, closes and remembers, without any MIDI service.

#include "RecordingPort.h"
#include "WindowFixture.h"
#include "keys/ResizableItem.h"
#include "library/SettingsStore.h"
#include "screen/CenterScreen.h"

#include <QSignalSpy>

class TestPorts : public WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void withoutServiceTheListsHoldTheVirtualRows();
    void virtualRowsAreSelectedOnAFirstRun();
    void addedRowTriggersNothingAtOnce();
    void rowTextOfAMissingRowIsEmpty();
    void deselectingTheLastOutputClosesMidiOut();
    void openRowIsPassedOver();
    void selectionIsStoredByName();
    void selectionChangeGivesTheFocusBack();
    void changedRowIsFoundByItsText();
    void unknownRowOnlySetsTheFocus();
    void errorTextIsTheWrittenOne();
    void stoppedServiceClosesEverySlot();
    void playingGoesOnWithoutService();

private:
    RecordingPort* openRecordingPort(int row);
};

void TestPorts::init()
{
    SettingsStore::setMidiInPortSelected(virtualInName, true);
    SettingsStore::setMidiOutPortSelected(virtualOutName, true);
    openWindow();
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

QTEST_MAIN(TestPorts)
#include "test_ports.moc"
