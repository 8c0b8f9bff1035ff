// The window as it stands: the form, the two keyboards, the wiring, the shine, the digits, the power.

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "headers/DiagramScene.h"
#include "keys/PowerItem.h"
#include "keys/key_pictures.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "screen/CenterScreen.h"

#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

namespace {

// A stated fact each: the notes of the keyboard's white keys.
bool isWhite(int note)
{
    return QString::fromLatin1("x.x.xx.x.x.x").at(note % 12) == QLatin1Char('x');
}

QString whiteName(int note)
{
    static const char letters[] = "C.D.EF.G.A.B";
    return QString(QLatin1Char(letters[note % 12])) + QString::number(note / 12 - 1);
}

QImage imageOf(const QPixmap& pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestStage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    // The form
    void formRectanglesStandAtTheFormsOwnWidth_data();
    void formRectanglesStandAtTheFormsOwnWidth();
    void opensAt952AndMovesItsChildren();
    void sizeStaysWithinItsBounds();
    void viewsHaveNoFrameAndNoScrollBars();
    void mainMembersStartAsDescribed();
    void toolTipsCanBeRead();

    // The keyboards
    void bothScenesHoldTheSameKeysInTheSameOrder();
    void everyKeyHasItsNameAndPlace();
    void highestWhiteKeyHasItsOwnPlainShape();
    void lowestAndHighestBlackKeyStandAtTheirPlaces();
    void outKeysAreMovedAfterThePairing();
    void pairedOutKeyIsTheSamePitch();
    void listsAreSharedByTheKeys();
    void idleKeysCarryTheShineOfTheirSide();
    void addShineDrawsTheLightAtTheOrigin();
    void overlayDrawsTheGivenPart();
    void everyShapeHasItsCells();
    void cropsAreSharedAndRightAtTwiceTheDensity();
    void dataOfANullItemIsLost();
    void sceneRectanglesPutTheKeyboardsOnTheStage();

    // Power and keys of the computer keyboard
    void freshStartIsOff();
    void powerItemStartsOverItsKey();
    void powerItemReturnsToItsLastPosition();
    void setPowerSwitchesPicturesAndSelectors();
    void spaceTogglesThePower();
    void heldSpaceTogglesOnce();
    void spaceWithADialogOpenDoesNothing();
    void enterAndEscapeDoNotCloseTheWindow();
    void returnIsNotSwallowed();
    void specialKeysAreAnnounced();
    void touchIsSwallowed();

    // Digits
    void oneGlyphUpToNineAndAPairFromTen();
    void negativeNumbersCarryTheSign();
    void thirdDigitIsNotDrawn();
    void unknownDigitTypeHasNoGlyphs();

    // The centre screen
    void scenesShowAndHideTheirWidgets();
    void hitAreasFollowTheScene();

private:
    std::unique_ptr<MainWnd> window;
};

void TestStage::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
}

void TestStage::formRectanglesStandAtTheFormsOwnWidth_data()
{
    QTest::addColumn<QRect>("rectangle");
    QTest::newRow("outKeyboardGraphicsView") << QRect(-263, 2, 930, 145);
    QTest::newRow("inKeyboardGraphicsView") << QRect(-263, 298, 930, 190);
    QTest::newRow("centerGraphicsView") << QRect(-116, 152, 900, 128);
    QTest::newRow("backgroundGraphicsView") << QRect(0, 0, 952, 480);
    QTest::newRow("outputSwitchGraphicsView") << QRect(926, 45, 25, 45);
    QTest::newRow("inputSwitchGraphicsView") << QRect(926, 427, 25, 45);
    QTest::newRow("newWinButtonGraphicsView") << QRect(920, 0, 32, 41);
    QTest::newRow("buttonMIDIinOut") << QRect(100, 185, 105, 23);
    QTest::newRow("buttonCredits") << QRect(100, 213, 105, 23);
    QTest::newRow("buttonManual") << QRect(100, 241, 105, 23);
    QTest::newRow("buttonExport") << QRect(470, 185, 105, 23);
    QTest::newRow("buttonImport") << QRect(470, 213, 105, 23);
    QTest::newRow("buttonReset") << QRect(470, 241, 105, 23);
    QTest::newRow("centerLogo") << QRect(208, 162, 258, 65);
    QTest::newRow("about") << QRect(202, 232, 271, 51);
    QTest::newRow("scene1Button") << QRect(206, 180, 267, 103);
    QTest::newRow("scene2Button") << QRect(70, 180, 532, 103);
    QTest::newRow("scene34TopButton") << QRect(70, 180, 532, 16);
    QTest::newRow("scene34LeftButton") << QRect(72, 202, 30, 80);
    QTest::newRow("scene4RightButton") << QRect(575, 195, 25, 85);
    QTest::newRow("scene3RightButton") << QRect(588, 195, 10, 85);
    QTest::newRow("hiddenLayer") << QRect(205, 217, 265, 7);
    QTest::newRow("labelBottom") << QRect(206, 274, 263, 6);
    QTest::newRow("versionLabel") << QRect(202, 171, 271, 46);
}

