// The two port lists on the display: by the pointer, by the keyboard alone, and with names that are too long.

#include "CenterFixture.h"
#include "app/MidiService.h"
#include "library/SettingsStore.h"
#include "screen/PortListWidget.h"

#include <QScrollBar>

class TestPortLists : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // Rows
    void rowsStandInTheirOrder();
    void longNamesAreElided();
    void rowsAreAsWideAsTheListAndSayTheirName();
    void manyRowsScroll();
    void listsAreHiddenInEveryOtherScene();

    // The pointer
    void clickTogglesARow();
    void clickLeavesTheFocusInTheInView();
    void otherButtonsOfThePointerToggleNothing();

    // The keyboard
    void focusedListHasACurrentRow();
    void upAndDownMoveTheCurrentRow();
    void leftAndRightChangeTheList();
    void returnAndEnterToggleAndStay_data();
    void returnAndEnterToggleAndStay();
    void escapeGivesTheKeyboardBack();
    void keysReachOnlyTheFocusedList();
    void typingMovesNothing();
    void spaceTogglesThePowerAndNoRow();
    void keyboardAloneOpensAPort();
    void keysOfAHiddenListDoNothing();

private:
    PortListWidget& inList() const { return *static_cast<PortListWidget*>(screen().inPortList); }
    PortListWidget& outList() const { return *static_cast<PortListWidget*>(screen().outPortList); }
    void addRows(int count) const;
    static QString selected(const QListWidget& list);
    static void press(int key) { QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key)); }
    void clickRow(const QListWidget& list, int row, Qt::MouseButton mouseButton = Qt::LeftButton) const;
    void openByKeys() const { QTest::keyClick(inView(), Qt::Key_M, Qt::ControlModifier); }
};

void TestPortLists::init()
{
    SettingsStore::setMidiInPortSelected(virtualInName, true);
    SettingsStore::setMidiOutPortSelected(virtualOutName, true);
    openWindow();
    show();
    inView()->setFocus();
}

void TestPortLists::cleanup()
{
    closeWindow();
}

void TestPortLists::addRows(int count) const
{
    for (int i = 1; i <= count; ++i) {
        window->inPorts.append(nullptr);
        window->outPorts.append(nullptr);
        screen().addInPort(QStringLiteral("Keys %1").arg(i), false);
        screen().addOutPort(QStringLiteral("Sound %1").arg(i), false);
    }
}

/// One letter for each row.
QString TestPortLists::selected(const QListWidget& list)
{
    QString letters;
    for (int row = 0; row < list.count(); ++row)
        letters += QLatin1Char(list.item(row)->isSelected() ? 'x' : '-');
    return letters;
}

void TestPortLists::clickRow(const QListWidget& list, int row, Qt::MouseButton mouseButton) const
{
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(window->windowHandle(), mouseButton, Qt::NoModifier,
                      list.viewport()->mapTo(window.get(), place));
}

void TestPortLists::rowsStandInTheirOrder()
{
    addRows(3);
    QCOMPARE(rows(inList()), QStringList({"Sorvane MIDI In", "Keys 1", "Keys 2", "Keys 3"}));
    QCOMPARE(rows(outList()), QStringList({"Sorvane MIDI Out", "Sound 1", "Sound 2", "Sound 3"}));
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(screen().getInPort(row), inList().item(row)->text());
        QCOMPARE(screen().getOutPort(row), outList().item(row)->text());
    }
    QCOMPARE(selected(inList()), QStringLiteral("x---"));
}

// Two names that differ only far behind the edge look alike; neither makes the list scroll sideways.
void TestPortLists::longNamesAreElided()
{
    call(to_ports);
    const QString head(60, QLatin1Char('m'));
    for (PortListWidget* list : {&inList(), &outList()}) {
        list->clear();
        const auto paintedRow = [list](const QString& name) {
            list->clear();
            list->addRow(name);
            return list->viewport()->grab(list->visualItemRect(list->item(0))).toImage();
        };
        const QImage first = paintedRow(head + QStringLiteral("one"));
        QCOMPARE(paintedRow(head + QStringLiteral("two")), first);
        QVERIFY(paintedRow(head.left(15)) != first);
        QCOMPARE(list->textElideMode(), Qt::ElideRight);
        // An end that is only cut off would show a letter at the edge; the ellipsis is low.
        const auto inkAbove = [](const QImage& image) {
            int dark = 0;
            for (int x = image.width() - 10; x < image.width(); ++x)
                for (int y = 0; y < image.height() / 2; ++y)
                    dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
            return dark;
        };
        QCOMPARE(inkAbove(first), inkAbove(paintedRow(QStringLiteral("m"))));
    }
}

