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

void importScales(const QJsonArray& array)
{
    LibraryInfo info;
    info.read(array);
    QMap<QString, scale_data> scales;
    info.getData(scales);
    mainWnd->library.setData(scales);
}

// Kept: the flags' places in the file stand behind the present ones in the list, so the flags stay.
void importHeaders(const QJsonArray& array)
{
    HeaderController& controller = *mainWnd->headerController;
    HeaderInfo info(true);
    QList<QPointF> positions;
    controller.getHeadersPosition(positions);
    info.setPositions(positions);
    info.read(array);
    QList<header_data> records;
    info.getPositions(positions);
    info.getData(records);
    controller.updatePostions(positions);
    controller.restoreUserNumbers(records);
    controller.reloadHeaders(records);
}

} // namespace

void DbReadWriter::importJsonDatabase(const QJsonObject& root)
{
    if (root.contains(scalesKey))
        importScales(root.value(scalesKey).toArray());
    restoreHeaders(root);
    if (root.contains(powerKey)) {
        const double x = selector_access::onStage(root.value(powerKey).toDouble());
        mainWnd->findPowerItemPosition({x, mainWnd->powerItem->y()});
        restoreHeaders(root); // the button has exchanged two presets on its way
    }
    if (root.contains(anchorsKey))
        selector_access::placeAnchors(root.value(anchorsKey).toDouble());
}

void DbReadWriter::restoreHeaders(const QJsonObject& root)
{
    if (root.contains(headersKey))
        importHeaders(root.value(headersKey).toArray());
}

void DbReadWriter::exportJsonDatabase(QJsonObject& root)
{
    LibraryInfo library;
    QMap<QString, scale_data> scales;
    mainWnd->library.getData(scales);
    library.setData(scales);
    QJsonArray scaleArray;
    library.write(scaleArray);

    HeaderInfo headers(true);
    QList<header_data> records;
    QList<QPointF> positions;
    mainWnd->headerController->getHeadersData(records);
    mainWnd->headerController->getHeadersPosition(positions);
    headers.setData(records);
    headers.setPositions(positions);
    QJsonArray headerArray;
    headers.write(headerArray);

    root.insert(powerKey, mainWnd->powerItem->x());
    root.insert(anchorsKey, selector_access::anchorsPlace());
    root.insert(scalesKey, scaleArray);
    root.insert(headersKey, headerArray);
}
