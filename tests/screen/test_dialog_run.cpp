// A dialog's run: its result, signals and flags, the still stage behind it, and the ways in which it can end.

#include "DialogFixture.h"
#include "screen/AlertWidget.h"

#include <QSignalSpy>
#include <QTimer>

class TestDialogRun : public DialogFixture
{
    Q_OBJECT

private slots:
    // Result
    void endings_data();
    void endings();
    void flagsAreFreshInASecondRun();
    void runningDialogDoesNotRunAgain();

    // The window behind it
    void stageIsStill();
    void midiNotesPass();
    void heldKeyIsReleasedFirst();
    void focusGoesToTheInputKeyboard_data();
    void focusGoesToTheInputKeyboard();

    // Ends from outside
    void endOfTheProgramRejects();
    void runAfterTheEndOfTheProgramIsNone();
    void hidingRejects_data();
    void hidingRejects();
    void deletedWhileRunning();
    void deletedByTheReceiverOfItsSignal_data();
    void deletedByTheReceiverOfItsSignal();

    // One over another
    void innerDialogLeavesTheOuterOne();
    void keysBelongToTheInnerDialog_data();
    void keysBelongToTheInnerDialog();
    void dialogStartedBySignalOfAnother();

    // Without a run
    void shownDialogKeepsTheStageLive();
    void shownDialogAnswersKeys_data();
    void shownDialogAnswersKeys();
    void shownDialogLeavesKeysToARunningOne();
    void shownDialogLeavesKeysToOtherQuestions();
    void shownDialogEndsWithinARun();
    void shownDialogDestroyedAtOnce();
    void hiddenDialogAnswersNoKeys();
    void destroyedWithTheWindow();

private:
    using Dialog = std::unique_ptr<AbstractDialog>;
    Dialog alert() const { return make(QStringLiteral("alert")); }
};

void TestDialogRun::endings_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("accepts");
    for (const char* kind : {"alert", "change", "add", "edit"}) {
        QTest::addRow("%s accepted", kind) << QString::fromLatin1(kind) << true;
        QTest::addRow("%s rejected", kind) << QString::fromLatin1(kind) << false;
    }
}

void TestDialogRun::endings()
{
    QFETCH(QString, kind);
    QFETCH(bool, accepts);
    const Dialog dialog = make(kind);
    QSignalSpy accepted(dialog.get(), &AbstractDialog::accepted);
    QSignalSpy rejected(dialog.get(), &AbstractDialog::rejected);
    QVERIFY(!dialog->wasAccepted && !dialog->wasRejected);
    const auto end = [&] {
        QVERIFY(window->dialogOpen);
        QVERIFY(dialog->isVisible());
        accepts ? dialog->accept() : dialog->reject();
        QVERIFY(!dialog->isVisible());
        QVERIFY(!window->dialogOpen);
    };
    QCOMPARE(run(*dialog, end), accepts ? 1 : 0);
    QCOMPARE(accepted.size(), accepts ? 1 : 0);
    QCOMPARE(rejected.size(), accepts ? 0 : 1);
    QCOMPARE(dialog->wasAccepted, accepts);
    QCOMPARE(dialog->wasRejected, !accepts);
    QVERIFY(!window->dialogOpen);
}

void TestDialogRun::flagsAreFreshInASecondRun()
{
    const Dialog dialog = alert();
    QCOMPARE(run(*dialog, [&] { dialog->accept(); }), 1);
    const auto look = [&] {
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->wasAccepted && !dialog->wasRejected);
        dialog->reject();
    };
    QCOMPARE(run(*dialog, look), 0);
    QVERIFY(!dialog->wasAccepted && dialog->wasRejected);
    QCOMPARE(run(*dialog, [&] { dialog->accept(); }), 1);
    QVERIFY(dialog->wasAccepted && !dialog->wasRejected);
}

void TestDialogRun::runningDialogDoesNotRunAgain()
{
    const Dialog dialog = alert();
    const auto again = [&] {
        QCOMPARE(dialog->exec(), 0);
        QVERIFY(dialog->isVisible() && window->dialogOpen);
        dialog->accept();
    };
    QCOMPARE(run(*dialog, again), 1);
}

void TestDialogRun::stageIsStill()
{
    window->setPower(true);
    QVERIFY(!tapKey(60).isEmpty());
    const QPoint key = inView()->mapTo(window.get(), QPoint(400, 120));
    const Dialog dialog = alert();
    run(*dialog, [&] {
        QCOMPARE(tapKey(60), QList<QList<int>>());
        click(key); // the layer is in its way
        press(Qt::Key_Space);
        QVERIFY(power()->isSwitchOn());
        QCOMPARE(port->takeLists(), QList<QList<int>>());
    });
    click(key);
    QVERIFY(!port->takeLists().isEmpty());
    QVERIFY(!tapKey(60).isEmpty());
    press(Qt::Key_Space);
    QVERIFY(!power()->isSwitchOn());
}

