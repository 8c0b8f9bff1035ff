// The context menu of a header, and the two actions on all headers.

#include "headers/HeaderController.h"

#include "app/MainWnd.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "library/default_tables.h"

#include <QFile>
#include <QGraphicsSceneContextMenuEvent>
#include <QMenu>

using namespace selector_access;

namespace {

const QPointF powerButtonReset(407, 28); // over C#4

QString menuStyle()
{
    QFile file(QStringLiteral(":/Resources/Headers/menu.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

HeaderController::HeaderController(QWidget* window) : QObject(window), menu(new QMenu(window))
{
    menu->setStyleSheet(menuStyle());
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
    setSwitch(tonic(), data.tonicOn, false);
    setSwitch(scale(), data.scaleOn, false);
    scale().setScaleModifier(data.scaleData, true);
    tonic().setTonicModifier(data.tonicData, true, true);
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
        setSwitch(tonic(), on, true);
        contextHeader->record.tonicOn = on; // the selector marks a tonic as on even when it goes off
    } else {
        visitContextHeader([this] { contextHeader->setNameTonic(tonic().tonicModifier()); });
    }
}

void HeaderController::setScaleLock(bool on)
{
    if (!contextHeader)
        return;
    contextHeader->record.scaleOn = on;
    if (contextHeader == activeHeader)
        setSwitch(scale(), on, true);
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
    scale().setAllOff();
    tonic().setTonicModifier(QStringLiteral("C"), true, true);
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
    scale().setIonicMajor();
    tonic().setTonicModifier(QStringLiteral("C"), true, true);
    lockBoth();
    if (!mainWnd->powerItem->isSwitchOn())
        return;
    resetAnchors();
    remap();
}

void HeaderController::eraseAll()
{
    if (!mainWnd->confirmAlert(tr("<h4>Are you sure you want to permanently erase the settings in all "
                                  "Headers?</h4><h6>You can't undo this operation.</h6>"),
                               tr("Erase All")))
        return;
    scale().setSwitchOff(true);
    tonic().setSwitchOff(true);
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
    setSwitch(tonic(), data.tonicOn, false);
    tonic().setTonicModifier(data.tonicData, true, false);
    setSwitch(scale(), data.scaleOn, false);
    scale().setScaleModifier(data.scaleData, false);
    // The pitch position would be restored here and taken back by the reset of the anchors: only that stays.
    mainWnd->checkScaleMatches(true);
}
