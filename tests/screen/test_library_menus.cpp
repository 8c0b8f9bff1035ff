// Scales copied and moved to other categories by the menus of their buttons.

#include "LibraryFixture.h"

#include <QGraphicsView>
#include <QMenu>
#include <QtTest>

class TestLibraryMenus : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openPlaying();
        window->move(0, 0); // a menu must have room where it belongs
    }

    void menuOffersTheOtherCategories_data() { addButtons(); }
    void menuOffersTheOtherCategories();
    void menuStandsAtItsButton_data() { addButtons(); }
    void menuStandsAtItsButton();
    void categoryThatHoldsTheScaleIsDisabled_data() { addButtons(); }
    void categoryThatHoldsTheScaleIsDisabled();
    void ampersandStaysInTheName();
    void copyAppendsAndKeepsTheSource();
    void moveAppendsAndTakesFromTheSource();
    void disabledCategoryIsNotTaken_data() { addButtons(); }
    void disabledCategoryIsNotTaken();
    void escapeChangesNothing_data() { addButtons(); }
    void escapeChangesNothing();
    void keysChoose_data();
    void keysChoose();
    void keyThatChoosesDoesNotAlsoPlay_data();
    void keyThatChoosesDoesNotAlsoPlay();
    void powerOffBehindTheMenuHarmsNothing_data() { addButtons(); }
    void powerOffBehindTheMenuHarmsNothing();
    void movedPlayedScaleIsFollowed();

private:
    static void addButtons()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("copy") << static_cast<int>(LibraryButton::copy_scale);
        QTest::newRow("move") << static_cast<int>(LibraryButton::move_scale);
    }
    static LibraryButton::Code fetchedCode()
    {
        QFETCH(int, code);
        return static_cast<LibraryButton::Code>(code);
    }
};

void TestLibraryMenus::menuOffersTheOtherCategories()
{
    QStringList offered, others(library().categories().toList());
    others.removeAt(library().currentCagetoryIndex());
    whenMenu([&](QMenu& menu) {
        for (const QAction* action : menu.actions()) {
            offered << action->text();
            QVERIFY(action->isEnabled());
        }
    });
    click(fetchedCode());
    QCOMPARE(seen, 1);
    QCOMPARE(offered, others);
}

void TestLibraryMenus::menuStandsAtItsButton()
{
    const auto code = fetchedCode();
    const QGraphicsView* stage = window->ui.centerGraphicsView;
    const QRectF place = button(code).sceneBoundingRect();
    const QPoint corner = stage->viewport()->mapToGlobal(stage->mapFromScene(place.bottomLeft()));
    whenMenu([&](QMenu& menu) { QCOMPARE(menu.pos(), corner); });
    click(code);
    QCOMPARE(seen, 1);
}

void TestLibraryMenus::categoryThatHoldsTheScaleIsDisabled()
{
    library().appendScaleToCategory(category(4), ionian);
    QStringList disabled;
    whenMenu([&](QMenu& menu) {
        for (const QAction* action : menu.actions())
            if (!action->isEnabled())
                disabled << action->text();
    });
    click(fetchedCode());
    QCOMPARE(disabled, QStringList{category(4)});
}

void TestLibraryMenus::ampersandStaysInTheName()
{
    const QString name = QStringLiteral("A & B && C");
    library().insertCategory(name);
    library().setCurrentCategory(category(1));
    play(ionian);
    QString written;
    whenMenu([&](QMenu& menu) {
        for (const QAction* action : menu.actions())
            if (action->property("category").toString() == name)
                written = action->text();
    });
    screen().copyScale();
    QCOMPARE(written, QStringLiteral("A && B &&&& C")); // a single one would underline
    choose(name);
    screen().copyScale();
    QCOMPARE(words(name), QList<QString>{ionian});
}

