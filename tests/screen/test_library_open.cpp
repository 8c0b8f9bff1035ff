// The library view comes and goes: its button, the power, the scene before it.

#include "LibraryFixture.h"

#include "header_pictures.h"
#include "screen/RightTracker.h"

#include <QtTest>

class TestLibraryOpen : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }

    void closedAtFirst();
    void opensAndClosesByItsButton();
    void opensWithThePowerOnOnly();
    void powerTakesItAwayAndBringsItBack();
    void closedLibraryStaysClosedOverThePower();
    void powerOffTwiceForgetsNothing();
    void powerOnAgainChangesNothing();
    void openedWithoutPowerIsNotRemembered();
    void leavesToTheSceneBefore_data();
    void leavesToTheSceneBefore();
    void everySceneClosesIt_data();
    void everySceneClosesIt();
    void viewIsBuiltOnce();
    void partsStandInTheirPanes();
    void listsHaveTheirStyle();
    void picturesLieBelowTheButtons();
    void opensUpToDate();
    void staysAsItIsWhileClosed();

private:
    bool isWhole(bool open) const
    {
        for (const QWidget* widget : view().widgets())
            if (widget->isHidden() == open)
                return false;
        for (int code = 1; code <= LibraryButton::codes; ++code) {
            const bool opener = code == LibraryButton::open_library;
            if (button(static_cast<LibraryButton::Code>(code)).isVisible() != (opener ? !open : open))
                return false;
        }
        return view().background->isVisible() == open && screen().libraryOpen == open;
    }
    static void addScenes()
    {
        QTest::addColumn<int>("scene");
        for (const int scene : {1, 2, 3, 4})
            QTest::addRow("%d", scene) << scene;
    }
    void setScene(int scene) const
    {
        screen().currentScene = scene;
        screen().setScenePrevious();
    }
};

void TestLibraryOpen::closedAtFirst()
{
    QVERIFY(isWhole(false));
    QVERIFY(!screen().libraryRemembered);
    QVERIFY(!view().mark->isVisible());
}

void TestLibraryOpen::opensAndClosesByItsButton()
{
    show();
    window->setPower(true);
    for (int i = 0; i < 2; ++i) {
        click(LibraryButton::open_library);
        QVERIFY(isWhole(true));
        click(LibraryButton::close_library);
        QVERIFY(isWhole(false));
    }
}

void TestLibraryOpen::opensWithThePowerOnOnly()
{
    QVERIFY(!button(LibraryButton::open_library).isEnabled());
    QVERIFY(!screen().isLibraryAccessible());
    const QImage ghost = button(LibraryButton::open_library).pixmap().toImage();
    click(LibraryButton::open_library);
    QVERIFY(isWhole(false));
    window->setPower(true);
    QVERIFY(button(LibraryButton::open_library).isEnabled());
    QVERIFY(button(LibraryButton::open_library).pixmap().toImage() != ghost);
    click(LibraryButton::open_library);
    QVERIFY(isWhole(true));
}

void TestLibraryOpen::powerTakesItAwayAndBringsItBack()
{
    openLibrary();
    for (int i = 0; i < 2; ++i) {
        window->setPower(false);
        QVERIFY(isWhole(false));
        window->setPower(true);
        QVERIFY(isWhole(true));
    }
}

void TestLibraryOpen::closedLibraryStaysClosedOverThePower()
{
    openLibrary();
    window->showLibraryScreen(false);
    window->setPower(false);
    window->setPower(true);
    QVERIFY(isWhole(false));
}

void TestLibraryOpen::powerOffTwiceForgetsNothing()
{
    openLibrary();
    window->setPower(false);
    window->setPower(false);
    window->setPower(true);
    QVERIFY(isWhole(true));
    window->setPower(true);
    QVERIFY(isWhole(true));
}

void TestLibraryOpen::powerOnAgainChangesNothing()
{
    openLibrary();
    window->setPower(true);
    QVERIFY(isWhole(true));
    window->showLibraryScreen(false);
    window->setPower(true);
    QVERIFY(isWhole(false));
}

void TestLibraryOpen::openedWithoutPowerIsNotRemembered()
{
    window->showLibraryScreen(true);
    QVERIFY(!screen().libraryRemembered);
    window->setPower(true);
    QVERIFY(isWhole(false));
}

void TestLibraryOpen::leavesToTheSceneBefore_data()
{
    addScenes();
}

