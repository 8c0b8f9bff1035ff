// The port lists over a MIDI service of the test's own: what is opened, what fails, and what the user reads.

#include "CenterFixture.h"
#include "FakeMidiService.h"
#include "app/MidiService.h"
#include "library/SettingsStore.h"
#include "screen/AlertWidget.h"

#include <QPointer>

class TestPortListsService : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // Start
    void firstRunOpensTheVirtualPortsAlone();
    void rememberedPortsOpenByTheirName();

    // Selection
    void selectedInputsOpenAndPlay();
    void inputsHearEverything();
    void selectedOutputsOpenAndSound();
    void deselectedPortIsClosed();
    void lastOutputThatGoesClosesMidiOut();
    void openRowIsNotOpenedAgain();
    void rowOpensItsNameWherePortsMoved();

    // Failure
    void failingPortShowsTheAlert_data();
    void failingPortShowsTheAlert();
    void alertGoesWithItsHandler();
    void failingPortStaysSelectedWithoutBeingOpen_data() { failingPortShowsTheAlert_data(); }
    void failingPortStaysSelectedWithoutBeingOpen();
    void walkGoesOnBehindAFailure();
    void laterChangeTriesAgain();
    void portThatIsGoneFails();
    void nothingCanBeMade();
    void failureAtTheStartShowsTheAlert();
    void failureGivesTheFocusToTheInView();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void start(const QStringList& names, const QString& failing = QString());
    /// Until the rows' timers are through.
    void settle() const;
    QListWidget& list(const QString& side) const
    {
        return side == QLatin1String("in") ? *screen().inPortList : *screen().outPortList;
    }
    bool isOpen(const QString& side, int row) const
    {
        return side == QLatin1String("in") ? window->inPorts.at(row) != nullptr
                                           : window->outPorts.at(row) != nullptr;
    }
    bool isStored(const QString& side, const QString& name, bool fallback) const
    {
        return side == QLatin1String("in") ? SettingsStore::getMidiInPortSelected(name, fallback)
                                           : SettingsStore::getMidiOutPortSelected(name, fallback);
    }
    QStringList log() const { return std::exchange(rig.log, QStringList()); }
    static void expectWarning()
    {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^There was an error with selected "
                                                               "MIDI port")));
    }

    QStringList alerts; ///< what each alert that was shown said and looked like
    QPointer<AlertWidget> lastAlert;
};

void TestPortListsService::init()
{
    rig = {};
    alerts.clear();
}

void TestPortListsService::cleanup()
{
    qApp->removeEventFilter(this);
    closeWindow();
}

void TestPortListsService::start(const QStringList& names, const QString& failing)
{
    closeWindow();
    for (const QString& name : names + QStringList{virtualInName, virtualOutName}) {
        SettingsStore::setMidiInPortSelected(name, name == virtualInName);
        SettingsStore::setMidiOutPortSelected(name, name == virtualOutName);
    }
    rig.names = names;
    rig.failing = failing;
    window = std::make_unique<MainWnd>();
    show();
    call(to_ports);
    qApp->installEventFilter(this);
}

void TestPortListsService::settle() const
{
    QTRY_VERIFY_WITH_TIMEOUT(rig.log.join(QLatin1Char('\n')).contains(QLatin1String("out virtual")), 3000);
    QTest::qWait(50); // the other rows' timers find everything open
    rig.log.clear();
}

bool TestPortListsService::eventFilter(QObject* object, QEvent* event)
{
    auto* alert = qobject_cast<AlertWidget*>(object);
    if (alert && event->type() == QEvent::Show) {
        lastAlert = alert;
        alerts << QStringList{alert->box->title,
                              alert->box->message,
                              alert->box->okText,
                              alert->box->cancelText,
                              QString::number(alert->box->type),
                              alert->parentWidget() == window.get() && alert->size() == window->size()
                                  ? QStringLiteral("covers")
                                  : QStringLiteral("elsewhere")}
                      .join(QLatin1Char('|'));
    }
    return CenterFixture::eventFilter(object, event);
}

void TestPortListsService::firstRunOpensTheVirtualPortsAlone()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    QCOMPARE(rows(*screen().inPortList), QStringList({"Keys", "Pads", "Sorvane MIDI In"}));
    QCOMPARE(rows(*screen().outPortList), QStringList({"Keys", "Pads", "Sorvane MIDI Out"}));
    QCOMPARE(log(), QStringList()); // not before the window is up
    QTRY_VERIFY_WITH_TIMEOUT(window->inPorts.at(2) && window->outPorts.at(2), 3000);
    QVERIFY(!window->inPorts.at(0) && !window->inPorts.at(1));
    QVERIFY(!window->outPorts.at(0) && !window->outPorts.at(1));
    QVERIFY(window->midiOutOpen);
    QCOMPARE(log(),
             QStringList({"in virtual Sorvane MIDI In", "in ignores 000", "out virtual Sorvane MIDI Out"}));
    QVERIFY(alerts.isEmpty());
}

