// Which preset is active, and what passes between it and the selectors.

#include "headers/HeaderController.h"

#include "app/MainWnd.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"

#include <QMenu>

using namespace selector_access;

namespace {

bool isUnderPowerButton(int keyNumber)
{
    return keyNumber == key_roles::pitch(mainWnd->powerItem);
}

} // namespace

void HeaderController::setActiveHeader(HeaderItem* item, bool store)
{
    if (!item || mainWnd->dialogOpen)
        return;
    if (item != activeHeader) {
        const int offset = leaveActiveHeader(store);
        activeHeader = item;
        item->setStatus(header_active);
        if (store && mainWnd->powerItem->isSwitchOn())
            loadSelectors(item->record, offset);
    }
    mainWnd->checkScaleMatches(true);
}

int HeaderController::leaveActiveHeader(bool store)
{
    if (!activeHeader)
        return 0;
    activeHeader->setStatus(header_deactive);
    if (store)
        saveSelectors(activeHeader->record);
    activeHeader->updateScenic();
    return store ? anchorX() : 0;
}

void HeaderController::saveSelectors(header_data& data) const
{
    data.tonicData = tonicSelector().tonicModifier();
    data.tonicOn = tonicSelector().switchOn;
    storePitchPosition(data, data.tonicOn);
    data.scaleData = scaleSelector().scaleModifier();
    data.scaleOn = scaleSelector().switchOn;
}

// A switch that is off in the record leaves its selector's keys as they stand: the preset does not touch
// them.
void HeaderController::loadSelectors(const header_data& data, int offset)
{
    if (data.tonicOn) {
        moveAnchors(-qreal(offset));
        restorePitchPosition(data);
    }
    setSwitch(tonicSelector(), data.tonicOn, false);
    const bool update = !data.scaleOn;
    const bool tonicMapped = tonicSelector().setTonicModifier(data.tonicData, update, false) && update;
    setSwitch(scaleSelector(), data.scaleOn, false);
    const bool scaleMapped = scaleSelector().setScaleModifier(data.scaleData, false);
    // A scale that is no word may have set some degrees, and the anchors may have moved.
    if ((data.tonicOn || data.scaleOn) && !tonicMapped && !scaleMapped)
        mainWnd->powerItem->remap();
}

void HeaderController::showActiveHeader()
{
    if (activeHeader)
        loadSelectors(header_data(activeHeader->record), anchorX()); // a copy: the selectors write into it
}

void HeaderController::setActiveHeaderPrev()
{
    recallNeighbour(-1);
}

void HeaderController::setActiveHeaderNext()
{
    recallNeighbour(1);
}

void HeaderController::recallNeighbour(int step)
{
    if (!activeHeader)
        return;
    using namespace pitch_mapping;
    for (int i = key_roles::pitch(activeHeader) + step; isOnKeyboard(i); i += step) {
        if (!key_roles::isBlack(mainWnd->findInNote(i)) || isUnderPowerButton(i))
            continue;
        setActiveHeader(findHeader(i), true);
        return;
    }
}

HeaderItem* HeaderController::findHeader(int keyNumber) const
{
    for (HeaderItem* header : headers)
        if (key_roles::pitch(header) == keyNumber)
            return header;
    return nullptr;
}

HeaderItem* HeaderController::findHeader(header_status status) const
{
    for (HeaderItem* header : headers)
        if (header->status() == status)
            return header;
    return nullptr;
}

void HeaderController::setHeadersStatus(bool visible)
{
    if (!visible)
        menu->close(); // it must not outlive its flag
    for (HeaderItem* header : qAsConst(headers))
        header->setVisible(visible && !isUnderPowerButton(key_roles::pitch(header)));
}

void HeaderController::storePitchPosition(header_data& data, bool valid) const
{
    if (valid)
        data.anchorPos = anchorX();
    data.anchorValid = valid;
}

void HeaderController::restorePitchPosition(const header_data& data) const
{
    if (data.anchorValid)
        moveAnchors(data.anchorPos);
}

void HeaderController::storeTonic(const QString& name)
{
    if (!activeHeader)
        return;
    activeHeader->record.tonicOn = true;
    if (!name.isEmpty())
        activeHeader->record.tonicData = name;
    activeHeader->setNameTonic(name);
}

void HeaderController::storeScale(bool on, const QString& word)
{
    if (!activeHeader)
        return;
    activeHeader->record.scaleOn = on;
    activeHeader->record.scaleData = word;
    activeHeader->updateScenic();
}

void HeaderController::clearScaleNames()
{
    if (!activeHeader)
        return;
    activeHeader->setNameScenic1({});
    activeHeader->setNameScenic2({});
}

void HeaderController::refreshActiveHeader(bool learnScale)
{
    if (!activeHeader)
        return;
    if (learnScale && activeHeader->record.scaleOn)
        activeHeader->record.scaleData = scaleSelector().scaleModifier();
    activeHeader->updateScenic();
}