void TestLibraryMenus::copyAppendsAndKeepsTheSource()
{
    const auto before = words(category(0));
    const auto target = words(category(4));
    choose(category(4));
    click(LibraryButton::copy_scale);
    QCOMPARE(seen, 1);
    QCOMPARE(words(category(0)), before);
    QCOMPARE(words(category(4)), target + QList<QString>{ionian});
    QCOMPARE(library().currentCagetoryIndex(), 0); // the browser stays
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), ionian);
}

void TestLibraryMenus::moveAppendsAndTakesFromTheSource()
{
    auto before = words(category(0));
    const auto target = words(category(4));
    choose(category(4));
    click(LibraryButton::move_scale);
    QCOMPARE(seen, 1);
    before.removeOne(ionian);
    QCOMPARE(words(category(0)), before);
    QCOMPARE(words(category(4)), target + QList<QString>{ionian});
    QCOMPARE(library().currentCagetoryIndex(), 4); // the browser goes with it
    QCOMPARE(categoryList().currentRow(), 4);
    QCOMPARE(scaleList().keyAt(scaleList().currentRow()), ionian);
    QVERIFY(!view().mark->isVisible());
}

void TestLibraryMenus::disabledCategoryIsNotTaken()
{
    library().appendScaleToCategory(category(4), ionian);
    const QStringList before = allWords();
    whenMenu([&](QMenu& menu) {
        for (QAction* action : menu.actions())
            if (!action->isEnabled())
                QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                                  menu.actionGeometry(action).center());
    });
    click(fetchedCode());
    QCOMPARE(seen, 1);
    QCOMPARE(allWords(), before);
}

void TestLibraryMenus::escapeChangesNothing()
{
    const QStringList before = allWords();
    whenMenu([](QMenu& menu) {
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
    });
    click(fetchedCode());
    QCOMPARE(seen, 1);
    QCOMPARE(allWords(), before);
}

void TestLibraryMenus::keysChoose_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
}

void TestLibraryMenus::keysChoose()
{
    QFETCH(int, key);
    whenMenu([key](QMenu& menu) {
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, static_cast<Qt::Key>(key));
    });
    click(LibraryButton::copy_scale);
    QCOMPARE(seen, 1);
    QCOMPARE(words(category(2)).last(), ionian);
}

void TestLibraryMenus::keyThatChoosesDoesNotAlsoPlay_data()
{
    keysChoose_data();
}

// The list has the keyboard behind the menu, and the key alone would play its row.
void TestLibraryMenus::keyThatChoosesDoesNotAlsoPlay()
{
    QFETCH(int, key);
    scale().setSwitchOff(true);
    play(unknownWord);
    showCategory(0);
    clickRow(scaleList(), 1);
    scaleList().setFocus();
    QVERIFY(scaleList().hasFocus());
    whenMenu([key](QMenu& menu) {
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, static_cast<Qt::Key>(key));
    });
    QTest::keyClick(&scaleList(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(seen, 1);
    QCOMPARE(words(category(1)).last(), words(category(0)).at(1));
    QVERIFY(!scale().switchOn);
    QCOMPARE(scale().scaleModifier(), unknownWord);
}

void TestLibraryMenus::powerOffBehindTheMenuHarmsNothing()
{
    const auto code = fetchedCode();
    const int before = library().categoryCount();
    whenMenu([this](QMenu& menu) {
        sendNote(49, 100); // the power button's key
        QVERIFY(!window->isPowerOn());
        QVERIFY(!screen().libraryOpen);
        QVERIFY(!menu.isVisible()); // it went with what it works on
    });
    click(code);
    QCOMPARE(seen, 1);
    sendNote(49, 0);
    sendNote(49, 100);
    QVERIFY(screen().libraryOpen);
    QCOMPARE(library().categoryCount(), before);
}

void TestLibraryMenus::movedPlayedScaleIsFollowed()
{
    choose(category(9));
    click(LibraryButton::move_scale);
    settle();
    QCOMPARE(rows(scaleList()), QStringList{titleOf(ionian)});
    QCOMPARE(scaleList().currentRow(), 0);
    QCOMPARE(scale().scaleModifier(), ionian);
}

QTEST_MAIN(TestLibraryMenus)
#include "test_library_menus.moc"
