// The tonic and scale selectors: controllers, keys, switches, and the gestures of the pointer on them.

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/SwitchItem.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/tonic_names.h"
#include "logging/categories.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

const QString ionian = QStringLiteral("xoxoxxoxoxox");

} // namespace

class TestSelectors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void freshStartIsCMajorWithBothSwitchesOn();
    void everyKeyCarriesItsRolesAndOpacity();
    void extraScaleKeyStandsForTheTonicDegree();
    void itemListIsSortedByIndexWithTheExtraKeyLast();
    void keyWithoutControllerIsLogged();

    void tonicOffYieldsEmptyNameButKeepsTheKey();
    void setTonicModifierObeysSwitchAndForce();
    void setTonicModifierLeavesOneKeyOn();
    void scaleWordFollowsTheKeys();
    void setScaleModifierWithSwitchOffSaysNothing();
    void setScaleModifierRejectsBadWords_data();
    void setScaleModifierRejectsBadWords();
    void badLetterKeepsTheDegreesBeforeIt();
    void longWordIsReadToLetterEleven();
    void letterZeroIsNeverRead();
    void toggleKeyTakesTheNameAsPlainIndex();
    void toggleKeyRefusesTonicAndUnknownNames();
    void allOffAndIonicMajor();
    void scaleControllerListsTheTonicDegreeOnce();
    void baseControllerFindsKeysByIndex();

    void switchFlipsOnlyOffAndOn();
    void switchThatIsUnsetSaysSo();
    void switchesAreNeutralWithThePowerOff();
    void controllerAndSwitchFollowEachOther();
    void switchStaysNeutralWhileItsControllerChangesInTheDark();

    void clickOnTonicKeyActivatesIt();
    void clickOnScaleKeyTogglesIt();
    void doubleClickTogglesTwice();
    void pressAloneChangesNothing();
    void dragAcrossTonicRowMovesTheTonic();
    void dragAcrossScaleRowTogglesEachEnteredKeyOnce();
    void dragWithScaleSwitchOffChangesNothing();
    void gestureStaysInItsRow();
    void clickOnTonicDegreeChangesNothing();
    void clickOnSwitchFlipsIt();
    void releaseOutsideTheSwitchKeepsIt();
    void rightButtonDoesNothing();
    void selectorsSleepWithThePowerOff();
    void changeRemapsTheKeyboards();
    void squaresNumberTheScale();

private:
    TonicKeyController* tonic() const { return static_cast<TonicKeyController*>(window->tonicController); }
    ScaleKeyController* scale() const { return static_cast<ScaleKeyController*>(window->scaleController); }
    QWidget* view() const { return window->ui.centerGraphicsView->viewport(); }
    QPoint placeOf(const KeyControllerBase* controller, int index) const;
    QPoint placeOf(const SwitchItem* item) const;
    void click(QPoint pos) const { QTest::mouseClick(view(), Qt::LeftButton, {}, pos); }
    void press(QPoint pos) const { QTest::mousePress(view(), Qt::LeftButton, {}, pos); }
    void move(QPoint pos) const;
    void release(QPoint pos) const { QTest::mouseRelease(view(), Qt::LeftButton, {}, pos); }

    std::unique_ptr<MainWnd> window;
};

void TestSelectors::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    window->setPower(true);
}

// Near the foot of a white key no black key lies over it; the middle of a black key is always black.
QPoint TestSelectors::placeOf(const KeyControllerBase* controller, int index) const
{
    const QRectF rect = controller->findKey(index)->sceneBoundingRect();
    return window->ui.centerGraphicsView->mapFromScene(rect.center().x(), rect.bottom() - 5);
}

QPoint TestSelectors::placeOf(const SwitchItem* item) const
{
    return window->ui.centerGraphicsView->mapFromScene(item->sceneBoundingRect().center());
}

void TestSelectors::move(QPoint pos) const
{
    QMouseEvent event(QEvent::MouseMove, pos, view()->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view(), &event);
}

