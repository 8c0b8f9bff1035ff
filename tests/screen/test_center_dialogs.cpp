// The display and the dialogs: what a dialog keeps still, and the one that a double click on a flag opens.

#include "CenterFixture.h"
#include "Hand.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/EditWindow.h"

#include <QLineEdit>
#include <QTimer>

class TestCenterDialogs : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    // Dialogs
    void spaceInADialogDoesNotToggle();
    void spaceInAnAlertDoesNotToggle();
    void midiInADialogDoesNotToggle();
    void shortcutsInADialogLeaveTheScene();

    // Double click on a flag
    void doubleClickOnAFlagEditsThePlayedScale();
    void doubleClickOnAFlagOfAnUnknownScaleAddsIt();
    void doubleClickElsewhereOpensNothing_data();
    void doubleClickElsewhereOpensNothing();
    void otherButtonsDoubleClickOnAHeldFlagOpensNothing();
    void doubleClickUnderADialogOpensNothing();

private:
    /// That no dialog comes shows only in that none has come by then.
    bool nothingOpens() const
    {
        return !QTest::qWaitFor([this] { return seen > 0; }, 20);
    }
    void doubleClick(QPointF inScene, Qt::MouseButton mouseButton = Qt::LeftButton) const;
    /// Waits for a dialog of the kind, looks at it and closes it.
    template <typename Dialog>
    void whenDialogIsUp(const std::function<void(Dialog&)>& look);
};

void TestCenterDialogs::init()
{
    openWindow();
    show();
}

template <typename Dialog>
void TestCenterDialogs::whenDialogIsUp(const std::function<void(Dialog&)>& look)
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this, poll, look] {
        auto* dialog = window->findChild<Dialog*>();
        if (!dialog || dialog->isHidden())
            return;
        poll->stop();
        poll->deleteLater();
        ++seen;
        look(*dialog);
        dialog->reject();
    });
    poll->start(1);
}

void TestCenterDialogs::spaceInADialogDoesNotToggle()
{
    openLibrary();
    whenDialogIsUp<EditWindow>([this](EditWindow& dialog) {
        QVERIFY(window->dialogOpen);
        for (QWidget* target : {static_cast<QWidget*>(&dialog), QApplication::focusWidget(), inView(),
                                static_cast<QWidget*>(window.get())}) {
            QVERIFY(target);
            QTest::keyClick(target, Qt::Key_Space);
            QVERIFY(window->isPowerOn());
        }
    });
    screen().openEditSceneDlg(ionian, 1);
    QCOMPARE(seen, 1);
    QCOMPARE(look(), QStringLiteral("library"));
    QTest::keyClick(inView(), Qt::Key_Space);
    QVERIFY(!window->isPowerOn());
}

void TestCenterDialogs::spaceInAnAlertDoesNotToggle()
{
    for (const bool wanted : {true, false}) {
        window->setPower(wanted);
        whenAsked([this, wanted](AlertWidget& alert) {
            QTest::keyClick(&alert, Qt::Key_Space);
            QTest::keyClick(inView(), Qt::Key_Space);
            QCOMPARE(window->isPowerOn(), wanted);
            alert.reject();
        });
        QVERIFY(!window->confirmAlert(QStringLiteral("?"), QStringLiteral("Yes")));
    }
    QCOMPARE(seen, 2);
}

void TestCenterDialogs::midiInADialogDoesNotToggle()
{
    openLibrary();
    whenDialogIsUp<EditWindow>([this](EditWindow&) {
        emit window->signalKey({0x90, powerKey, 90});
        emit window->signalKey({0x80, powerKey, 0});
        window->switchPower();
        QVERIFY(window->isPowerOn());
        QVERIFY(screen().libraryOpen);
    });
    screen().openEditSceneDlg(ionian, 1);
    QCOMPARE(seen, 1);
}

