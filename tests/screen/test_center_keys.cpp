// The display by the computer's keyboard alone.

#include "CenterFixture.h"

#include <QDesktopServices>

class TestCenterKeys : public CenterFixture
{
    Q_OBJECT

public slots:
    void openNothing(const QUrl&) {} // in place of the desktop's browser

private slots:
    void init();

    // Keys
    void tabWalksOverTheSixButtons();
    void tabPassesOverHiddenButtons();
    void returnAndEnterClickTheFocusedButton_data();
    void returnAndEnterClickTheFocusedButton();
    void otherKeysDoNotClickIt();
    void returnElsewhereClicksNothing();
    void returnInADialogClicksNothing();
    void enterAndEscapeDoNotClose_data();
    void enterAndEscapeDoNotClose();
    void spaceTogglesWhereverTheFocusIs();

    // Shortcuts
    void controlMOpensThePorts_data();
    void controlMOpensThePorts();
    void controlMLeavesTheLibrary();
    void controlLOpensAndClosesTheLibrary_data();
    void controlLOpensAndClosesTheLibrary();
    void controlLGivesTheFocusBack();

private:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    QString focused() const
    {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName() : QString();
    }
};

void TestCenterKeys::init()
{
    openWindow();
    show();
    inView()->setFocus();
}

void TestCenterKeys::tabWalksOverTheSixButtons()
{
    QStringList there, back;
    for (int i = 0; i < 7; ++i) {
        press(Qt::Key_Tab);
        there << focused();
    }
    const QStringList six{QStringLiteral("buttonMIDIinOut"), QStringLiteral("buttonCredits"),
                          QStringLiteral("buttonManual"),    QStringLiteral("buttonExport"),
                          QStringLiteral("buttonImport"),    QStringLiteral("buttonReset")};
    QCOMPARE(there.mid(1), six); // by way of the output keyboard
    press(Qt::Key_Tab);
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        back.prepend(focused());
    }
    QCOMPARE(back, six);
    QCOMPARE(screen().currentScene, 1);
}

void TestCenterKeys::tabPassesOverHiddenButtons()
{
    for (const int setter : {to_clean, to_ports, to_library}) {
        call(setter);
        inView()->setFocus();
        for (int i = 0; i < 10; ++i) {
            press(Qt::Key_Tab);
            QVERIFY(QApplication::focusWidget());
            QVERIFY(QApplication::focusWidget()->isVisible());
            QVERIFY(!rightButtons().contains(qobject_cast<QPushButton*>(QApplication::focusWidget())));
        }
    }
}

void TestCenterKeys::returnAndEnterClickTheFocusedButton_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestCenterKeys::returnAndEnterClickTheFocusedButton()
{
    QFETCH(int, key);
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openNothing");
    for (QPushButton* each : sixButtons()) {
        call(to_default);
        QSignalSpy clicks(each, &QPushButton::clicked);
        each->setFocus();
        press(key);
        QCOMPARE(clicks.count(), 1);
    }
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QVERIFY(window->isVisible());
}

void TestCenterKeys::otherKeysDoNotClickIt()
{
    form().buttonCredits->setFocus();
    for (const int key : {int(Qt::Key_Escape), int(Qt::Key_A), int(Qt::Key_F5)})
        press(key);
    QCOMPARE(screen().currentScene, 1);
    press(Qt::Key_Return);
    QCOMPARE(screen().currentScene, 4);
    QVERIFY(inView()->hasFocus());
}

void TestCenterKeys::returnElsewhereClicksNothing()
{
    QSignalSpy all(window.get(), &QDialog::finished);
    QList<QSignalSpy*> clicks;
    for (QPushButton* each : window->findChildren<QPushButton*>())
        clicks << new QSignalSpy(each, &QPushButton::clicked);
    for (const int setter : {to_default, to_clean}) { // the logo has the focus in the second
        inView()->setFocus();
        call(setter);
        press(Qt::Key_Return);
        press(Qt::Key_Enter);
    }
    for (const QSignalSpy* each : qAsConst(clicks))
        QVERIFY(each->isEmpty());
    QVERIFY(all.isEmpty());
    qDeleteAll(clicks);
}

