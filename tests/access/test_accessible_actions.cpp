// What assistive technology does in the window, and what it is told of it.

#include "AccessFixture.h"

#include <QAccessible>
#include <QMenu>

namespace {

struct Told
{
    QAccessible::Event type;
    QString name;
};

QList<Told> told;

QStringList toldOf(QAccessible::Event type)
{
    QStringList names;
    for (const Told& each : qAsConst(told))
        if (each.type == type)
            names << each.name;
    return names;
}

} // namespace

// In the place of Qt's own, which keeps silent on a platform without assistive technology.
void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    const auto* object = event->accessibleInterface();
    if (object)
        told.append({event->type(), object->text(QAccessible::Name)});
}

class TestAccessibleActions : public AccessFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pressedKeySoundsAndEnds();
    void pressEndsWhatReturnHolds();
    void endOfAPressLeavesReturnAlone();
    void pressRecallsAFlag();
    void pressSwitchesThePower();
    void pressChoosesATonicAndAStep();
    void pressPlaysTheGameAndOpensTheLibrary();
    void anchorsAreSliders();
    void flagsShowTheirMenu();
    void focusGoesWhereItIsAsked();
    void nothingActsBehindADialog();
    void whatHasGoneDoesNotAct();
    void focusIsToldAsItMoves();
    void stateIsToldAsItChanges();
    void notesTellNothing_data();
    void notesTellNothing();

private:
    using Messages = QList<QList<int>>;
    QAccessibleInterface* find(QWidget* view, const QString& name) const;
    QAccessibleInterface* in(const QString& name) const
    {
        return find(window->ui.inKeyboardGraphicsView, name);
    }
    QAccessibleInterface* centre(const QString& name) const
    {
        return find(window->ui.centerGraphicsView, name);
    }
    static void act(QAccessibleInterface* object, const QString& action);
    static void press(QAccessibleInterface* object)
    {
        act(object, QAccessibleActionInterface::pressAction());
    }
};

void TestAccessibleActions::init()
{
    openAlone();
    window->setPower(true);
    heard();
}

void TestAccessibleActions::cleanup()
{
    QAccessible::setActive(false);
    told.clear();
}

QAccessibleInterface* TestAccessibleActions::find(QWidget* view, const QString& name) const
{
    const QAccessibleInterface* all = QAccessible::queryAccessibleInterface(view);
    for (int i = 0; i < all->childCount(); ++i)
        if (all->child(i)->text(QAccessible::Name) == name)
            return all->child(i);
    qFatal("no %s", qPrintable(name));
}

// It is carried out from the event loop.
void TestAccessibleActions::act(QAccessibleInterface* object, const QString& action)
{
    QVERIFY(object->actionInterface()->actionNames().contains(action));
    object->actionInterface()->doAction(action);
    QCoreApplication::processEvents();
}

void TestAccessibleActions::pressedKeySoundsAndEnds()
{
    setTonic("D");
    QAccessibleInterface* key = in(QStringLiteral("C4, white key, plays D4"));
    heard();
    press(key);
    QCOMPARE(heard(), (Messages{{0x90, 62, 75}}));
    QVERIFY(key->state().pressed);
    QTRY_VERIFY(!key->state().pressed);
    QCOMPARE(heard(), (Messages{{0x80, 62, 0}}));
    press(key);
    window->ui.buttonCredits->setFocus();
    press(in(QStringLiteral("D4, white key, plays E4"))); // ends the one before
    QCOMPARE(heard(), (Messages{{0x90, 62, 75}, {0x80, 62, 0}, {0x90, 64, 75}}));
    window->endGestures();
    QCOMPARE(heard(), (Messages{{0x80, 64, 0}}));
}

void TestAccessibleActions::pressEndsWhatReturnHolds()
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    heard();
    hold(Qt::Key_Return);
    press(in(QStringLiteral("E4, white key, plays E4")));
    QCOMPARE(heard(), (Messages{{0x90, 60, 75}, {0x80, 60, 0}, {0x90, 64, 75}}));
    letUp(Qt::Key_Return);
    QTRY_VERIFY(!window->findInNote(64)->isPushed);
    QCOMPARE(heard(), (Messages{{0x80, 64, 0}}));
}

void TestAccessibleActions::endOfAPressLeavesReturnAlone()
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    heard();
    press(in(QStringLiteral("E4, white key, plays E4")));
    hold(Qt::Key_Return);
    QCOMPARE(heard(), (Messages{{0x90, 64, 75}, {0x80, 64, 0}, {0x90, 60, 75}}));
    QTest::qWait(200); // longer than the press would have been
    QCOMPARE(heard(), Messages());
    letUp(Qt::Key_Return);
    QCOMPARE(heard(), (Messages{{0x80, 60, 0}}));
}

