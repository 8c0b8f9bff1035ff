// The library by the keyboard alone.

#include "LibraryFixture.h"

#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"

#include <QLineEdit>
#include <QMenu>
#include <QtTest>

class TestLibraryKeys : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init() { openPlaying(); }

    void controlLTogglesTheLibrary();
    void controlLNeedsThePower();
    void controlLDoesNothingInADialog();
    void tabGoesFromListToList();
    void arrowsChooseCategories();
    void arrowsChooseScales_data();
    void arrowsChooseScales();
    void arrowsStopAtTheEnds();
    void keysOfTheCategories_data();
    void keysOfTheCategories();
    void keysOfTheScales_data();
    void keysOfTheScales();
    void keysOfTheScalesNeedAScale_data();
    void keysOfTheScalesNeedAScale();
    void f2EditsTheShownScale();
    void deleteDeletesTheScale();
    void returnPlaysAsADoubleClick_data();
    void returnPlaysAsADoubleClick();
    void returnElsewherePlaysNothing_data();
    void returnElsewherePlaysNothing();
    void returnInADialogPlaysNothing();
    void typingSelectsNothing_data();
    void typingSelectsNothing();
    void spaceTurnsThePowerOff();

private:
    static void key(int which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* focus = QApplication::focusWidget();
        QVERIFY(focus);
        QTest::keyClick(focus, static_cast<Qt::Key>(which), modifiers);
    }
    static void addReturns()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
    }
};

void TestLibraryKeys::controlLTogglesTheLibrary()
{
    window->focusInKeyboard();
    key(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!screen().libraryOpen);
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
    key(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(screen().libraryOpen);
    QVERIFY(categoryList().hasFocus());
    key(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!screen().libraryOpen);
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
}

void TestLibraryKeys::controlLNeedsThePower()
{
    window->showLibraryScreen(false);
    window->setPower(false);
    window->focusInKeyboard();
    key(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!screen().libraryOpen);
}

void TestLibraryKeys::controlLDoesNothingInADialog()
{
    whenOpen<ChangeDialog>([this](ChangeDialog&) {
        key(Qt::Key_L, Qt::ControlModifier);
        QVERIFY(screen().libraryOpen);
    });
    screen().appendCategory();
    QCOMPARE(seen, 1);
}

void TestLibraryKeys::tabGoesFromListToList()
{
    categoryList().setFocus();
    key(Qt::Key_Tab);
    QVERIFY(scaleList().hasFocus());
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(categoryList().hasFocus());
    QCOMPARE(view().description->focusPolicy(), Qt::NoFocus);
}

void TestLibraryKeys::arrowsChooseCategories()
{
    categoryList().setFocus();
    key(Qt::Key_Down);
    QCOMPARE(library().currentCagetoryIndex(), 1);
    QCOMPARE(rows(scaleList()), titles(category(1)));
    key(Qt::Key_Down);
    key(Qt::Key_Up);
    QCOMPARE(library().currentCagetoryIndex(), 1);
    key(Qt::Key_End);
    QCOMPARE(library().currentCagetoryIndex(), 9);
    QCOMPARE(scale().scaleModifier(), ionian); // nothing plays
}

void TestLibraryKeys::arrowsChooseScales_data()
{
    QTest::addColumn<bool>("switched");
    QTest::newRow("switch on") << true;
    QTest::newRow("switch off") << false;
}

void TestLibraryKeys::arrowsChooseScales()
{
    QFETCH(bool, switched);
    if (switched)
        scale().setSwitchOn(true);
    else
        scale().setSwitchOff(true);
    settle();
    const int row = scaleList().currentRow();
    QCOMPARE(scaleList().keyAt(row), ionian);
    scaleList().setFocus();
    key(Qt::Key_Down);
    const QString next = words(category(0)).at(row + 1);
    QCOMPARE(library().currentScale(), next);
    QVERIFY(view().description->toPlainText().startsWith(titleOf(next)));
    QCOMPARE(scale().scaleModifier(), switched ? next : ionian);
    QVERIFY(scaleList().hasFocus());
}

void TestLibraryKeys::arrowsStopAtTheEnds()
{
    categoryList().setFocus();
    key(Qt::Key_Home);
    key(Qt::Key_Up);
    QCOMPARE(library().currentCagetoryIndex(), 0);
    showCategory(9);
    scaleList().setFocus();
    key(Qt::Key_Down); // no scale is there
    QCOMPARE(library().currentScaleIndex(category(9)), -1);
}

void TestLibraryKeys::keysOfTheCategories_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("opens");
    const int none = Qt::NoModifier, control = Qt::ControlModifier;
    QTest::newRow("Insert") << int(Qt::Key_Insert) << none << "ChangeDialog name";
    QTest::newRow("Delete") << int(Qt::Key_Delete) << none << "AlertWidget";
    QTest::newRow("F2") << int(Qt::Key_F2) << none << "ChangeDialog name";
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << control << "";
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << control << "";
}

void TestLibraryKeys::keysOfTheCategories()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    categoryList().setFocus();
    const QString opened = whatOpens([&] { this->key(key, static_cast<Qt::KeyboardModifiers>(modifiers)); });
    QTEST(opened, "opens");
}

