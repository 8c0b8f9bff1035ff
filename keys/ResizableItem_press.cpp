// What happens when a key goes down or up, whoever caused it: the MIDI input, the pointer or a drag across
// keys.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/midi_status.h"
#include "logging/categories.h"

namespace {

constexpr int pointerVelocity = 75;

bool isPowerKey(const QGraphicsItem* key)
{
    return key_roles::pitch(key) == key_roles::pitch(mainWnd->powerItem);
}

/// The letter of a white key; that of the white key below and "#" for a black one.
QString noteWord(const QGraphicsItem* key)
{
    if (!key_roles::isBlack(key))
        return key_roles::name(key).left(1);
    const ResizableItem* below = mainWnd->findInNote(key_roles::pitch(key) - 1);
    return key_roles::name(below).left(1) + QLatin1Char('#');
}

} // namespace

void ResizableItem::sendOutMidi(int status, int noteOverride)
{
    if (mainWnd->isLearning())
        return;
    const int note = noteOverride != -1 ? noteOverride : key_roles::pitch(this);
    int velocity = key_roles::velocity(this);
    if (velocity == 0)
        velocity = pointerVelocity;
    if (status == midi_status::noteOff)
        velocity = 0;
    if (note == 0)
        return;
    const QList<int> message{status, note, velocity};
    mainWnd->sendMidiOut(&message);
}

void ResizableItem::pushKey()
{
    qCDebug(lcKeys) << "Push key:" << key_roles::pitch(this) << key_roles::name(this);
    isPushed = true;
    const int target = key_roles::target(this);
    KeySheet sheet = KeySheet::in;
    qCDebug(lcKeys) << "ResizableItem::pushKey :: mainPixIn" << target;
    if (mainWnd->isLearning()) {
        sheet = KeySheet::learn;
        qCDebug(lcKeys) << "ResizableItem::pushKey :: learn";
        mainWnd->learnPending = false;
    } else if (key_roles::isDeactive(this)) {
        sheet = KeySheet::deactive;
        qCDebug(lcKeys) << "ResizableItem::pushKey :: deactive" << mainPixDeactive.size();
    }
    if (key_roles::isOut(this))
        pushOut(sheet);
    else if (key_roles::isIn(this))
        pushIn(sheet, target);
    pressedByMouse = true;
    if (mainWnd->headerController)
        mainWnd->headerController->refreshActiveHeader(mainWnd->learnScale);
    mainWnd->checkScaleMatches(true);
}

void ResizableItem::pushOut(KeySheet sheet)
{
    showCell(sheet, KeyCell::pressed, KeyShine::none);
    if (mainWnd->midiOutOpen)
        sendOutMidi(midi_status::noteOn, key_roles::pitch(this));
    key_roles::setEdgeReleased(this, false);
}

void ResizableItem::pushIn(KeySheet sheet, int target)
{
    showCell(sheet, KeyCell::pressed, KeyShine::none);
    if (mainWnd->isLearning()) {
        learnFromKey();
        return;
    }
    if (!isPowerKey(this))
        pushOUTbyIN(target);
    if (key_roles::isBlack(this))
        pushBlackIn();
}

void ResizableItem::learnFromKey()
{
    const QString word = noteWord(this);
    if (mainWnd->learnScale)
        static_cast<ScaleKeyController*>(mainWnd->scaleController)->toggleKey(word);
    else
        static_cast<TonicKeyController*>(mainWnd->tonicController)->setTonicModifier(word, true, true);
}

void ResizableItem::pushBlackIn()
{
    if (isPowerKey(this))
        togglePower();
    else if (mainWnd->isPowerOn())
        recallPreset();
}

void ResizableItem::recallPreset()
{
    mainWnd->showBeforeRecall();
    HeaderController* presets = mainWnd->headerController;
    presets->setActiveHeader(presets->findHeader(key_roles::pitch(this)), true);
    mainWnd->powerItem->setAllBlackBlue(mainWnd->isPowerOn());
}

void ResizableItem::togglePower()
{
    PowerItem* power = mainWnd->powerItem;
    const bool on = !power->isSwitchOn();
    power->showSwitch(on);
    power->setSwithOn(on);
    followPower();
}

void ResizableItem::followPower() const
{
    PowerItem* power = mainWnd->powerItem;
    const bool on = power->isSwitchOn();
    mainWnd->setBackgroundSwitches(on);
    mainWnd->headerController->setHeadersStatus(on);
    power->setAllBlackBlue(on);
    mainWnd->setLibraryPower(on);
    power->changeScaleByTonic();
}

void ResizableItem::pushOUTbyIN(int outPitch)
{
    if (key_roles::isDeactive(this))
        return;
    for (QGraphicsItem* item : qAsConst(listItemsOUT)) {
        if (key_roles::pitch(item) != outPitch)
            continue;
        if (mainWnd->midiOutOpen)
            sendOutMidi(midi_status::noteOn, outPitch);
        key_roles::setSoundedOut(this, outPitch);
        if (auto* out = dynamic_cast<ResizableItem*>(item)) {
            // Kept: an out A0 that is driven shows no press.
            const bool lowest = out->keyShape() == KeyShape::lowest;
            out->showCell(KeySheet::in, lowest ? KeyCell::idle : KeyCell::pressed, KeyShine::none);
        }
    }
}

KeySheet ResizableItem::idleSheet() const
{
    if (key_roles::isDeactive(this))
        return KeySheet::deactive;
    if (mainWnd->isPowerOn()) {
        if (key_roles::isOut(this) && key_roles::isColoured(this))
            return KeySheet::out;
        if (key_roles::isIn(this) && key_roles::isBlack(this))
            return KeySheet::in;
    }
    return KeySheet::plain;
}

void ResizableItem::releaseKey()
{
    qCDebug(lcKeys) << "Release key:" << key_roles::pitch(this) << key_roles::name(this);
    isPushed = false;
    if (key_roles::pitch(this) == 0)
        return;
    const int sounded = key_roles::soundedOut(this);
    const bool in = key_roles::isIn(this);
    showCell(idleSheet(), KeyCell::idle, in ? KeyShine::blue : KeyShine::yellow);
    // With the power on a black key stands for a preset and ends no note, not even one from before the power
    // went on, and a deactive key hangs on to its note: both kept.
    if (in && !(key_roles::isBlack(this) && mainWnd->isPowerOn()))
        releaseOUTbyIN(sounded);
    if (key_roles::isOut(this) && !key_roles::isEdgeReleased(this)) {
        key_roles::setEdgeReleased(this, true);
        if (mainWnd->midiOutOpen)
            sendOutMidi(midi_status::noteOff, key_roles::pitch(this));
    }
}

void ResizableItem::releaseOUTbyIN(int outPitch)
{
    if (key_roles::isDeactive(this))
        return;
    for (QGraphicsItem* item : qAsConst(listItemsOUT)) {
        if (key_roles::pitch(item) != outPitch)
            continue;
        if (mainWnd->midiOutOpen)
            sendOutMidi(midi_status::noteOff, outPitch);
        if (auto* out = dynamic_cast<ResizableItem*>(item))
            out->showCell(out->idleSheet(), KeyCell::idle, KeyShine::yellow);
    }
}

void ResizableItem::findAndReleaseBlackOut(int pitch)
{
    using namespace pitch_mapping;
    const bool noBlackAbove = pitch == highestPitch || !isBlackPitch(pitch + 1);
    if (isOnKeyboard(pitch) && !isBlackPitch(pitch) && noBlackAbove)
        return;
    releaseOUTbyIN(key_roles::blackOut(this));
}