void TestPortLists::rowsAreAsWideAsTheListAndSayTheirName()
{
    const QString name = QString(80, QLatin1Char('w'));
    window->inPorts.append(nullptr);
    window->outPorts.append(nullptr);
    screen().addInPort(name, false);
    screen().addOutPort(name, false);
    call(to_ports);
    for (const PortListWidget* list : {&inList(), &outList()})
        for (int row = 0; row < list->count(); ++row) {
            QCOMPARE(list->item(row)->toolTip(), list->item(row)->text());
            const QRect place = list->visualItemRect(list->item(row));
            QVERIFY(place.left() >= 0 && place.right() < list->viewport()->width());
            QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
        }
    QCOMPARE(screen().getInPort(1), name); // the name itself is whole
}

void TestPortLists::manyRowsScroll()
{
    addRows(30);
    call(to_ports);
    QVERIFY(inList().verticalScrollBar()->maximum() > 0);
    openByKeys();
    press(Qt::Key_End);
    QCOMPARE(inList().currentRow(), 30);
    QVERIFY(inList().viewport()->rect().contains(inList().visualItemRect(inList().item(30))));
}

void TestPortLists::listsAreHiddenInEveryOtherScene()
{
    for (int setter = to_default; setter <= to_library; ++setter) {
        call(setter);
        QCOMPARE(inList().isVisible() && outList().isVisible() && portPicture()->isVisible(),
                 setter == to_ports);
    }
}

void TestPortLists::clickTogglesARow()
{
    addRows(2);
    call(to_ports);
    for (PortListWidget* list : {&inList(), &outList()}) {
        clickRow(*list, 1);
        QCOMPARE(selected(*list), QStringLiteral("xx-"));
        clickRow(*list, 2);
        QCOMPARE(selected(*list), QStringLiteral("xxx"));
        clickRow(*list, 0);
        QCOMPARE(selected(*list), QStringLiteral("-xx"));
        clickRow(*list, 1);
        QCOMPARE(selected(*list), QStringLiteral("--x"));
    }
    QCOMPARE(screen().currentScene, 3);
}

void TestPortLists::clickLeavesTheFocusInTheInView()
{
    addRows(2);
    call(to_ports);
    for (const int row : {1, 2, 1}) {
        clickRow(inList(), row);
        QVERIFY(inView()->hasFocus());
        clickRow(outList(), row);
        QVERIFY(inView()->hasFocus());
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(window->isPowerOn());
}

void TestPortLists::otherButtonsOfThePointerToggleNothing()
{
    addRows(1);
    call(to_ports);
    clickRow(inList(), 1, Qt::RightButton);
    clickRow(inList(), 0, Qt::MiddleButton);
    QCOMPARE(selected(inList()), QStringLiteral("x-"));
}

void TestPortLists::focusedListHasACurrentRow()
{
    addRows(2);
    inList().item(0)->setSelected(false);
    openByKeys();
    QVERIFY(inList().hasFocus());
    QCOMPARE(inList().currentRow(), 0);
    QCOMPARE(selected(inList()), QStringLiteral("---")); // being current selects nothing
    inList().clear();
    inView()->setFocus();
    openByKeys();
    QVERIFY(inList().hasFocus());
    QCOMPARE(inList().currentRow(), -1);
    press(Qt::Key_Return);
    press(Qt::Key_Down);
}

void TestPortLists::upAndDownMoveTheCurrentRow()
{
    addRows(2);
    openByKeys();
    QList<int> current;
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}) {
        press(key);
        current << inList().currentRow();
    }
    QCOMPARE(current, QList<int>({1, 2, 2, 1, 0, 0}));
    QCOMPARE(selected(inList()), QStringLiteral("x--"));
}