void TestSelectors::freshStartIsCMajorWithBothSwitchesOn()
{
    QVERIFY(tonic()->switchOn);
    QVERIFY(scale()->switchOn);
    QCOMPARE(tonic()->tonicModifier(), QStringLiteral("C"));
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::everyKeyCarriesItsRolesAndOpacity()
{
    for (int index = 0; index < 12; ++index) {
        const TonicKeyItem* t = tonic()->findKey(index);
        QCOMPARE(key_roles::side(t), QStringLiteral("tonic"));
        QCOMPARE(key_roles::pitch(t), index);
        QCOMPARE(key_roles::name(t), tonicModifierName[static_cast<std::size_t>(index)]);
        QCOMPARE(key_roles::isStateOn(t), index == 0);
        QCOMPARE(t->opacity(), index == 0 ? 1.0 : 0.01);

        const TonicKeyItem* s = scale()->findKey(index);
        const bool on = ionian.at(index) == QLatin1Char('x');
        QCOMPARE(key_roles::side(s), QStringLiteral("scale"));
        QCOMPARE(key_roles::name(s), scaleModifierName[static_cast<std::size_t>(index)]);
        QCOMPARE(key_roles::isStateOn(s), on);
        QCOMPARE(s->opacity(), on ? 1.0 : 0.01);
    }
}

void TestSelectors::extraScaleKeyStandsForTheTonicDegree()
{
    auto* extra = dynamic_cast<TonicKeyItem*>(window->listItemsTonic.last());
    QVERIFY(extra);
    QVERIFY(!extra->scene());
    QCOMPARE(extra->index, 0);
    QCOMPARE(extra->type, tonic_key_scale);
    QVERIFY(extra->on);
    QVERIFY(scale()->keys.contains(extra));
    QCOMPARE(key_roles::side(extra), QStringLiteral("scale"));
    QCOMPARE(key_roles::name(extra), QStringLiteral("P1"));
    QCOMPARE(key_roles::pitch(extra), 0);
}

void TestSelectors::itemListIsSortedByIndexWithTheExtraKeyLast()
{
    const auto& items = window->listItemsTonic;
    for (int i = 1; i + 1 < items.size(); ++i)
        QVERIFY(key_roles::pitch(items[i - 1]) <= key_roles::pitch(items[i]));
    QCOMPARE(window->powerItem->listItemsTonic, items);
}

void TestSelectors::keyWithoutControllerIsLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "cannot create TonicKeyItem with parentCtrl == NULL");
    const TonicKeyItem key(tonic_key_tonic, nullptr, 3);
    QVERIFY(!key.on);
}

void TestSelectors::tonicOffYieldsEmptyNameButKeepsTheKey()
{
    QVERIFY(tonic()->setTonicModifier(QStringLiteral("E"), true, false));
    tonic()->setSwitchOff(false);
    QCOMPARE(tonic()->tonicModifier(), QString());
    QCOMPARE(tonic()->activeKey, tonic()->findKey(4));
    QCOMPARE(window->powerItem->getCurTonicModifier(), 4);
}

void TestSelectors::setTonicModifierObeysSwitchAndForce()
{
    tonic()->setSwitchOff(false);
    QVERIFY(!tonic()->setTonicModifier(QStringLiteral("D"), true, false));
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
    QVERIFY(tonic()->setTonicModifier(QStringLiteral("D"), true, true));
    QCOMPARE(tonic()->tonicModifierIndex(), 2);
    QVERIFY(!tonic()->setTonicModifier(QString(), true, true));
    QVERIFY(!tonic()->setTonicModifier(QStringLiteral("H"), true, true));
    QVERIFY(!tonic()->setTonicModifier(QStringLiteral("d"), true, true));
    QCOMPARE(tonic()->tonicModifierIndex(), 2);
}