void TestAccessibleActions::pressRecallsAFlag()
{
    QAccessibleInterface* before = in(QStringLiteral("Preset on D#3"));
    QAccessibleInterface* flag = in(QStringLiteral("Preset on F#4"));
    QVERIFY(flag->state().checkable && !flag->state().checked && flag->state().hasPopup);
    press(flag);
    QCOMPARE(active(), 66);
    QVERIFY(flag->state().checked && !before->state().checked);
    QVERIFY(!flag->text(QAccessible::Description).isEmpty());
}

void TestAccessibleActions::pressSwitchesThePower()
{
    QAccessibleInterface* button = in(QStringLiteral("Power"));
    QVERIFY(button->state().checked);
    press(button);
    QVERIFY(!window->isPowerOn() && !button->state().checked);
    press(button);
    QVERIFY(window->isPowerOn() && button->state().checked);
}

void TestAccessibleActions::pressChoosesATonicAndAStep()
{
    QVERIFY(centre(QStringLiteral("Tonic C"))->state().checked);
    press(centre(QStringLiteral("Tonic E")));
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
    QVERIFY(centre(QStringLiteral("Tonic E"))->state().checked);
    QVERIFY(!centre(QStringLiteral("Tonic C"))->state().checked);
    QAccessibleInterface* step = centre(QStringLiteral("Semitone 2 above the tonic, M2"));
    QVERIFY(step->state().checked);
    press(step);
    QVERIFY(!step->state().checked);
    press(centre(QStringLiteral("Preset sets the tonic")));
    QVERIFY(!tonic().switchOn);
    QVERIFY(!centre(QStringLiteral("Preset sets the tonic"))->state().checked);
}

void TestAccessibleActions::pressPlaysTheGameAndOpensTheLibrary()
{
    QAccessibleInterface* cell = centre(QStringLiteral("Game: row 2, column 3"));
    QCOMPARE(cell->text(QAccessible::Description), QStringLiteral("empty"));
    press(cell);
    QCOMPARE(cell->text(QAccessible::Description), QStringLiteral("cross"));
    press(centre(QStringLiteral("Open the scale library (Ctrl+L)")));
    QVERIFY(screen().libraryOpen);
    press(centre(QStringLiteral("Close the scale library (Ctrl+L)")));
    QVERIFY(!screen().libraryOpen);
}

void TestAccessibleActions::anchorsAreSliders()
{
    QAccessibleInterface* anchor = in(QStringLiteral("Anchor 1"));
    QAccessibleValueInterface* value = anchor->valueInterface();
    QVERIFY(value);
    QVERIFY(!in(QStringLiteral("Power"))->valueInterface());
    QCOMPARE(value->currentValue(), QVariant(0));
    QCOMPARE(value->minimumValue(), QVariant(-29)); // an octave from the one in the middle
    QCOMPARE(value->maximumValue(), QVariant(21));
    QCOMPARE(value->minimumStepSize(), QVariant(1));
    value->setCurrentValue(3);
    QCOMPARE(anchors()->x(), 51.0);
    QCOMPARE(value->currentValue(), QVariant(3));
    QCOMPARE(anchor->text(QAccessible::Value), QStringLiteral("3"));
    QCOMPARE(target(65), 60);
    act(anchor, QAccessibleActionInterface::decreaseAction());
    QCOMPARE(value->currentValue(), QVariant(2));
    act(anchor, QAccessibleActionInterface::increaseAction());
    QCOMPARE(value->currentValue(), QVariant(3));
    for (const int end : {1000, -1000}) {
        value->setCurrentValue(end);
        QCOMPARE(value->currentValue(), end > 0 ? value->maximumValue() : value->minimumValue());
        QVERIFY(!anchor->state().invisible);
    }
}

void TestAccessibleActions::flagsShowTheirMenu()
{
    whenMenu([](QMenu&) {});
    seen = 0;
    act(in(QStringLiteral("Preset on F#4")), QAccessibleActionInterface::showMenuAction());
    QTRY_COMPARE(seen, 1);
}

void TestAccessibleActions::focusGoesWhereItIsAsked()
{
    QAccessibleInterface* step = centre(QStringLiteral("Semitone 4 above the tonic, M3"));
    QVERIFY(step->state().focusable && !step->state().focused);
    act(step, QAccessibleActionInterface::setFocusAction());
    QVERIFY(step->state().focused);
    QVERIFY(window->ui.centerGraphicsView->hasFocus());
    QCOMPARE(here(), QStringLiteral("Semitone 4 above the tonic, M3"));
    QVERIFY(ring().isVisible());
    act(in(QStringLiteral("Preset on F#4")), QAccessibleActionInterface::setFocusAction());
    QVERIFY(!step->state().focused);
    type(Qt::Key_Return);
    QCOMPARE(active(), 66);
}