void TestCenterKeys::returnInADialogClicksNothing()
{
    form().buttonCredits->setFocus();
    window->dialogOpen = true;
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    window->dialogOpen = false;
    QCOMPARE(screen().currentScene, 1);
}

void TestCenterKeys::enterAndEscapeDoNotClose_data()
{
    QTest::addColumn<int>("setter");
    for (int setter = to_default; setter <= to_library; ++setter)
        QTest::newRow(nameOf(setter)) << setter;
}

void TestCenterKeys::enterAndEscapeDoNotClose()
{
    QFETCH(int, setter);
    call(setter);
    const QSignalSpy finished(window.get(), &QDialog::finished);
    for (QWidget* target :
         {inView(), static_cast<QWidget*>(window.get()), static_cast<QWidget*>(screen().inPortList),
          static_cast<QWidget*>(form().centerLogo)})
        for (const auto key : {Qt::Key_Escape, Qt::Key_Enter, Qt::Key_Return}) {
            QTest::keyClick(target, key);
            QVERIFY(window->isVisible());
        }
    QVERIFY(finished.isEmpty());
}

void TestCenterKeys::spaceTogglesWhereverTheFocusIs()
{
    bool wanted = false;
    QList<QWidget*> targets{inView(), form().centerLogo, window.get()};
    for (QPushButton* each : sixButtons())
        targets << each;
    for (QWidget* target : qAsConst(targets)) {
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Space);
        QCOMPARE(window->isPowerOn(), wanted = !wanted);
        QCOMPARE(screen().currentScene, 1);
    }
}

void TestCenterKeys::controlMOpensThePorts_data()
{
    QTest::addColumn<int>("from");
    for (int from = to_default; from <= to_credits; ++from)
        QTest::newRow(nameOf(from)) << from;
}

void TestCenterKeys::controlMOpensThePorts()
{
    QFETCH(int, from);
    for (const bool powered : {false, true}) {
        window->setPower(powered);
        call(from);
        if (from == to_ports)
            window->on_buttonMIDIinOut_clicked(true);
        inView()->setFocus();
        press(Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(look(), QStringLiteral("ports left"));
        QCOMPARE(checks(), QStringLiteral("ports"));
        QVERIFY(screen().inPortList->hasFocus());
        press(Qt::Key_M, Qt::ControlModifier); // stays
        QCOMPARE(look(), QStringLiteral("ports left"));
        QVERIFY(screen().inPortList->hasFocus());
        QCOMPARE(hitAt(ofForm(300, 183)), QStringLiteral("scene34TopButton"));
    }
}

void TestCenterKeys::controlMLeavesTheLibrary()
{
    for (const int scene : {to_default, to_ports}) {
        call(scene);
        openLibrary();
        QVERIFY(screen().libraryOpen);
        inView()->setFocus();
        press(Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(look(), QStringLiteral("ports left"));
        QVERIFY(screen().inPortList->hasFocus());
    }
}

void TestCenterKeys::controlLOpensAndClosesTheLibrary_data()
{
    controlMOpensThePorts_data();
}

void TestCenterKeys::controlLOpensAndClosesTheLibrary()
{
    QFETCH(int, from);
    call(from);
    const QString shown = look();
    inView()->setFocus();
    press(Qt::Key_L, Qt::ControlModifier); // the power is off
    QCOMPARE(look(), shown);
    window->setPower(true);
    inView()->setFocus();
    for (int round = 0; round < 2; ++round) {
        press(Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(look(), QStringLiteral("library"));
        QVERIFY(view().categories->hasFocus());
        press(Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(look(), shown);
        QCOMPARE(screen().currentScene, from);
    }
}

void TestCenterKeys::controlLGivesTheFocusBack()
{
    window->setPower(true);
    for (int from = to_default; from <= to_credits; ++from) {
        call(from);
        inView()->setFocus();
        press(Qt::Key_L, Qt::ControlModifier);
        press(Qt::Key_L, Qt::ControlModifier);
        QVERIFY(inView()->hasFocus());
    }
}

QTEST_MAIN(TestCenterKeys)

#include "test_center_keys.moc"