void TestStage::formRectanglesStandAtTheFormsOwnWidth()
{
    QFETCH(QRect, rectangle);
    window->show();
    window->resize(677, 480);
    const auto* child = window->findChild<QWidget*>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(child);
    QCOMPARE(child->geometry(), rectangle);
}

void TestStage::opensAt952AndMovesItsChildren()
{
    QCOMPARE(window->size(), QSize(952, 480));
    QCOMPARE(window->ui.inKeyboardGraphicsView->x(), 12);
    QCOMPARE(window->ui.outKeyboardGraphicsView->x(), 12);
    QCOMPARE(window->ui.centerGraphicsView->x(), 21);
    QCOMPARE(window->ui.buttonMIDIinOut->x(), 237);
    QCOMPARE(window->ui.backgroundGraphicsView->x(), 0);
    QCOMPARE(window->ui.inputSwitchGraphicsView->x(), 926);
    QCOMPARE(window->centerScreen->inPortList->geometry(), QRect(351, 196, 185, 75));
    QCOMPARE(window->centerScreen->outPortList->geometry(), QRect(548, 196, 160, 75));
}

void TestStage::sizeStaysWithinItsBounds()
{
    window->show();
    window->resize(2000, 900);
    QCOMPARE(window->size(), QSize(952, 480));
    window->resize(100, 100);
    QCOMPARE(window->size(), QSize(677, 480));
}

void TestStage::viewsHaveNoFrameAndNoScrollBars()
{
    const auto views = window->findChildren<QGraphicsView*>();
    QCOMPARE(views.size(), 7);
    for (const QGraphicsView* view : views) {
        QCOMPARE(view->frameShape(), QFrame::NoFrame);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->alignment(), Qt::AlignLeft | Qt::AlignTop);
    }
}

