// The two actions on all headers. Both ask first.

#include "headers/HeaderController.h"

#include "app/MainWnd.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "library/default_tables.h"

using namespace selector_access;

namespace {

const QPointF powerButtonReset(407, 28); // over C#4

} // namespace

void HeaderController::eraseAll()
{
    if (!mainWnd->confirmAlert(tr("<h4>Are you sure you want to permanently erase the settings in all "
                                  "Headers?</h4><h6>You can't undo this operation.</h6>"),
                               tr("Erase All")))
        return;
    scaleSelector().setSwitchOff(true);
    tonicSelector().setSwitchOff(true);
    for (HeaderItem* header : qAsConst(headers)) {
        header->record.clearNames();
        header->update();
    }
}

void HeaderController::resetAll()
{
    if (!mainWnd->confirmAlert(tr("<h4>Are you sure you want to reset Sorvane?</h4><h6>You can't undo this "
                                  "operation.</h6>"),
                               tr("Reset to Default")))
        return;
    mainWnd->findPowerItemPosition(powerButtonReset);
    mainWnd->library.loadDefault();
    QList<header_data> rows;
    for (const header_data& row : resetHeaderData)
        rows.append(row);
    reloadHeaders(rows);
    if (activeHeader)
        resetSelectors(activeHeader->record);
    resetAnchors();
    mainWnd->setPower(mainWnd->powerItem->isSwitchOn());
}

void HeaderController::resetSelectors(const header_data& data) const
{
    setSwitch(tonicSelector(), data.tonicOn, false);
    tonicSelector().setTonicModifier(data.tonicData, true, false);
    setSwitch(scaleSelector(), data.scaleOn, false);
    scaleSelector().setScaleModifier(data.scaleData, false);
    // The pitch position would be restored here and taken back by the reset of the anchors: only that stays.
    mainWnd->checkScaleMatches(true);
}
