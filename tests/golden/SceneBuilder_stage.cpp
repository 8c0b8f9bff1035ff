// The scenes of the stage: keyboards, power button, presets, selectors, anchors.

#include "SceneBuilder.h"

#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"

#include <QHelpEvent>
#include <QMenu>

#include <algorithm>

namespace {

constexpr int lydianPreset = 78, iwatoPreset = 75, blankPreset = 39;
constexpr QPoint tipOffset(2, 16); // from the pointer

} // namespace

void SceneBuilder::powerOn()
{
    pressSpace();
    QVERIFY(window->isPowerOn());
}

void SceneBuilder::powerHovered()
{
    powerOn();
    hand->move(power()->pos() + QPointF(9, 15));
}

// Held over a preset, which is lit as its target.
void SceneBuilder::powerDragged()
{
    powerOn();
    hand->drag(powerSleeve(), stemOf(iwatoPreset), 25);
    QVERIFY(power()->dragStarted);
    picture = take();
    hand->release();
}

void SceneBuilder::powerMoved()
{
    powerOn();
    hand->drag(powerSleeve(), stemOf(blankPreset), 25);
    hand->release();
    QCOMPARE(key_roles::pitch(power()), blankPreset);
}

void SceneBuilder::powerPressed()
{
    powerOn();
    hand->press(power()->pos() + QPointF(9, 15));
    picture = take();
    hand->release();
}

// A preset is held over the button.
void SceneBuilder::powerTarget()
{
    powerOn();
    hand->drag(boxOf(iwatoPreset), power()->pos() + QPointF(9, 15), 25);
    QVERIFY(header(iwatoPreset)->dragStarted);
    picture = take();
    hand->release();
}

// Recalled by its black key, with a chord held: keys are lit on both keyboards.
void SceneBuilder::presetPlayed()
{
    powerOn();
    playNote(lydianPreset);
    for (const int note : {48, 55, 60, 64, 67})
        holdNote(note);
    QCOMPARE(active(), lydianPreset);
}

void SceneBuilder::presetHovered()
{
    powerOn();
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    const QPoint place = placeOf(iwatoPreset);
    hand->move(boxOf(iwatoPreset));
    QHelpEvent ask(QEvent::ToolTip, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &ask);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(), [](const QWidget* widget) {
        return widget->inherits("QTipLabel") && widget->isVisible();
    });
    QVERIFY(tip != windows.end());
    picture = takeWith(**tip, inWindow(viewport, place) + tipOffset);
}

void SceneBuilder::presetMenu()
{
    powerOn();
    const QPoint place = inWindow(window->ui.inKeyboardGraphicsView->viewport(), placeOf(iwatoPreset));
    whenMenu([&](QMenu& menu) { picture = takeWith(menu, place); });
    hand->askForMenuAt(boxOf(iwatoPreset));
    QVERIFY(!picture.isNull());
}

void SceneBuilder::presetDragged()
{
    powerOn();
    hand->drag(boxOf(iwatoPreset), stemOf(blankPreset), 25);
    QVERIFY(header(iwatoPreset)->dragStarted);
    picture = take();
    hand->release();
}

// Another tonic, degrees added and taken away, and the scale switch off.
void SceneBuilder::selectorsEdited()
{
    powerOn();
    clickOn(tonic().findKey(8));
    for (const int degree : {4, 3, 10})
        clickOn(scale().findKey(degree));
    const SwitchItem* item = scale().switchItem;
    Hand(item->scene()->views().first()).click(item->sceneBoundingRect().center());
    QCOMPARE(tonic().tonicModifierIndex(), 8);
    QVERIFY(!scale().switchOn);
}

void SceneBuilder::anchorsMoved()
{
    powerOn();
    const QPointF grip(399, 165);
    hand->drag(grip, grip + QPointF(34, 0));
    hand->release();
    QCOMPARE(anchors()->x(), 34.0);
}