void TestStage::mainMembersStartAsDescribed()
{
    QCOMPARE(mainWnd, window.get());
    QCOMPARE(window->objectName(), QStringLiteral("mainDialog"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Sorvane"));
    QCOMPARE(window->newWindowShortcut.key(), QKeySequence(QStringLiteral("Ctrl+N")));
    QCOMPARE(window->inNoteHeld, QList<int>::fromVector(QVector<int>(128, 0)));
    QVERIFY(!window->dialogOpen);
    QVERIFY(!window->learnTonic);
    QVERIFY(!window->learnScale);
    QVERIFY(!window->midiOutOpen);
    QVERIFY(QMetaType::type("IntList") != QMetaType::UnknownType);
    QVERIFY(window->ui.backgroundGraphicsView->testAttribute(Qt::WA_TransparentForMouseEvents));
}

// A style sheet without a selector is meant for one widget and reaches its tool tips too.
void TestStage::toolTipsCanBeRead()
{
    window->show();
    QList<QWidget*> askers = {window->ui.inKeyboardGraphicsView->viewport()};
    for (QWidget* child : window->findChildren<QWidget*>())
        if (!child->toolTip().isEmpty())
            askers.append(child);
    QVERIFY(askers.size() > 6);
    for (QWidget* asker : qAsConst(askers)) {
        QToolTip::showText(window->mapToGlobal(QPoint(100, 100)), QStringLiteral("MMMM"), asker);
        QWidget* tip = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->inherits("QTipLabel") && top->isVisible())
                tip = top;
        QVERIFY(tip);
        const QImage image = tip->grab().toImage();
        const QPalette wanted = QToolTip::palette();
        QCOMPARE(image.pixelColor(2, image.height() / 2), wanted.color(QPalette::ToolTipBase));
        int lightest = 0;
        for (int x = 3; x < image.width() - 3; ++x)
            lightest = qMax(lightest, qGray(image.pixel(x, image.height() / 2)));
        QVERIFY2(lightest > 180, qPrintable(asker->objectName()));
        QToolTip::hideText();
        tip->close();
    }
}

void TestStage::bothScenesHoldTheSameKeysInTheSameOrder()
{
    QCOMPARE(window->listItemsIN.size(), 88);
    QCOMPARE(window->listItemsOUT.size(), 88);
    for (int i = 0; i < 88; ++i) {
        QCOMPARE(key_roles::pitch(window->listItemsIN[i]), key_roles::pitch(window->listItemsOUT[i]));
        QVERIFY(key_roles::isIn(window->listItemsIN[i]));
        QVERIFY(key_roles::isOut(window->listItemsOUT[i]));
    }
    QCOMPARE(key_roles::pitch(window->listItemsIN.first()), 106); // created last
    QCOMPARE(key_roles::name(window->listItemsIN.last()), QStringLiteral("A0"));
}

void TestStage::everyKeyHasItsNameAndPlace()
{
    int whites = 0;
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* key = window->findInNote(note);
        QVERIFY(key);
        QCOMPARE(key->y(), 46.0);
        if (isWhite(note)) {
            QCOMPARE(key_roles::name(key), whiteName(note));
            QCOMPARE(key->x(), 8.0 + 17 * whites++);
        } else {
            QCOMPARE(key_roles::name(key), QStringLiteral("#"));
            QCOMPARE(key->x(), window->findInNote(note + 1)->x() - 5);
        }
    }
    QCOMPARE(whites, 52);
    QVERIFY(!window->findInNote(20));
    QVERIFY(!window->findInNote(109));
}

void TestStage::highestWhiteKeyHasItsOwnPlainShape()
{
    QCOMPARE(key_roles::name(window->findInNote(108)), QStringLiteral("C8"));
    QCOMPARE(key_pictures::shapeOf(QStringLiteral("C8")), KeyShape::full);
    for (const char* other : {"C1", "C7"})
        QCOMPARE(key_pictures::shapeOf(QLatin1String(other)), KeyShape::cAndF);
}

void TestStage::lowestAndHighestBlackKeyStandAtTheirPlaces()
{
    QCOMPARE(window->findInNote(22)->x(), 20.0);
    QCOMPARE(window->findInNote(106)->x(), 853.0);
    QList<int> blacks;
    for (int note = 22; note <= 37; ++note)
        if (!isWhite(note))
            blacks.append(static_cast<int>(window->findInNote(note)->x()));
    QCOMPARE(blacks, (QList<int>{20, 54, 71, 105, 122, 139, 173}));
}

void TestStage::outKeysAreMovedAfterThePairing()
{
    for (int i = 0; i < 88; ++i)
        QCOMPARE(window->listItemsOUT[i]->pos(), window->listItemsIN[i]->pos() + QPointF(15, -20));
}

void TestStage::pairedOutKeyIsTheSamePitch()
{
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* key = window->findInNote(note);
        QVERIFY(key_roles::isOut(key->pairedOutKey));
        QCOMPARE(key_roles::pitch(key->pairedOutKey), note);
    }
}

void TestStage::listsAreSharedByTheKeys()
{
    const ResizableItem* in = window->findInNote(60);
    const auto* out = static_cast<const ResizableItem*>(in->pairedOutKey);
    QCOMPARE(in->listItemsIN, window->listItemsIN);
    QCOMPARE(in->listItemsOUT, window->listItemsOUT);
    QCOMPARE(in->listItemsTonic, window->listItemsTonic);
    QCOMPARE(out->listItemsTonic, window->listItemsTonic);
    QVERIFY(out->listItemsIN.isEmpty());
    QVERIFY(out->listItemsOUT.isEmpty());
    QVERIFY(window->powerItem->anchorBarIn);
    QVERIFY(window->powerItem->anchorBarOut);
    QCOMPARE(in->acceptedMouseButtons(), Qt::LeftButton);
    QCOMPARE(in->cacheMode(), QGraphicsItem::NoCache);
}