void TestDialogRun::midiNotesPass()
{
    const Dialog dialog = alert();
    run(*dialog, [&] {
        port->clear();
        emit window->signalKey({0x90, 60, 100});
        QCOMPARE(port->takeLists().value(0), (QList<int>{0x90, 60, 100}));
    });
}

void TestDialogRun::heldKeyIsReleasedFirst()
{
    auto* view = window->ui.inKeyboardGraphicsView;
    const QRectF key = window->findInNote(60)->sceneBoundingRect();
    port->clear();
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->mapFromScene(QPointF(key.center().x(), key.bottom() - 10)));
    QCOMPARE(port->takeLists().size(), 1);
    const Dialog dialog = alert();
    run(*dialog, [&] {
        const auto sent = port->takeLists();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().first(), 0x80);
    });
}

void TestDialogRun::focusGoesToTheInputKeyboard_data()
{
    addKinds();
}

void TestDialogRun::focusGoesToTheInputKeyboard()
{
    QFETCH(QString, kind);
    const Dialog dialog = make(kind);
    window->ui.outKeyboardGraphicsView->setFocus();
    run(*dialog, [&] {
        const QWidget* focus = QApplication::focusWidget();
        QVERIFY(focus == dialog.get() || dialog->isAncestorOf(focus));
    });
    QCOMPARE(QApplication::focusWidget(), inView());
}

// The program may end with any status, also with the one that an accepted run gives.
void TestDialogRun::endOfTheProgramRejects()
{
    const Dialog dialog = alert();
    QSignalSpy rejected(dialog.get(), &AbstractDialog::rejected);
    int result = -1;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, this, [] { QCoreApplication::exit(1); });
        result = dialog->exec();
    });
    QCOMPARE(QCoreApplication::exec(), 1);
    QCOMPARE(result, 0);
    QVERIFY(!window->dialogOpen);
    QVERIFY(!dialog->isVisible());
    QVERIFY(dialog->wasRejected && !dialog->wasAccepted);
    QCOMPARE(rejected.size(), 1);
}

void TestDialogRun::runAfterTheEndOfTheProgramIsNone()
{
    const Dialog dialog = alert();
    int result = -1;
    QTimer::singleShot(0, this, [&] {
        QCoreApplication::exit(0);
        result = dialog->exec();
    });
    QCoreApplication::exec();
    QCOMPARE(result, 0);
    QVERIFY(!window->dialogOpen);
    QVERIFY(dialog->wasRejected && dialog->isHidden());
}

void TestDialogRun::hidingRejects_data()
{
    QTest::addColumn<bool>("closed");
    QTest::newRow("hidden") << false;
    QTest::newRow("closed") << true;
}

void TestDialogRun::hidingRejects()
{
    QFETCH(bool, closed);
    const Dialog dialog = alert();
    QTimer::singleShot(5000, dialog.get(), [&] { dialog->accept(); }); // instead of a hang
    QCOMPARE(run(*dialog, [&] { closed ? static_cast<void>(dialog->close()) : dialog->hide(); }), 0);
    QVERIFY(dialog->wasRejected && !dialog->wasAccepted);
    QVERIFY(!window->dialogOpen);
}

void TestDialogRun::deletedWhileRunning()
{
    Dialog dialog = alert();
    AbstractDialog* const raw = dialog.get();
    QTimer::singleShot(0, this, [&] { dialog.reset(); });
    QCOMPARE(raw->exec(), 0);
    QVERIFY(!window->dialogOpen);
    QCOMPARE(QApplication::focusWidget(), inView());
    QVERIFY(!tapKey(60).isEmpty());
}

void TestDialogRun::deletedByTheReceiverOfItsSignal_data()
{
    endings_data();
}

void TestDialogRun::deletedByTheReceiverOfItsSignal()
{
    QFETCH(QString, kind);
    QFETCH(bool, accepts);
    Dialog dialog = make(kind);
    AbstractDialog* const raw = dialog.get();
    const auto remove = [&] { dialog.reset(); };
    connect(raw, &AbstractDialog::accepted, this, remove);
    connect(raw, &AbstractDialog::rejected, this, remove);
    auto* button = raw->findChild<QAbstractButton*>(accepts ? QStringLiteral("okButton")
                                                            : QStringLiteral("cancelButton"));
    QTimer::singleShot(0, this, [&] { clickOn(button); });
    raw->exec();
    QVERIFY(!dialog);
    QVERIFY(!window->dialogOpen);
    QCOMPARE(QApplication::focusWidget(), inView());
}