void TestPortListsService::rememberedPortsOpenByTheirName()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    settle();
    list("in").item(1)->setSelected(true);
    list("out").item(0)->setSelected(true);
    closeWindow();
    rig.names = QStringList{QStringLiteral("Pads"), QStringLiteral("Wind"), QStringLiteral("Keys")};
    window = std::make_unique<MainWnd>();
    QTRY_VERIFY_WITH_TIMEOUT(window->inPorts.at(0) && window->outPorts.at(2), 3000);
    QVERIFY(!window->inPorts.at(1) && !window->inPorts.at(2));
    QVERIFY(!window->outPorts.at(0) && !window->outPorts.at(1));
}

void TestPortListsService::selectedInputsOpenAndPlay()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    settle();
    list("in").item(0)->setSelected(true);
    list("in").item(1)->setSelected(true);
    QVERIFY(isOpen("in", 0) && isOpen("in", 1) && isOpen("in", 2));
    QCOMPARE(rig.plays.size(), 3);
    for (const char* name : {"Keys", "Pads", "Sorvane MIDI In"}) {
        QVERIFY(!window->findInNote(60)->isPushed);
        rig.plays.value(QLatin1String(name))({0x90, 60, 100});
        QVERIFY(window->findInNote(60)->isPushed);
        rig.plays.value(QLatin1String(name))({0x80, 60, 0});
    }
}

void TestPortListsService::inputsHearEverything()
{
    start({QStringLiteral("Keys")});
    settle();
    list("in").item(0)->setSelected(true);
    QCOMPARE(log(), QStringList({"in open 0 Keys as RtMidi Input", "in ignores 000"}));
}

void TestPortListsService::selectedOutputsOpenAndSound()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    settle();
    list("out").item(1)->setSelected(true);
    QCOMPARE(log(), QStringList({"out open 1 Pads as RtMidi Output"}));
    window->pushKeySlot({0x90, 60, 100});
    QCOMPARE(log(), QStringList({"Pads hears 60", "Sorvane MIDI Out hears 60"}));
}

void TestPortListsService::deselectedPortIsClosed()
{
    start({QStringLiteral("Keys")});
    settle();
    for (const QString& side : {QStringLiteral("in"), QStringLiteral("out")}) {
        list(side).item(0)->setSelected(true);
        QVERIFY(isOpen(side, 0));
        rig.log.clear();
        list(side).item(0)->setSelected(false);
        QCOMPARE(rig.log.value(0), side + QStringLiteral(" close Keys"));
        QVERIFY(!isOpen(side, 0));
        QVERIFY(!isStored(side, QStringLiteral("Keys"), true));
    }
}

void TestPortListsService::lastOutputThatGoesClosesMidiOut()
{
    start({QStringLiteral("Keys")});
    settle();
    list("out").item(0)->setSelected(true);
    list("out").item(1)->setSelected(false);
    QVERIFY(window->midiOutOpen);
    list("out").item(0)->setSelected(false);
    QVERIFY(!window->midiOutOpen);
}

void TestPortListsService::openRowIsNotOpenedAgain()
{
    start({QStringLiteral("Keys")});
    settle();
    SettingsStore::setMidiInPortSelected(virtualInName, false);
    window->inPortSelectionChange();
    window->outPortSelectionChange();
    screen().delayedSelect();
    QCOMPARE(log(), QStringList());
    QVERIFY(!SettingsStore::getMidiInPortSelected(virtualInName, true)); // nothing is stored for it
}

void TestPortListsService::rowOpensItsNameWherePortsMoved()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    settle();
    rig.names = QStringList{QStringLiteral("New"), QStringLiteral("Keys")};
    list("in").item(0)->setSelected(true);
    QCOMPARE(log(), QStringList({"in open 1 Keys as RtMidi Input", "in ignores 000"}));
}

void TestPortListsService::failingPortShowsTheAlert_data()
{
    QTest::addColumn<QString>("side");
    QTest::newRow("in") << "in";
    QTest::newRow("out") << "out";
}

void TestPortListsService::failingPortShowsTheAlert()
{
    QFETCH(QString, side);
    start({QStringLiteral("Keys")}, QStringLiteral("Keys"));
    settle();
    expectWarning();
    list(side).item(0)->setSelected(true);
    QCOMPARE(
        alerts,
        QStringList("|There was an error with selected MIDI port:<br/>it is busy<br/>Please check if this "
                    "port is not opened in some other software.|  OK  ||2|covers"));
}