void TestPortLists::leftAndRightChangeTheList()
{
    addRows(1);
    openByKeys();
    for (const int key : {Qt::Key_Right, Qt::Key_Left}) {
        press(key);
        QVERIFY(outList().hasFocus());
        QCOMPARE(outList().currentRow(), 0);
        press(key);
        QVERIFY(inList().hasFocus());
    }
    QCOMPARE(selected(inList()) + selected(outList()), QStringLiteral("x-x-"));
}

void TestPortLists::returnAndEnterToggleAndStay_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestPortLists::returnAndEnterToggleAndStay()
{
    QFETCH(int, key);
    addRows(2);
    openByKeys();
    press(Qt::Key_Down);
    for (const char* expected : {"xx-", "x--", "xx-"}) {
        press(key);
        QCOMPARE(selected(inList()), QLatin1String(expected));
        QVERIFY(inList().hasFocus());
        QCOMPARE(inList().currentRow(), 1);
    }
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    press(key);
    QCOMPARE(selected(outList()), QStringLiteral("xx-"));
    QVERIFY(outList().hasFocus());
    QCOMPARE(selected(inList()), QStringLiteral("xx-"));
    QCOMPARE(screen().currentScene, 3);
}

void TestPortLists::escapeGivesTheKeyboardBack()
{
    openByKeys();
    press(Qt::Key_Escape);
    QVERIFY(inView()->hasFocus());
    QCOMPARE(look(), QStringLiteral("ports left"));
    openByKeys();
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    QVERIFY(inView()->hasFocus());
    QCOMPARE(selected(inList()) + selected(outList()), QStringLiteral("xx"));
}

void TestPortLists::keysReachOnlyTheFocusedList()
{
    addRows(1);
    call(to_ports);
    inList().setCurrentRow(1, QItemSelectionModel::NoUpdate);
    outList().setCurrentRow(1, QItemSelectionModel::NoUpdate);
    inView()->setFocus();
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        press(key);
    QCOMPARE(selected(inList()) + selected(outList()), QStringLiteral("x-x-"));
    QVERIFY(inView()->hasFocus());
}

void TestPortLists::typingMovesNothing()
{
    addRows(3);
    openByKeys();
    for (const int key : {Qt::Key_K, Qt::Key_S, Qt::Key_2})
        press(key);
    QCOMPARE(inList().currentRow(), 0);
    QCOMPARE(selected(inList()), QStringLiteral("x---"));
}

void TestPortLists::spaceTogglesThePowerAndNoRow()
{
    addRows(1);
    openByKeys();
    press(Qt::Key_Down);
    for (const bool wanted : {true, false}) {
        QTest::keyClick(&inList(), Qt::Key_Space);
        QCOMPARE(window->isPowerOn(), wanted);
        QCOMPARE(selected(inList()), QStringLiteral("x-"));
        QCOMPARE(look(), QStringLiteral("ports left"));
    }
}

// From a fresh window to a stored selection and back to playing, without a pointer.
void TestPortLists::keyboardAloneOpensAPort()
{
    addRows(2);
    openByKeys();
    for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Left,
                          Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape})
        press(key);
    QCOMPARE(selected(inList()), QStringLiteral("xx-"));
    QCOMPARE(selected(outList()), QStringLiteral("x-x"));
    QVERIFY(SettingsStore::getMidiInPortSelected(QStringLiteral("Keys 1"), false));
    QVERIFY(SettingsStore::getMidiOutPortSelected(QStringLiteral("Sound 2"), false));
    QVERIFY(!SettingsStore::getMidiOutPortSelected(QStringLiteral("Sound 1"), true));
    QVERIFY(inView()->hasFocus());
}

void TestPortLists::keysOfAHiddenListDoNothing()
{
    openByKeys();
    call(to_default);
    QVERIFY(!inList().hasFocus());
    press(Qt::Key_Return);
    QCOMPARE(selected(inList()), QStringLiteral("x"));
}

QTEST_MAIN(TestPortLists)

#include "test_port_lists.moc"