void TestSelectors::setTonicModifierLeavesOneKeyOn()
{
    for (const QString& name : tonicModifierName) {
        QVERIFY(tonic()->setTonicModifier(name, true, false));
        int on = 0;
        for (const TonicKeyItem* key : qAsConst(tonic()->keys))
            on += key->on ? 1 : 0;
        QCOMPARE(on, 1);
        QCOMPARE(tonic()->tonicModifier(), name);
    }
}

void TestSelectors::scaleWordFollowsTheKeys()
{
    scale()->findKey(1)->changeState(true);
    scale()->findKey(4)->changeState(true);
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xxxooxoxoxox"));
}

void TestSelectors::setScaleModifierWithSwitchOffSaysNothing()
{
    scale()->setSwitchOff(false);
    QVERIFY(!scale()->setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), false));
    QCOMPARE(scale()->scaleModifier(), ionian);
    QVERIFY(scale()->setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), true));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xxxxxxxxxxxx"));
}

void TestSelectors::setScaleModifierRejectsBadWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("empty") << QString();
    QTest::newRow("eleven letters") << QStringLiteral("xoxoxxoxoxo");
    QTest::newRow("bad second letter") << QStringLiteral("x-xoxxoxoxox");
    QTest::newRow("capital") << QStringLiteral("xXxoxxoxoxox");
}