void TestDialogRun::innerDialogLeavesTheOuterOne()
{
    const Dialog outer = make(QStringLiteral("add"));
    const Dialog inner = alert();
    run(*outer, [&] {
        QCOMPARE(run(*inner, [&] { inner->accept(); }), 1);
        QVERIFY(window->dialogOpen);
        QVERIFY(outer->isVisible() && !outer->wasAccepted);
        QVERIFY(outer->isAncestorOf(QApplication::focusWidget()));
    });
    QVERIFY(!window->dialogOpen);
    QCOMPARE(QApplication::focusWidget(), inView());
}

void TestDialogRun::keysBelongToTheInnerDialog_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Return") << Qt::Key_Return << 1;
    QTest::newRow("Enter") << Qt::Key_Enter << 1;
    QTest::newRow("Escape") << Qt::Key_Escape << 0;
}

void TestDialogRun::keysBelongToTheInnerDialog()
{
    QFETCH(Qt::Key, key);
    QFETCH(int, result);
    const Dialog outer = make(QStringLiteral("add"));
    const Dialog inner = alert();
    const auto both = [&] {
        QCOMPARE(run(*inner, [&] { press(key); }), result);
        QVERIFY(inner->wasAccepted == (result == 1));
        QVERIFY(outer->isVisible());
        press(key);
        QVERIFY(!outer->isVisible());
    };
    QCOMPARE(run(*outer, both), result);
}

void TestDialogRun::dialogStartedBySignalOfAnother()
{
    const Dialog first = alert();
    const Dialog second = alert();
    connect(first.get(), &AbstractDialog::accepted, this,
            [&] { run(*second, [&] { QVERIFY(window->dialogOpen); }); });
    QCOMPARE(run(*first, [&] { first->accept(); }), 1);
    QVERIFY(first->wasAccepted && second->wasRejected);
    QVERIFY(!window->dialogOpen);
}

void TestDialogRun::shownDialogKeepsTheStageLive()
{
    const Dialog dialog = alert();
    dialog->show();
    QVERIFY(dialog->isVisible());
    QVERIFY(!window->dialogOpen);
    QVERIFY(!tapKey(60).isEmpty());
}

void TestDialogRun::shownDialogAnswersKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("accepts");
    QTest::newRow("Return") << Qt::Key_Return << true;
    QTest::newRow("Escape") << Qt::Key_Escape << false;
}

void TestDialogRun::shownDialogAnswersKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, accepts);
    const Dialog dialog = alert();
    dialog->show();
    press(key);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->wasAccepted, accepts);
    QCOMPARE(QApplication::focusWidget(), inView());
}

void TestDialogRun::shownDialogLeavesKeysToARunningOne()
{
    const Dialog shown = alert();
    const Dialog running = alert();
    shown->show();
    QCOMPARE(run(*running, [&] { press(Qt::Key_Return); }), 1);
    QVERIFY(shown->isVisible());
    QVERIFY(!shown->wasAccepted && !shown->wasRejected);
}

// Such as a file dialog, which sets the flag for itself.
void TestDialogRun::shownDialogLeavesKeysToOtherQuestions()
{
    const Dialog shown = alert();
    shown->show();
    window->dialogOpen = true;
    press(Qt::Key_Return);
    QVERIFY(shown->isVisible());
    window->dialogOpen = false;
    press(Qt::Key_Return);
    QVERIFY(!shown->isVisible());
}

void TestDialogRun::shownDialogEndsWithinARun()
{
    const Dialog shown = alert();
    const Dialog running = make(QStringLiteral("edit"));
    run(*running, [&] {
        shown->show();
        shown->accept();
        QVERIFY(shown->wasAccepted);
        QVERIFY(window->dialogOpen);
        QVERIFY(running->isVisible());
        QVERIFY(running->isAncestorOf(QApplication::focusWidget()));
    });
    QVERIFY(!window->dialogOpen);
}

void TestDialogRun::shownDialogDestroyedAtOnce()
{
    window->ui.outKeyboardGraphicsView->setFocus();
    alert()->show();
    QCOMPARE(window->findChildren<AbstractDialog*>().size(), 0);
    QVERIFY(!window->dialogOpen);
    QCOMPARE(QApplication::focusWidget(), inView());
}

void TestDialogRun::hiddenDialogAnswersNoKeys()
{
    const Dialog dialog = alert();
    QSignalSpy accepted(dialog.get(), &AbstractDialog::accepted);
    emit window->specialKeyPressed(Qt::Key_Return);
    QCOMPARE(accepted.size(), 0);
    dialog->show();
    emit window->specialKeyPressed(Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    emit window->specialKeyPressed(Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
}

void TestDialogRun::destroyedWithTheWindow()
{
    const QPointer<AbstractDialog> dialog(alert().release());
    dialog->show();
    closeWindow();
    QVERIFY(!dialog);
}

QTEST_MAIN(TestDialogRun)
#include "test_dialog_run.moc"