void TestPortListsService::alertGoesWithItsHandler()
{
    start({QStringLiteral("Keys")}, QStringLiteral("Keys"));
    settle();
    expectWarning();
    list("in").item(0)->setSelected(true);
    QCOMPARE(alerts.size(), 1);
    QVERIFY(!lastAlert);
    QVERIFY(window->findChildren<AlertWidget*>().isEmpty());
    QVERIFY(!window->dialogOpen);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(window->isPowerOn());
}

void TestPortListsService::failingPortStaysSelectedWithoutBeingOpen()
{
    QFETCH(QString, side);
    start({QStringLiteral("Keys")}, QStringLiteral("Keys"));
    settle();
    expectWarning();
    QListWidgetItem* row = list(side).item(0);
    row->setSelected(true);
    QVERIFY(row->isSelected());
    QVERIFY(!isOpen(side, 0));
    QVERIFY(isStored(side, QStringLiteral("Keys"), false));
    QCOMPARE(row->toolTip(), QStringLiteral("Keys\nit is busy"));
    QVERIFY(window->midiOutOpen); // the virtual one
}

void TestPortListsService::walkGoesOnBehindAFailure()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads"), QStringLiteral("Wind")}, QStringLiteral("Pads"));
    settle();
    for (const QString& side : {QStringLiteral("in"), QStringLiteral("out")}) {
        expectWarning();
        list(side).selectAll();
        QVERIFY(isOpen(side, 0) && !isOpen(side, 1) && isOpen(side, 2) && isOpen(side, 3));
        for (const char* name : {"Keys", "Pads", "Wind"})
            QVERIFY(isStored(side, QLatin1String(name), false));
    }
    QCOMPARE(alerts.size(), 2);
}

void TestPortListsService::laterChangeTriesAgain()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")}, QStringLiteral("Keys"));
    settle();
    expectWarning();
    list("in").item(0)->setSelected(true);
    expectWarning();
    list("in").item(1)->setSelected(true); // tries both
    QCOMPARE(alerts.size(), 2);
    QVERIFY(!isOpen("in", 0) && isOpen("in", 1));
    rig.failing.clear();
    list("in").item(1)->setSelected(false);
    QVERIFY(isOpen("in", 0));
    QCOMPARE(alerts.size(), 2);
    QCOMPARE(list("in").item(0)->toolTip(), QStringLiteral("Keys"));
}

void TestPortListsService::portThatIsGoneFails()
{
    start({QStringLiteral("Keys"), QStringLiteral("Pads")});
    settle();
    rig.names = QStringList{QStringLiteral("Other"), QStringLiteral("Pads")};
    expectWarning();
    list("in").item(0)->setSelected(true);
    QCOMPARE(alerts.size(), 1);
    QVERIFY(alerts.first().contains(QLatin1String("<br/>The port is gone.<br/>")));
    QVERIFY(!isOpen("in", 0));
    QCOMPARE(log(), QStringList()); // above all no other device was opened
}

void TestPortListsService::nothingCanBeMade()
{
    start({QStringLiteral("Keys")});
    settle();
    rig.failing = QStringLiteral("*");
    for (const QString& side : {QStringLiteral("in"), QStringLiteral("out")}) {
        expectWarning();
        list(side).item(0)->setSelected(true);
        QVERIFY(alerts.last().contains(QLatin1String("<br/>no server<br/>")));
        QVERIFY(!isOpen(side, 0));
        QVERIFY(isOpen(side, 1));
    }
    QCOMPARE(alerts.size(), 2);
}

void TestPortListsService::failureAtTheStartShowsTheAlert()
{
    expectWarning();
    expectWarning(); // each row has its timer, and tries again
    start({}, virtualInName);
    settle();
    QTRY_COMPARE_WITH_TIMEOUT(alerts.size(), 2, 3000);
    QVERIFY(list("in").item(0)->isSelected());
    QVERIFY(!isOpen("in", 0) && isOpen("out", 0));
    QVERIFY(inView()->hasFocus());
}

void TestPortListsService::failureGivesTheFocusToTheInView()
{
    start({QStringLiteral("Keys")}, QStringLiteral("Keys"));
    settle();
    for (const QString& side : {QStringLiteral("in"), QStringLiteral("out")}) {
        form().buttonReset->setFocus();
        expectWarning();
        list(side).item(0)->setSelected(true);
        QVERIFY(inView()->hasFocus());
    }
}

QTEST_MAIN(TestPortListsService)

#include "test_port_lists_service.moc"