void TestCenterDialogs::shortcutsInADialogLeaveTheScene()
{
    openLibrary();
    whenDialogIsUp<EditWindow>([this](EditWindow&) {
        for (const auto key : {Qt::Key_M, Qt::Key_L})
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        QCOMPARE(look(), QStringLiteral("library"));
        QCOMPARE(screen().currentScene, 1);
    });
    screen().openEditSceneDlg(ionian, 1);
    QCOMPARE(seen, 1);
    QTest::keyClick(inView(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!screen().libraryOpen);
}

void TestCenterDialogs::doubleClick(QPointF inScene, Qt::MouseButton mouseButton) const
{
    QGraphicsView* stage = form().inKeyboardGraphicsView;
    QTest::mouseDClick(stage->viewport(), mouseButton, {}, stage->mapFromScene(inScene));
}

void TestCenterDialogs::doubleClickOnAFlagEditsThePlayedScale()
{
    window->setPower(true);
    record(51) = fullRecord(); // Lydian
    header(51)->updateScenic();
    whenDialogIsUp<EditWindow>([this](EditWindow& dialog) {
        scale_data lydianRecord;
        QVERIFY(library().getScaleData(scale().scaleModifier(), lydianRecord, DatabaseLibrary::AnyRole));
        QCOMPARE(scale().scaleModifier(), lydian);
        QCOMPARE(dialog.name(), lydianRecord.title);
        const auto* title = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(title);
        QCOMPARE(title->text(), lydianRecord.title);
        QVERIFY(!(header(51)->flags() & QGraphicsItem::ItemIsMovable));
    });
    doubleClick(header(51)->mapToScene(QRectF(header(51)->nameRect1).center()));
    QCOMPARE(seen, 1);
    QCOMPARE(active(), 51);
    QVERIFY(!window->dialogOpen);
    QCOMPARE(header(51)->pos(), header(51)->homePos);
}

void TestCenterDialogs::doubleClickOnAFlagOfAnUnknownScaleAddsIt()
{
    window->setPower(true);
    setRecord(51, scaleRecord(unknownWord));
    whenDialogIsUp<AddWindow>(
        [](AddWindow& dialog) { QVERIFY(dialog.name().startsWith(QLatin1String("User"))); });
    doubleClick(header(51)->mapToScene(QRectF(header(51)->nameRect1).center()));
    QCOMPARE(seen, 1);
    QVERIFY(library().findCategoriesWithScale(unknownWord).isEmpty());
}

void TestCenterDialogs::doubleClickElsewhereOpensNothing_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("mouseButton");
    QTest::newRow("flag, right button") << 0 << int(Qt::RightButton);
    QTest::newRow("flag, middle button") << 0 << int(Qt::MiddleButton);
    QTest::newRow("white key") << 1 << int(Qt::LeftButton);
    QTest::newRow("power button") << 2 << int(Qt::LeftButton);
    QTest::newRow("sleeve") << 3 << int(Qt::LeftButton);
}

void TestCenterDialogs::doubleClickElsewhereOpensNothing()
{
    QFETCH(int, place);
    QFETCH(int, mouseButton);
    window->setPower(true);
    const QPointF places[] = {header(51)->mapToScene(QRectF(header(51)->nameRect1).center()),
                              onKey(window->findInNote(62)), power()->pos() + QPointF(9, 15),
                              power()->pos() + QPointF(9, 60)};
    whenDialogIsUp<AbstractDialog>([](AbstractDialog&) {});
    if (mouseButton == int(Qt::RightButton)) // without the menu that a context event would ask for
        form().inKeyboardGraphicsView->setContextMenuPolicy(Qt::PreventContextMenu);
    doubleClick(places[place], static_cast<Qt::MouseButton>(mouseButton));
    QVERIFY(nothingOpens());
    QVERIFY(!window->dialogOpen);
}

void TestCenterDialogs::otherButtonsDoubleClickOnAHeldFlagOpensNothing()
{
    window->setPower(true);
    whenDialogIsUp<AbstractDialog>([](AbstractDialog&) {});
    const QPointF box = header(51)->mapToScene(QRectF(header(51)->nameRect1).center());
    Hand hand(form().inKeyboardGraphicsView);
    hand.press(box);
    hand.pressAgain(box, Qt::MiddleButton);
    QVERIFY(nothingOpens());
    hand.release(Qt::MiddleButton);
    hand.release();
}

void TestCenterDialogs::doubleClickUnderADialogOpensNothing()
{
    window->setPower(true);
    whenDialogIsUp<AbstractDialog>([](AbstractDialog&) {});
    window->dialogOpen = true;
    doubleClick(header(51)->mapToScene(QRectF(header(51)->nameRect1).center()));
    QVERIFY(nothingOpens());
    window->dialogOpen = false;
    QCOMPARE(active(), firstActive);
}

QTEST_MAIN(TestCenterDialogs)

#include "test_center_dialogs.moc"