void TestAccessibleActions::nothingActsBehindADialog()
{
    QAccessibleInterface* key = in(QStringLiteral("E4, white key, plays E4"));
    QAccessibleInterface* anchor = in(QStringLiteral("Anchor 0"));
    const QStringList before = state();
    window->dialogOpen = true;
    press(key);
    press(in(QStringLiteral("Preset on F#4")));
    anchor->valueInterface()->setCurrentValue(4);
    act(anchor, QAccessibleActionInterface::increaseAction());
    act(key, QAccessibleActionInterface::setFocusAction());
    window->dialogOpen = false;
    QCOMPARE(heard(), Messages());
    QCOMPARE(state(), before);
    QVERIFY(!key->state().focused);
}

void TestAccessibleActions::whatHasGoneDoesNotAct()
{
    QAccessibleInterface* flag = in(QStringLiteral("Preset on F#4"));
    QAccessibleInterface* key = in(QStringLiteral("E4, white key, plays E4"));
    window->setPower(false);
    press(flag);
    window->setPower(true);
    QVERIFY(active() != 66);
    heard();
    key->actionInterface()->doAction(QStringLiteral("no such action"));
    key->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCoreApplication::processEvents();
    QCOMPARE(heard(), Messages());
    key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    window.reset(); // before the event loop comes to it
    QCoreApplication::processEvents();
}

void TestAccessibleActions::focusIsToldAsItMoves()
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    told.clear();
    type(Qt::Key_Right);
    QCoreApplication::processEvents();
    QCOMPARE(toldOf(QAccessible::Focus), QStringList()); // nobody listens
    QAccessible::setActive(true);
    type(Qt::Key_Left);
    QCOMPARE(toldOf(QAccessible::Focus), QStringList("C4, white key, plays C4"));
    type(Qt::Key_Down);
    type(Qt::Key_Up);
    type(Qt::Key_Home);
    type(Qt::Key_Home); // where it is already
    QCOMPARE(toldOf(QAccessible::Focus).mid(1),
             (QStringList{"Anchor 0", "C4, white key, plays C4", "A0, white key, plays A0"}));
    const auto lastOf = [](int key) {
        told.clear();
        type(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QCoreApplication::processEvents();
        return toldOf(QAccessible::Focus).value(toldOf(QAccessible::Focus).size() - 1);
    };
    QCOMPARE(lastOf(Qt::Key_Tab), QStringLiteral("C4 of the output"));
    QCOMPARE(lastOf(Qt::Key_Tab), QStringLiteral("Tonic C"));
    QCOMPARE(lastOf(Qt::Key_Tab), QStringLiteral("MIDI I/O"));
    window->ui.scene1Button->setFocus();
    QCOMPARE(lastOf(Qt::Key_Tab), QStringLiteral("Game: row 1, column 1"));
    QCOMPARE(lastOf(Qt::Key_Tab), QStringLiteral("Semitone 2 above the tonic, M2")); // in the same view
    QCOMPARE(lastOf(Qt::Key_Backtab), QStringLiteral("Game: row 1, column 1"));
    QVERIFY(centre(QStringLiteral("Game: row 1, column 1"))->state().focused);
    QCOMPARE(QAccessible::queryAccessibleInterface(window->ui.centerGraphicsView)->focusChild(),
             centre(QStringLiteral("Game: row 1, column 1")));
}

void TestAccessibleActions::stateIsToldAsItChanges()
{
    QVERIFY(tabTo(QStringLiteral("Tonic C")));
    told.clear();
    QAccessible::setActive(true);
    type(Qt::Key_Right);
    type(Qt::Key_Return);
    QCOMPARE(toldOf(QAccessible::StateChanged), QStringList("Tonic C#"));
    QAccessibleInterface* anchor = in(QStringLiteral("Anchor 0"));
    act(anchor, QAccessibleActionInterface::setFocusAction());
    type(Qt::Key_Right);
    QCOMPARE(toldOf(QAccessible::ValueChanged), QStringList("Anchor 0"));
}

void TestAccessibleActions::notesTellNothing_data()
{
    QTest::addColumn<bool>("listening");
    QTest::newRow("nobody listens") << false;
    QTest::newRow("somebody listens") << true;
}

void TestAccessibleActions::notesTellNothing()
{
    QFETCH(bool, listening);
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    QCoreApplication::processEvents();
    QAccessible::setActive(listening);
    told.clear();
    heard();
    for (int note = 21; note <= 108; ++note)
        if (!QList<int>{1, 3, 6, 8, 10}.contains(note % 12)) {
            sendNote(note, 90);
            sendNote(note, 0);
        }
    QCoreApplication::processEvents();
    QCOMPARE(heard().size(), 2 * 52);
    QCOMPARE(told.size(), 0);
}

QTEST_MAIN(TestAccessibleActions)
#include "test_accessible_actions.moc"
