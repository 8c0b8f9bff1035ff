// The menu of a header: its entries, its place on the screen, its keys and what it leaves of the picture.

#include "HeaderFixture.h"
#include "LooseHeader.h"
#include "header_pictures.h"

#include <QContextMenuEvent>
#include <QGraphicsSceneContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QtTest>

#include <functional>

class TestHeaderMenu : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Entries
    void menuReads();
    void everyActionRunsItsSlot();
    void slotsWithoutAContextHeaderDoNothing();
    void pasteIsOfferedAfterACopy();

    // Opening
    void menuOpensOverTheHeader();
    void menuGoesWithThePower();
    void contextMenuGoesToTheController();
    void contextMenuWithoutControllerDoesNothing();

    // Choosing
    void clickInTheMenuActsAndGivesThePictureBack();
    void keysInTheMenu_data();
    void keysInTheMenu();

private:
    /// What `act` leaves of a window whose menu stands on a header, locked or not.
    QString outcome(const std::function<void()>& act, bool locked);
    void openMenuByPointer(int key) const;
};

QString TestHeaderMenu::outcome(const std::function<void()>& act, bool locked)
{
    closeWindow();
    openWindow();
    window->setPower(true);
    setTonic("D");
    presets().copyData = fullRecord();
    record(25) = {QString(), QString(), QStringLiteral("G"), locked, QStringLiteral("G"), locked, wholeTone};
    openMenuOn(25);
    act();
    return state().join(QLatin1Char('|')) + asText(presets().copyData);
}

void TestHeaderMenu::openMenuByPointer(int key) const
{
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    const QPoint pos = placeOf(key);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, viewport->mapToGlobal(pos));
    QCoreApplication::sendEvent(viewport, &event);
}

void TestHeaderMenu::menuReads()
{
    QStringList texts;
    for (const QAction* action : presets().menu->actions())
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    QCOMPARE(
        texts.join(QLatin1Char('|')),
        QStringLiteral("Copy Header|Paste Header|-|Lock: Tonic|Lock: Scale|Unlock: Tonic|Unlock: Scale|-|"
                       "Lock: Both|Unlock: Both|-|Reset: C/Ionian|Empty: Intervals|-|Erase all"));
    QCOMPARE(presets().actions.size(), 11);
}

// What a slot does stands in the tests of the slots; here an action must leave what its slot leaves.
void TestHeaderMenu::everyActionRunsItsSlot()
{
    static constexpr const char* wanted[] = {"copyHdr",     "pasteHdr",    "lockTonic", "lockScale",
                                             "unlockTonic", "unlockScale", "lockBoth",  "unlockBoth",
                                             "resetHdr",    "eraseHdr"};
    QSet<QString> outcomes;
    for (int i = 0; i < 10; ++i) {
        QString both;
        for (const bool locked : {false, true}) {
            const QString bySlot = outcome([&] { QMetaObject::invokeMethod(&presets(), wanted[i]); }, locked);
            QCOMPARE(outcome([&] { presets().actions.at(i)->trigger(); }, locked), bySlot);
            both += bySlot;
        }
        outcomes << both;
    }
    QCOMPARE(outcomes.size(), 10); // they can be told apart by what they leave
    answer(off);
    presets().actions.at(10)->trigger();
    QCOMPARE(seen, 1);
}

void TestHeaderMenu::slotsWithoutAContextHeaderDoNothing()
{
    window->setPower(true);
    presets().copyData = fullRecord();
    const QStringList before = state();
    for (int i = 0; i < 10; ++i) {
        presets().actions.at(i)->trigger();
        QCOMPARE(state(), before);
    }
    QVERIFY(!presets().hasCopy);
    QCOMPARE(asText(presets().copyData), asText(fullRecord()));
}

void TestHeaderMenu::pasteIsOfferedAfterACopy()
{
    show();
    window->setPower(true);
    QVector<bool> offered;
    for (int i = 0; i < 3; ++i) {
        whenMenuIsUp([&](QMenu& menu) {
            offered << presets().actions.at(1)->isEnabled();
            menu.close();
            presets().hasCopy = i == 0;
        });
        openMenuByPointer(25);
    }
    QCOMPARE(offered, (QVector<bool>{false, true, false}));
}