void TestLibraryKeys::keysOfTheScales_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("opens");
    const int none = Qt::NoModifier, control = Qt::ControlModifier;
    QTest::newRow("Insert") << int(Qt::Key_Insert) << none << "AddWindow title";
    QTest::newRow("Delete") << int(Qt::Key_Delete) << none << "AlertWidget";
    QTest::newRow("F2") << int(Qt::Key_F2) << none << "EditWindow title";
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << control << "StageMenu";
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << control << "StageMenu";
    QTest::newRow("c") << int(Qt::Key_C) << none << "";
    QTest::newRow("x") << int(Qt::Key_X) << none << "";
    QTest::newRow("Ctrl+Shift+X") << int(Qt::Key_X) << int(Qt::ControlModifier | Qt::ShiftModifier) << "";
}

void TestLibraryKeys::keysOfTheScales()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    scaleList().setFocus();
    const QString opened = whatOpens([&] { this->key(key, static_cast<Qt::KeyboardModifiers>(modifiers)); });
    QTEST(opened, "opens");
}

void TestLibraryKeys::keysOfTheScalesNeedAScale_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << int(Qt::ControlModifier);
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << int(Qt::ControlModifier);
}

void TestLibraryKeys::keysOfTheScalesNeedAScale()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    showCategory(9);
    scaleList().setFocus();
    QCOMPARE(whatOpens([&] { this->key(key, static_cast<Qt::KeyboardModifiers>(modifiers)); }), QString());
}

void TestLibraryKeys::f2EditsTheShownScale()
{
    scale().setSwitchOff(true);
    showCategory(0);
    clickRow(scaleList(), 5);
    scaleList().setFocus();
    QString name;
    whenOpen<AbstractDialog>([&](AbstractDialog& dialog) {
        name = dialog.findChild<QLineEdit*>(QStringLiteral("title"))->text();
    });
    key(Qt::Key_F2);
    QCOMPARE(seen, 1);
    QCOMPARE(name, titleOf(words(category(0)).at(5)));
}

void TestLibraryKeys::deleteDeletesTheScale()
{
    scaleList().setFocus();
    whenOpen<AlertWidget>([](AlertWidget& alert) { clickButtonOf(alert, true); });
    key(Qt::Key_Delete);
    QCOMPARE(seen, 1);
    QVERIFY(!words(category(0)).contains(ionian));
    QCOMPARE(library().categoryCount(), 10);
}

void TestLibraryKeys::returnPlaysAsADoubleClick_data()
{
    addReturns();
}

void TestLibraryKeys::returnPlaysAsADoubleClick()
{
    QFETCH(int, key);
    scale().setSwitchOff(true);
    showCategory(0);
    clickRow(scaleList(), 5);
    scaleList().setFocus();
    this->key(key);
    QVERIFY(scale().switchOn);
    QCOMPARE(scale().scaleModifier(), words(category(0)).at(5));
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
}

void TestLibraryKeys::returnElsewherePlaysNothing_data()
{
    addReturns();
}

void TestLibraryKeys::returnElsewherePlaysNothing()
{
    QFETCH(int, key);
    scale().setSwitchOff(true);
    showCategory(0);
    clickRow(scaleList(), 5);
    categoryList().setFocus();
    this->key(key);
    window->focusInKeyboard();
    this->key(key);
    scaleList().setFocus();
    this->key(Qt::Key_Escape);
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestLibraryKeys::returnInADialogPlaysNothing()
{
    scale().setSwitchOff(true);
    showCategory(0);
    clickRow(scaleList(), 5);
    scaleList().setFocus();
    whenOpen<AlertWidget>([this](AlertWidget& alert) {
        key(Qt::Key_Return);
        QVERIFY(alert.isHidden()); // it deletes
    });
    key(Qt::Key_Delete);
    QCOMPARE(seen, 1);
    QCOMPARE(words(category(0)).size(), 6);
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestLibraryKeys::typingSelectsNothing_data()
{
    QTest::addColumn<bool>("inScales");
    QTest::newRow("categories") << false;
    QTest::newRow("scales") << true;
}

void TestLibraryKeys::typingSelectsNothing()
{
    QFETCH(bool, inScales);
    AbstractListWidget& list = inScales ? static_cast<AbstractListWidget&>(scaleList()) : categoryList();
    list.setFocus();
    QSignalSpy pressed(&list, &QListWidget::itemPressed);
    QSignalSpy changed(&list, &QListWidget::currentRowChanged);
    const int row = list.currentRow();
    for (const char* keys = "abcdefghijklmnopqrstuvwxyzLPMDA0123456789-.()"; *keys; ++keys)
        QTest::keyClick(&list, *keys);
    list.keyboardSearch(list.item(list.count() - 1)->text());
    QCOMPARE(list.currentRow(), row);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(pressed.size(), 0);
}

void TestLibraryKeys::spaceTurnsThePowerOff()
{
    scaleList().setFocus();
    QTest::keyClick(&scaleList(), Qt::Key_Space);
    QVERIFY(!window->isPowerOn());
    QVERIFY(scaleList().isHidden());
}

QTEST_MAIN(TestLibraryKeys)
#include "test_library_keys.moc"
