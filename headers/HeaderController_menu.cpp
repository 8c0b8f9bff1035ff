// The context menu of a header.

#include "headers/HeaderController.h"

#include "app/MainWnd.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/StageMenu.h"
#include "keys/TonicKeyController.h"

#include <QGraphicsSceneContextMenuEvent>

using namespace selector_access;

HeaderController::HeaderController(QWidget* window) : QObject(window), menu(new StageMenu(window))
{
    addAction(tr("Copy Header"), &HeaderController::copyHdr);
    addAction(tr("Paste Header"), &HeaderController::pasteHdr);
    pasteAction = actions.last();
    menu->addSeparator();
    addAction(tr("Lock: Tonic"), &HeaderController::lockTonic);
    addAction(tr("Lock: Scale"), &HeaderController::lockScale);
    addAction(tr("Unlock: Tonic"), &HeaderController::unlockTonic);
    addAction(tr("Unlock: Scale"), &HeaderController::unlockScale);
    menu->addSeparator();
    addAction(tr("Lock: Both"), &HeaderController::lockBoth);
    addAction(tr("Unlock: Both"), &HeaderController::unlockBoth);
    menu->addSeparator();
    addAction(tr("Reset: C/Ionian"), &HeaderController::resetHdr);
    addAction(tr("Empty: Intervals"), &HeaderController::eraseHdr);
    menu->addSeparator();
    addAction(tr("Erase all"), &HeaderController::eraseAll);
}

void HeaderController::addAction(const QString& text, void (HeaderController::*slot)())
{
    QAction* action = menu->addAction(text);
    connect(action, &QAction::triggered, this, slot);
    actions.append(action);
}

void HeaderController::contextMenuEvent(HeaderItem* item, QGraphicsSceneContextMenuEvent* event)
{
    contextHeader = item;
    pasteAction->setEnabled(hasCopy);
    item->overlayContextMenu(true);
    menu->exec(event->screenPos());
    item->overlayContextMenu(false);
}

void HeaderController::copyHdr()
{
    if (!contextHeader)
        return;
    copyData = contextHeader->record;
    hasCopy = true;
}

void HeaderController::pasteHdr()
{
    if (!contextHeader)
        return;
    contextHeader->record = copyData;
    contextHeader->update();
    if (contextHeader != activeHeader)
        return;
    // The selectors write into the active record as they follow it.
    const header_data data = copyData;
    setSwitch(tonicSelector(), data.tonicOn, false);
    setSwitch(scaleSelector(), data.scaleOn, false);
    scaleSelector().setScaleModifier(data.scaleData, true);
    tonicSelector().setTonicModifier(data.tonicData, true, true);
    mainWnd->checkScaleMatches(true);
}

/// Visits the context header as the active one for as long as `change` takes.
void HeaderController::visitContextHeader(const std::function<void()>& change)
{
    HeaderItem* const active = activeHeader;
    setActiveHeader(contextHeader, true);
    contextHeader->setStatus(header_deactive);
    change();
    setActiveHeader(active, true);
}

void HeaderController::setTonicLock(bool on)
{
    if (!contextHeader)
        return;
    contextHeader->record.tonicOn = on;
    if (contextHeader == activeHeader) {
        setSwitch(tonicSelector(), on, true);
        contextHeader->record.tonicOn = on; // the selector marks a tonic as on even when it goes off
    } else {
        visitContextHeader([this] { contextHeader->setNameTonic(tonicSelector().tonicModifier()); });
    }
}

void HeaderController::setScaleLock(bool on)
{
    if (!contextHeader)
        return;
    contextHeader->record.scaleOn = on;
    if (contextHeader == activeHeader)
        setSwitch(scaleSelector(), on, true);
    else
        visitContextHeader([this] { contextHeader->updateScenic(); });
}

void HeaderController::lockTonic()
{
    setTonicLock(true);
}

void HeaderController::unlockTonic()
{
    setTonicLock(false);
}

void HeaderController::lockScale()
{
    setScaleLock(true);
}

void HeaderController::unlockScale()
{
    setScaleLock(false);
}

void HeaderController::lockBoth()
{
    lockTonic();
    lockScale();
}

void HeaderController::unlockBoth()
{
    unlockTonic();
    unlockScale();
}

void HeaderController::eraseHdr()
{
    if (!contextHeader)
        return;
    contextHeader->record.erase();
    contextHeader->update();
    if (contextHeader != activeHeader)
        return;
    scaleSelector().setAllOff();
    tonicSelector().setTonicModifier(QStringLiteral("C"), true, true);
    lockBoth();
}

void HeaderController::resetHdr()
{
    if (!contextHeader)
        return;
    contextHeader->record.reset();
    scale_data found;
    if (mainWnd->library.getScaleData(contextHeader->record.scaleData, found, DatabaseLibrary::AnyRole)) {
        contextHeader->record.nameScenic1 = found.abbr1;
        contextHeader->record.nameScenic2 = found.abbr2;
    }
    contextHeader->update();
    if (contextHeader != activeHeader)
        return;
    // Locking stores what the selectors show, so they must show the reset record first.
    scaleSelector().setIonicMajor();
    tonicSelector().setTonicModifier(QStringLiteral("C"), true, true);
    lockBoth();
    if (!mainWnd->powerItem->isSwitchOn())
        return;
    resetAnchors();
    mainWnd->powerItem->remap();
}