void TestLibraryOpen::leavesToTheSceneBefore()
{
    QFETCH(int, scene);
    window->setPower(true);
    setScene(scene);
    click(LibraryButton::open_library);
    QCOMPARE(screen().currentScene, scene);
    QVERIFY(isWhole(true));
    QVERIFY(window->ui.about->isHidden() && screen().inPortList->isHidden());
    click(LibraryButton::close_library);
    QCOMPARE(screen().currentScene, scene);
    QVERIFY(isWhole(false));
    QCOMPARE(!screen().inPortList->isHidden(), scene == CenterScreen::scene_ports);
    QCOMPARE(!screen().creditItems.isEmpty(), scene == CenterScreen::scene_credits);
}

void TestLibraryOpen::everySceneClosesIt_data()
{
    addScenes();
}

void TestLibraryOpen::everySceneClosesIt()
{
    QFETCH(int, scene);
    openLibrary();
    QVERIFY(isWhole(true));
    setScene(scene);
    QVERIFY(isWhole(false));
}

void TestLibraryOpen::viewIsBuiltOnce()
{
    const auto* before = screen().libraryView();
    const int items = window->ui.centerGraphicsView->scene()->items().size();
    screen().addLibraryView();
    QCOMPARE(screen().libraryView(), before);
    QCOMPARE(window->ui.centerGraphicsView->scene()->items().size(), items);
    QCOMPARE(window->findChildren<ScaleListWidget*>().size(), 1);
}

void TestLibraryOpen::partsStandInTheirPanes()
{
    show();
    openLibrary();
    const QPoint scene(-21, -152);
    QVERIFY(QRect(192, 38, 151, 84).contains(categoryList().geometry().translated(scene)));
    QVERIFY(QRect(348, 38, 135, 84).contains(scaleList().geometry().translated(scene)));
    const QRect tracker = view().tracker->geometry().translated(scene);
    QVERIFY(tracker.left() > 480 && tracker.right() < 491); // between the scales and the page
    QVERIFY(!tracker.intersects(scaleList().geometry().translated(scene)));
}

void TestLibraryOpen::listsHaveTheirStyle()
{
    const QString style =
        CenterScreen::getMainTextData(QStringLiteral(":/Resources/LibraryScreen/Library_list-mac.qss"));
    QVERIFY(!style.isEmpty());
    QCOMPARE(categoryList().styleSheet(), style);
    QCOMPARE(scaleList().styleSheet(), style);
    QCOMPARE(view().description->styleSheet(),
             CenterScreen::getMainTextData(QStringLiteral(":/Resources/LibraryScreen/Library_descr.qss")));
}

void TestLibraryOpen::picturesLieBelowTheButtons()
{
    openLibrary();
    QVERIFY(shows(view().background, QStringLiteral(":/Resources/LibraryScreen/LibBGScene.png")));
    QCOMPARE(view().background->pos(), QPointF(186, 15));
    QVERIFY(shows(view().mark, QStringLiteral(":/Resources/LibraryScreen/LibExclamationMark.png")));
    QCOMPARE(view().mark->sceneBoundingRect(), QRectF(583, 20, 14, 14));
    QVERIFY(!view().mark->toolTip().isEmpty());
    const auto items = window->ui.centerGraphicsView->scene()->items(); // the topmost first
    for (int code = 1; code <= LibraryButton::codes; ++code)
        QVERIFY(items.indexOf(&button(static_cast<LibraryButton::Code>(code))) <
                items.indexOf(view().background));
}

void TestLibraryOpen::opensUpToDate()
{
    window->setPower(true);
    library().insertCategory(QStringLiteral("A new one"));
    window->showLibraryScreen(true);
    QCOMPARE(rows(categoryList()), QStringList(library().categories().toList()));
    QCOMPARE(button(LibraryButton::scale_label).text(), abbreviations(scale().scaleModifier()).join(' '));
    QVERIFY(view().description->toPlainText().startsWith(titleOf(scale().scaleModifier())));
}

void TestLibraryOpen::staysAsItIsWhileClosed()
{
    openLibrary();
    window->showLibraryScreen(false);
    const QStringList before = rows(categoryList());
    library().insertCategory(QStringLiteral("A new one"));
    screen().refreshBrowser();
    screen().updateBrowser();
    QVERIFY(!browserTimer().isActive());
    QCOMPARE(rows(categoryList()), before);
    window->showLibraryScreen(true);
    QVERIFY(rows(categoryList()) != before);
}

QTEST_MAIN(TestLibraryOpen)
#include "test_library_open.moc"