void TestStage::idleKeysCarryTheShineOfTheirSide()
{
    const QPixmap sheet = pictures::load(QStringLiteral(":/Resources/Keyboard/keyboardB.png"));
    QVERIFY(!sheet.isNull());
    const QPixmap bare = pictures::crop(sheet, QRect(87, 0, 17, 99)); // a C
    const ResizableItem* in = window->findInNote(60);
    QCOMPARE(imageOf(in->pixmap()), imageOf(window->addBlueShine(bare)));
    QCOMPARE(imageOf(static_cast<ResizableItem*>(in->pairedOutKey)->pixmap()),
             imageOf(window->addYellowShine(bare)));
    QVERIFY(imageOf(in->pixmap()) != imageOf(bare));
}

void TestStage::addShineDrawsTheLightAtTheOrigin()
{
    QPixmap base(60, 60);
    base.fill(Qt::black);
    const QImage lit = imageOf(window->addYellowShine(base));
    QVERIFY(lit.pixelColor(0, 0) != QColor(Qt::black));
    QCOMPARE(lit.pixelColor(40, 0), QColor(Qt::black));
    QCOMPARE(lit.pixelColor(0, 50), QColor(Qt::black));
}

void TestStage::overlayDrawsTheGivenPart()
{
    QPixmap base(20, 20), top(20, 20);
    base.fill(Qt::white);
    top.fill(Qt::red);
    QPixmap copy = base;
    const QImage result = imageOf(window->overlayTwoPixmaps(copy, top, QRect(10, 10, 4, 6)));
    QCOMPARE(result.pixelColor(3, 5), QColor(Qt::red));
    QCOMPARE(result.pixelColor(4, 5), QColor(Qt::white));
    QCOMPARE(result.pixelColor(3, 6), QColor(Qt::white));
    QCOMPARE(imageOf(copy).pixelColor(0, 0), QColor(Qt::white)); // the base itself stays
}

void TestStage::everyShapeHasItsCells()
{
    struct Row
    {
        const char* name;
        int idle, pressed, width, height;
    };
    const Row rows[] = {{"B3", 121, 138, 17, 99}, {"E4", 121, 138, 17, 99}, {"C4", 87, 104, 17, 99},
                        {"F2", 87, 104, 17, 99},  {"D1", 53, 70, 17, 99},   {"G5", 53, 70, 17, 99},
                        {"A4", 53, 70, 17, 99},   {"C8", 19, 36, 17, 99},   {"A0", 87, 104, 17, 99},
                        {"#", 0, 10, 10, 64}};
    for (const Row& row : rows) {
        const KeyShape shape = key_pictures::shapeOf(QLatin1String(row.name));
        QCOMPARE(key_pictures::cellOf(shape, KeyCell::idle), QRect(row.idle, 0, row.width, row.height));
        QCOMPARE(key_pictures::cellOf(shape, KeyCell::pressed), QRect(row.pressed, 0, row.width, row.height));
    }
    for (const char* name : {"", "power", "header", "##"})
        QCOMPARE(key_pictures::shapeOf(QLatin1String(name)), KeyShape::none);
}

void TestStage::cropsAreSharedAndRightAtTwiceTheDensity()
{
    QCOMPARE(window->findInNote(60)->pixmap().cacheKey(), window->findInNote(72)->pixmap().cacheKey());
    QPixmap dense(40, 20);
    dense.setDevicePixelRatio(2.0);
    const QPixmap part = pictures::crop(dense, QRect(5, 2, 10, 6));
    QCOMPARE(part.size(), QSize(20, 12));
    QCOMPARE(part.devicePixelRatio(), 2.0);
}

void TestStage::dataOfANullItemIsLost()
{
    key_roles::setTarget(nullptr, 60);
    QCOMPARE(key_roles::target(nullptr), 0);
    QCOMPARE(key_roles::name(nullptr), QString());
    QVERIFY(!key_roles::isBlack(nullptr));
}

