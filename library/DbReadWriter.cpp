#include "library/DbReadWriter.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "library/HeaderInfo.h"
#include "library/LibraryInfo.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QString scalesKey = QStringLiteral("SorvaneDefaultScalesArray");
const QString headersKey = QStringLiteral("SorvaneDefaultHeadersArray");
const QString powerKey = QStringLiteral("SorvanePowerButtonPosition");
const QString anchorsKey = QStringLiteral("SorvaneAnchorPosition");

HeaderController& presets()
{
    return *mainWnd->headerController;
}

QList<header_data> presentRecords()
{
    QList<header_data> records;
    presets().getHeadersData(records);
    return records;
}

QList<QPointF> presentPositions()
{
    QList<QPointF> positions;
    presets().getHeadersPosition(positions);
    return positions;
}

void importScales(const QJsonArray& array)
{
    LibraryInfo info;
    info.read(array);
    QMap<QString, scale_data> scales;
    info.getData(scales);
    DatabaseLibrary& library = mainWnd->library;
    const QString category = library.currentCategory();
    library.setData(scales);
    // The user stands where the category of that name is now.
    if (library.currentCagetoryIndex() >= 0)
        library.setCurrentCategoryIndex(qMax(library.indexOfCategory(category, 0), 0));
    // The presets stay: what the new library does not hold keeps its names, what it holds takes them.
    presets().nameUnknownScales(presentRecords());
    presets().updateHeaderScenics({});
}

// Kept: the flags' places in the file stand behind the present ones in the list, so the flags stay.
void importHeaders(const QJsonArray& array)
{
    HeaderInfo info(true);
    info.setPositions(presentPositions());
    info.read(array);
    QList<QPointF> positions;
    QList<header_data> records;
    info.getPositions(positions);
    info.getData(records);
    records = records.mid(0, presets().headers.size());
    presets().updatePostions(positions);
    presets().nameUnknownScales(records);
    presets().reloadHeaders(records);
}

QJsonArray exportScales()
{
    QMap<QString, scale_data> scales;
    mainWnd->library.getData(scales);
    LibraryInfo info;
    info.setData(scales);
    QJsonArray array;
    info.write(array);
    return array;
}

QJsonArray exportHeaders()
{
    HeaderInfo info(true);
    info.setData(presentRecords());
    info.setPositions(presentPositions());
    QJsonArray array;
    info.write(array);
    return array;
}

// The button moves as if dropped by a hand, which exchanges two presets, activates one and switches on. A
// file has its own words on all that.
void movePowerButton(double x)
{
    const bool power = mainWnd->isPowerOn();
    const QList<header_data> records = presentRecords();
    HeaderItem* active = presets().activeHeader;
    mainWnd->findPowerItemPosition({x, mainWnd->powerItem->y()});
    presets().reloadHeaders(records);
    if (active)
        active->setStatus(header_active);
    mainWnd->setPower(power);
}

} // namespace

void DbReadWriter::importJsonDatabase(const QJsonObject& root)
{
    if (root.contains(scalesKey))
        importScales(root.value(scalesKey).toArray());
    restoreHeaders(root);
    if (root.contains(powerKey))
        movePowerButton(selector_access::onStage(root.value(powerKey).toDouble()));
    if (root.contains(anchorsKey))
        selector_access::placeAnchors(root.value(anchorsKey).toDouble());
}

int DbReadWriter::headerCount(const QJsonObject& root)
{
    return root.value(headersKey).toArray().size();
}

bool DbReadWriter::placesAnchors(const QJsonObject& root)
{
    return root.contains(anchorsKey);
}

void DbReadWriter::restoreHeaders(const QJsonObject& root)
{
    if (root.contains(headersKey))
        importHeaders(root.value(headersKey).toArray());
}

void DbReadWriter::exportJsonDatabase(QJsonObject& root)
{
    root.insert(powerKey, mainWnd->powerItem->x());
    root.insert(anchorsKey, selector_access::anchorsPlace());
    root.insert(scalesKey, exportScales());
    root.insert(headersKey, exportHeaders());
}