void TestHeaderMenu::menuOpensOverTheHeader()
{
    show();
    window->setPower(true);
    for (const int key : {25, firstActive}) {
        const QImage before = header(key)->pixmap().toImage();
        whenMenuIsUp([&](QMenu& menu) {
            QCOMPARE(presets().contextHeader, header(key));
            QCOMPARE(menu.pos(), window->ui.inKeyboardGraphicsView->viewport()->mapToGlobal(placeOf(key)));
            QVERIFY(header(key)->pixmap().toImage() != before);
            QCOMPARE(header(key)->savedPixmap.toImage(), before);
            menu.close();
        });
        openMenuByPointer(key);
        QCOMPARE(header(key)->pixmap().toImage(), before);
    }
    QCOMPARE(seen, 2);
}

// An entry chosen with the power off would store the selectors in a header that was never loaded into them.
void TestHeaderMenu::menuGoesWithThePower()
{
    show();
    window->setPower(true);
    whenMenuIsUp([&](QMenu& menu) {
        window->switchPower();
        QVERIFY(!menu.isVisible());
        menu.close(); // lest a failure hangs
    });
    openMenuByPointer(25);
    QCOMPARE(seen, 1);
}

void TestHeaderMenu::contextMenuGoesToTheController()
{
    window->setPower(true);
    const QPixmap before = header(30)->pixmap();
    bool shown = false, marked = false;
    QTimer closer;
    closer.setSingleShot(true);
    connect(&closer, &QTimer::timeout, this, [&] {
        shown = presets().menu->isVisible();
        marked = !isSame(header(30)->pixmap(), before);
        presets().menu->close();
    });
    closer.start(0);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    header(30)->scene()->sendEvent(header(30), &event);
    QVERIFY(shown && marked);
    QCOMPARE(presets().contextHeader, header(30));
    QVERIFY(isSame(header(30)->pixmap(), before));
}

void TestHeaderMenu::contextMenuWithoutControllerDoesNothing()
{
    LooseHeader item({});
    QGraphicsScene scene;
    scene.addItem(&item);
    QTimer closer; // a menu would keep the test waiting
    connect(&closer, &QTimer::timeout, presets().menu, &QMenu::close);
    closer.start(0);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    scene.sendEvent(&item, &event);
    scene.removeItem(&item);
    QVERIFY(!presets().contextHeader);
    QVERIFY(item.savedPixmap.isNull());
}

void TestHeaderMenu::clickInTheMenuActsAndGivesThePictureBack()
{
    show();
    window->setPower(true);
    setTonic("D");
    record(25) = {};
    whenMenuIsUp([this](QMenu& menu) {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(presets().actions.at(2)).center());
    });
    openMenuByPointer(25); // locks the tonic: the header is active for a moment
    QCOMPARE(seen, 1);
    QVERIFY(record(25).tonicOn);
    QCOMPARE(record(25).nameTonic, QStringLiteral("D"));
    QVERIFY(shows(header(25), QStringLiteral(":/Resources/Headers/Header1sharp_deactive.png")));
    QCOMPARE(active(), firstActive);
}

void TestHeaderMenu::keysInTheMenu_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("onAction");
    QTest::addColumn<bool>("acts");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << true << false;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true << true;
    QTest::newRow("Return") << int(Qt::Key_Return) << true << true;
    QTest::newRow("Enter on nothing") << int(Qt::Key_Enter) << false << false;
}

// The window's filter takes these keys before the menu: they work all the same.
void TestHeaderMenu::keysInTheMenu()
{
    QFETCH(int, key);
    QFETCH(bool, onAction);
    show();
    window->setPower(true);
    whenMenuIsUp([&](QMenu& menu) {
        menu.setActiveAction(onAction ? presets().actions.at(9) : nullptr);
        QTest::keyClick(&menu, static_cast<Qt::Key>(key));
        QVERIFY(!menu.isVisible());
    });
    openMenuByPointer(25);
    QCOMPARE(seen, 1);
    QTEST(record(25).scaleData == octaves, "acts");
    QVERIFY(shows(header(25), QStringLiteral(":/Resources/Headers/Header1sharp_deactive.png")));
}

QTEST_MAIN(TestHeaderMenu)
#include "test_header_menu.moc"