void TestStage::sceneRectanglesPutTheKeyboardsOnTheStage()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const auto stagePlace = [this](QGraphicsView* view, QPointF scenePos) {
        return view->viewport()->mapTo(window.get(), view->mapFromScene(scenePos));
    };
    const ResizableItem* middleC = window->findInNote(60);
    QCOMPARE(stagePlace(window->ui.inKeyboardGraphicsView, middleC->pos()), QPoint(426, 348));
    QCOMPARE(stagePlace(window->ui.outKeyboardGraphicsView, middleC->pairedOutKey->scenePos()),
             QPoint(426, 48));
}

void TestStage::freshStartIsOff()
{
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(window->backgroundOff->isVisible());
    QVERIFY(!window->backgroundOn->isVisible());
    window->setPower(true);
    window = nullptr;
    window = std::make_unique<MainWnd>();
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestStage::powerItemStartsOverItsKey()
{
    QCOMPARE(window->powerItem->pos(), QPointF(288, 28));
    QCOMPARE(window->findInNote(49)->pos() + QPointF(-4, -18), QPointF(288, 28));
    QCOMPARE(key_roles::side(window->powerItem), QStringLiteral("power"));
    QCOMPARE(key_roles::pitch(window->powerItem), 49);
    QCOMPARE(key_roles::name(window->powerItem), QStringLiteral("power"));
    QVERIFY(window->powerItem->acceptHoverEvents());
}

void TestStage::powerItemReturnsToItsLastPosition()
{
    window->powerItem->setPos(500, 40);
    window->powerItem->restorePos();
    QCOMPARE(window->powerItem->pos(), QPointF(288, 28));
    window->powerItem->setLastPos({101, 28});
    window->powerItem->setPos(0, 0);
    window->powerItem->restorePos();
    QCOMPARE(window->powerItem->pos(), QPointF(101, 28));
}

void TestStage::setPowerSwitchesPicturesAndSelectors()
{
    const auto shown = [this] { return imageOf(window->powerItem->pixmap()); };
    window->setPower(true);
    QVERIFY(window->backgroundOn->isVisible());
    QVERIFY(!window->backgroundOff->isVisible());
    QCOMPARE(shown(), imageOf(pictures::load(QStringLiteral(":/Resources/Power/POWERBUTTONOn.png"))));
    window->switchPower();
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(window->backgroundOff->isVisible());
    QCOMPARE(shown(), imageOf(pictures::load(QStringLiteral(":/Resources/Power/POWERBUTTONOff.png"))));
}

void TestStage::spaceTogglesThePower()
{
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(window->powerItem->isSwitchOn());
    QTest::keyClick(window->ui.inKeyboardGraphicsView, Qt::Key_Space);
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestStage::heldSpaceTogglesOnce()
{
    QTest::keyPress(window.get(), Qt::Key_Space);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(window.get(), &repeat);
    }
    QVERIFY(window->powerItem->isSwitchOn());
}

void TestStage::spaceWithADialogOpenDoesNothing()
{
    window->dialogOpen = true;
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestStage::enterAndEscapeDoNotCloseTheWindow()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QTest::keyClick(window.get(), Qt::Key_Enter);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QVERIFY(window->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Return);
    QVERIFY(window->isVisible());
}

void TestStage::returnIsNotSwallowed()
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!window->eventFilter(window.get(), &press));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    QVERIFY(window->eventFilter(window.get(), &enter));
    QVERIFY(!enter.isAccepted());
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QVERIFY(!window->eventFilter(window.get(), &letter));
}

void TestStage::specialKeysAreAnnounced()
{
    const QSignalSpy spy(window.get(), &MainWnd::specialKeyPressed);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space, Qt::Key_A}) {
        QKeyEvent coming(QEvent::ShortcutOverride, key, Qt::NoModifier);
        window->eventFilter(window.get(), &coming);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        for (int receiver = 0; receiver < 3; ++receiver) // the window, the widget, its parent
            window->eventFilter(window.get(), &press);
    }
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(0).toInt(), 0x1000004);
    QCOMPARE(spy.at(1).at(0).toInt(), 0x1000005);
    QCOMPARE(spy.at(2).at(0).toInt(), 0x1000000);
}