void TestSelectors::setScaleModifierRejectsBadWords()
{
    QFETCH(QString, word);
    QVERIFY(!scale()->setScaleModifier(word, true));
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::badLetterKeepsTheDegreesBeforeIt()
{
    QVERIFY(!scale()->setScaleModifier(QStringLiteral("xxxxx?oooooo"), true));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xxxxxxoxoxox"));
}

void TestSelectors::longWordIsReadToLetterEleven()
{
    QVERIFY(scale()->setScaleModifier(QStringLiteral("xooxoooxoooo??"), true));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xooxoooxoooo"));
}

void TestSelectors::letterZeroIsNeverRead()
{
    QVERIFY(scale()->setScaleModifier(QStringLiteral("?ooooooxoooo"), true));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xooooooxoooo"));
}

void TestSelectors::toggleKeyTakesTheNameAsPlainIndex()
{
    tonic()->setTonicModifier(QStringLiteral("A"), true, true);
    QVERIFY(scale()->toggleKey(QStringLiteral("D")));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    QVERIFY(scale()->toggleKey(QStringLiteral("F#")));
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xoooxxxxoxox"));
}

void TestSelectors::toggleKeyRefusesTonicAndUnknownNames()
{
    for (const char* name : {"C", "", "H", "d", "D4"})
        QVERIFY(!scale()->toggleKey(QLatin1String(name)));
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::allOffAndIonicMajor()
{
    scale()->setAllOff();
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xooooooooooo"));
    scale()->setIonicMajor();
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::scaleControllerListsTheTonicDegreeOnce()
{
    TonicKeyItem* first = scale()->findKey(0);
    const int before = scale()->keys.size();
    scale()->addKey(first);
    QCOMPARE(scale()->keys.size(), before);
    emit first->mousePressed(first); // connected to nothing
    QVERIFY(!scale()->pressedKey);
}

void TestSelectors::baseControllerFindsKeysByIndex()
{
    for (int index = 0; index < 12; ++index)
        QCOMPARE(tonic()->findKey(index)->index, index);
    QVERIFY(!tonic()->findKey(12));
    QVERIFY(!tonic()->findKey(-1));
}

void TestSelectors::switchFlipsOnlyOffAndOn()
{
    SwitchItem* item = scale()->switchItem;
    QCOMPARE(item->status(), SwitchItem::status_on);
    QVERIFY(item->switchStatus(true));
    QVERIFY(!scale()->switchOn);
    QCOMPARE(item->status(), SwitchItem::status_off);
    QVERIFY(item->switchStatus(true));
    QVERIFY(scale()->switchOn);
    item->setStatus(SwitchItem::status_neutral, false);
    QVERIFY(!item->switchStatus(true));
    QVERIFY(scale()->switchOn);
}

void TestSelectors::switchThatIsUnsetSaysSo()
{
    TonicKeyController controller;
    SwitchItem item(0, &controller);
    QCOMPARE(controller.switchItem, &item);
    auto& category = const_cast<QLoggingCategory&>(lcKeys());
    category.setEnabled(QtDebugMsg, true);
    QTest::ignoreMessage(QtDebugMsg, "SwitchItem status must be initialized before use");
    const bool flipped = item.switchStatus(false);
    category.setEnabled(QtDebugMsg, false);
    QVERIFY(!flipped);
}

void TestSelectors::switchesAreNeutralWithThePowerOff()
{
    tonic()->setSwitchOff(false);
    window->setPower(false);
    QCOMPARE(tonic()->switchItem->status(), SwitchItem::status_neutral);
    QCOMPARE(scale()->switchItem->status(), SwitchItem::status_neutral);
    QVERIFY(!tonic()->switchOn);
    QVERIFY(scale()->switchOn);
    window->setPower(true);
    QCOMPARE(tonic()->switchItem->status(), SwitchItem::status_off);
    QCOMPARE(scale()->switchItem->status(), SwitchItem::status_on);
}

void TestSelectors::controllerAndSwitchFollowEachOther()
{
    scale()->setSwitchOff(true);
    QCOMPARE(scale()->switchItem->status(), SwitchItem::status_off);
    scale()->switchItem->setStatus(SwitchItem::status_on, true);
    QVERIFY(scale()->switchOn);
}

void TestSelectors::switchStaysNeutralWhileItsControllerChangesInTheDark()
{
    window->setPower(false);
    scale()->setSwitchOff(false);
    tonic()->setSwitchOn(false);
    QCOMPARE(scale()->switchItem->status(), SwitchItem::status_neutral);
    QCOMPARE(tonic()->switchItem->status(), SwitchItem::status_neutral);
    window->setPower(true);
    QCOMPARE(scale()->switchItem->status(), SwitchItem::status_off);
    QCOMPARE(tonic()->switchItem->status(), SwitchItem::status_on);
}

void TestSelectors::clickOnTonicKeyActivatesIt()
{
    for (int index = 11; index >= 0; --index) {
        click(placeOf(tonic(), index));
        QCOMPARE(tonic()->tonicModifierIndex(), index);
        QVERIFY(!tonic()->pressedKey);
    }
}

void TestSelectors::clickOnScaleKeyTogglesIt()
{
    for (int index = 1; index < 12; ++index) {
        const bool before = scale()->findKey(index)->on;
        click(placeOf(scale(), index));
        QCOMPARE(scale()->findKey(index)->on, !before);
        click(placeOf(scale(), index));
        QCOMPARE(scale()->findKey(index)->on, before);
    }
}

void TestSelectors::doubleClickTogglesTwice()
{
    const QPoint pos = placeOf(scale(), 3);
    click(pos);
    QTest::mouseDClick(view(), Qt::LeftButton, {}, pos);
    QCOMPARE(scale()->scaleModifier().at(3), QLatin1Char('x')); // three clicks in all
}

void TestSelectors::pressAloneChangesNothing()
{
    press(placeOf(tonic(), 7));
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
    QCOMPARE(tonic()->pressedKey, tonic()->findKey(7));
    release(placeOf(tonic(), 7));
    press(placeOf(scale(), 7));
    QCOMPARE(scale()->scaleModifier(), ionian);
    release({0, 0});
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::dragAcrossTonicRowMovesTheTonic()
{
    press(placeOf(tonic(), 2));
    for (const int index : {4, 5, 7}) {
        move(placeOf(tonic(), index));
        QCOMPARE(tonic()->tonicModifierIndex(), index);
    }
    move(placeOf(tonic(), 2));
    QCOMPARE(tonic()->tonicModifierIndex(), 2);
    move(placeOf(tonic(), 9));
    release(placeOf(tonic(), 9));
    QCOMPARE(tonic()->tonicModifierIndex(), 9);
}

void TestSelectors::dragAcrossScaleRowTogglesEachEnteredKeyOnce()
{
    press(placeOf(scale(), 2));
    for (const int index : {4, 5, 7, 5, 4, 2, 4})
        move(placeOf(scale(), index));
    release(placeOf(scale(), 4));
    // 4, 5 and 7 went off; the pressed 2 stayed.
    QCOMPARE(scale()->scaleModifier(), QStringLiteral("xoxooooooxox"));
}

void TestSelectors::dragWithScaleSwitchOffChangesNothing()
{
    scale()->setSwitchOff(false);
    press(placeOf(scale(), 2));
    for (const int index : {4, 5, 7})
        move(placeOf(scale(), index));
    release(placeOf(scale(), 7));
    click(placeOf(scale(), 9));
    QCOMPARE(scale()->scaleModifier(), ionian);
}

void TestSelectors::gestureStaysInItsRow()
{
    press(placeOf(tonic(), 2));
    move(placeOf(scale(), 3));
    move(placeOf(scale(), 4));
    release(placeOf(scale(), 4));
    QCOMPARE(scale()->scaleModifier(), ionian);
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
}

void TestSelectors::clickOnTonicDegreeChangesNothing()
{
    click(placeOf(scale(), 0));
    QCOMPARE(scale()->scaleModifier(), ionian);
    QVERIFY(scale()->findKey(0)->on);
}

void TestSelectors::clickOnSwitchFlipsIt()
{
    click(placeOf(tonic()->switchItem));
    QVERIFY(!tonic()->switchOn);
    click(placeOf(tonic()->switchItem));
    QVERIFY(tonic()->switchOn);
    click(placeOf(scale()->switchItem));
    QVERIFY(!scale()->switchOn);
}

void TestSelectors::releaseOutsideTheSwitchKeepsIt()
{
    press(placeOf(tonic()->switchItem));
    release({0, 0});
    QVERIFY(tonic()->switchOn);
}

void TestSelectors::rightButtonDoesNothing()
{
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOf(tonic(), 4));
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOf(scale(), 4));
    QTest::mouseClick(view(), Qt::RightButton, {}, placeOf(scale()->switchItem));
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
    QCOMPARE(scale()->scaleModifier(), ionian);
    QVERIFY(scale()->switchOn);
}

void TestSelectors::selectorsSleepWithThePowerOff()
{
    window->setPower(false);
    QVERIFY(!tonic()->findKey(0)->isVisible());
    click(placeOf(tonic(), 4));
    click(placeOf(scale(), 4));
    click(placeOf(scale()->switchItem));
    QCOMPARE(tonic()->tonicModifierIndex(), 0);
    QCOMPARE(scale()->scaleModifier(), ionian);
    QVERIFY(scale()->switchOn);
}

void TestSelectors::changeRemapsTheKeyboards()
{
    click(placeOf(tonic(), 2)); // D: middle C plays D, the next white key E
    QCOMPARE(key_roles::target(window->findInNote(60)), 62);
    QCOMPARE(key_roles::target(window->findInNote(62)), 64);
    click(placeOf(scale(), 2)); // without the second degree the next one is F sharp
    QCOMPARE(key_roles::target(window->findInNote(62)), 66);
}

void TestSelectors::squaresNumberTheScale()
{
    QCOMPARE(window->powerItem->getCurScaleCount(false), 7);
    scale()->setScaleModifier(QStringLiteral("xxxxxxxxxxxx"), true);
    QCOMPARE(window->powerItem->getCurScaleCount(false), 12);
    scale()->setAllOff();
    QCOMPARE(window->powerItem->getCurScaleCount(false), 1);
}

QTEST_MAIN(TestSelectors)
#include "test_selectors.moc"