void TestStage::touchIsSwallowed()
{
    for (const int type : {194, 195, 196, 209}) {
        QEvent event(static_cast<QEvent::Type>(type));
        QVERIFY(window->eventFilter(window.get(), &event));
        QVERIFY(!event.isAccepted());
    }
}

void TestStage::oneGlyphUpToNineAndAPairFromTen()
{
    const int widths[] = {6, 3, 4, 5, 5, 4, 6, 5, 6, 6};
    for (int type = MainWnd::digit_anchor_in; type <= MainWnd::digit_bar; ++type)
        for (int number = 0; number <= 9; ++number)
            QCOMPARE(window->getDigitalPix(static_cast<MainWnd::digit_type>(type), number).size(),
                     QSize(widths[number], 8));
    QCOMPARE(window->getDigitalPix(MainWnd::digit_square, 10).size(), QSize(13, 8));
    const QImage twelve = imageOf(window->getDigitalPix(MainWnd::digit_square, 12));
    QCOMPARE(twelve.copy(0, 0, 3, 8), imageOf(window->getDigitalPix(MainWnd::digit_square, 1)));
    QCOMPARE(twelve.copy(3, 0, 4, 8), imageOf(window->getDigitalPix(MainWnd::digit_square, 2)));
}

void TestStage::negativeNumbersCarryTheSign()
{
    const QPixmap minusFour = window->getDigitalPix(MainWnd::digit_anchor_in, -4);
    QCOMPARE(minusFour.size(), QSize(16, 8));
    QCOMPARE(imageOf(minusFour).copy(3, 0, 5, 8),
             imageOf(window->getDigitalPix(MainWnd::digit_anchor_in, 4)));
    QVERIFY(imageOf(minusFour).copy(0, 0, 3, 8) != QImage(imageOf(minusFour).copy(13, 0, 3, 8)));
}

void TestStage::thirdDigitIsNotDrawn()
{
    QCOMPARE(imageOf(window->getDigitalPix(MainWnd::digit_bar, 123)),
             imageOf(window->getDigitalPix(MainWnd::digit_bar, 12)));
}

void TestStage::unknownDigitTypeHasNoGlyphs()
{
    QVERIFY(window->getDigitalPix(static_cast<MainWnd::digit_type>(4), 3).isNull());
}

void TestStage::scenesShowAndHideTheirWidgets()
{
    window->show();
    const auto& ui = window->ui;
    QCOMPARE(window->centerScreen->currentScene, 1);
    QVERIFY(ui.centerLogo->isVisible() && ui.about->isVisible() && ui.buttonReset->isVisible());
    QVERIFY(!window->centerScreen->inPortList->isVisible() && !ui.versionLabel->isVisible());
    QTest::mouseClick(ui.buttonMIDIinOut, Qt::LeftButton);
    QCOMPARE(window->centerScreen->currentScene, 3);
    QVERIFY(window->centerScreen->inPortList->isVisible() && window->centerScreen->outPortList->isVisible());
    QVERIFY(!ui.centerLogo->isVisible() && !ui.buttonReset->isVisible() && ui.buttonManual->isVisible());
    QTest::mouseClick(ui.scene34TopButton, Qt::LeftButton);
    QCOMPARE(window->centerScreen->currentScene, 1);
    QVERIFY(!ui.buttonMIDIinOut->isChecked());
    QTest::mouseClick(ui.scene1Button, Qt::LeftButton);
    QCOMPARE(window->centerScreen->currentScene, 2);
    QVERIFY(!ui.buttonMIDIinOut->isVisible() && ui.centerLogo->isVisible());
    QTest::mouseClick(ui.scene2Button, Qt::LeftButton);
    QCOMPARE(window->centerScreen->currentScene, 1);
}

void TestStage::hitAreasFollowTheScene()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QPoint middle(473, 230);
    QCOMPARE(window->childAt(middle), window->ui.scene1Button);
    window->centerScreen->setSceneClean();
    QCOMPARE(window->childAt(middle), window->ui.scene2Button);
    window->centerScreen->setSceneMIDIinOut();
    QVERIFY(window->centerScreen->inPortList->isAncestorOf(window->childAt(middle)));
}

QTEST_MAIN(TestStage)
#include "test_stage.moc"
