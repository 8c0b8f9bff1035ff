// The anchors: numbered marks on the bars along both keyboards.

#include "app/MainWnd.h"

#include "headers/AnchorItem.h"
#include "headers/AnchorsGroup.h"
#include "headers/DiagramScene.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"

#include <QGraphicsPixmapItem>

namespace {

const QPointF inPicture(388, 110), outPicture(12, -15);
const QRect foot(0, 36, 22, 55); // laid over the number once more: it stands behind the anchor's glass
const QPointF footOffset(0, 35);

QPointF inDigitOffset(int n)
{
    return {n < 0 ? 7.0 : 9.0, 55};
}

QPointF outDigitOffset(int n)
{
    if (n == 0)
        return {9, 7};
    return {n > 0 ? 10.0 : 8.0, 7};
}

QGraphicsPixmapItem* addPicture(QGraphicsItemGroup& anchor, const QPixmap& picture, QPointF position)
{
    auto* item = new QGraphicsPixmapItem(picture);
    item->setShapeMode(QGraphicsPixmapItem::BoundingRectShape); // the same at any device pixel ratio
    item->setPos(position);
    anchor.addToGroup(item);
    return item;
}

void name(QGraphicsItemGroup* anchor, int n)
{
    key_roles::setAnchorName(anchor, AnchorItem::nameOf(n));
    if (n == 0)
        key_roles::markMainAnchor(anchor);
}

AnchorItem* makeInAnchor(int n, const QPixmap& digit, const QString& toolTip)
{
    auto* anchor = new AnchorItem;
    const QPixmap picture = pictures::load(QStringLiteral(":/Resources/INPUTAnchor2.png"));
    auto* body = addPicture(*anchor, picture, inPicture);
    auto* number = addPicture(*anchor, digit, inPicture + inDigitOffset(n));
    auto* grip = addPicture(*anchor, pictures::crop(picture, foot), inPicture + footOffset);
    for (QGraphicsItem* part : {number, grip}) // the rest stands over keys, which get the presses there
        part->setToolTip(toolTip);
    name(anchor, n);
    if (n == 0)
        key_roles::markMainPicture(body);
    return anchor;
}

QGraphicsItemGroup* makeOutAnchor(int n, const QPixmap& digit)
{
    auto* anchor = new QGraphicsItemGroup;
    addPicture(*anchor, pictures::load(QStringLiteral(":/Resources/OUTPUTAnchor2.png")), outPicture);
    addPicture(*anchor, digit, outPicture + outDigitOffset(n));
    anchor->setAcceptedMouseButtons(Qt::NoButton);
    const auto parts = anchor->childItems();
    for (QGraphicsItem* part : parts)
        part->setAcceptedMouseButtons(Qt::NoButton);
    name(anchor, n);
    anchor->setVisible(n == 0);
    return anchor;
}

} // namespace

// All start at one place; the first recomputation of the keys spreads them.
void MainWnd::createAnchorIN()
{
    const QString toolTip = tr("Drag to slide the scale along the white keys. 0 marks the tonic, the others "
                               "its octaves.");
    const auto make = [&](int n) { return makeInAnchor(n, getDigitalPix(digit_anchor_in, n), toolTip); };
    powerItem->mainAnchorIn = make(0);
    for (int n = 1; n <= AnchorItem::eachSide; ++n) {
        powerItem->anchorsInRight.append(make(n));
        powerItem->anchorsInLeft.append(make(-n));
    }
    auto* scene = static_cast<DiagramScene*>(ui.inKeyboardGraphicsView->scene());
    auto* group = new AnchorsGroup;
    group->powerItem = powerItem;
    group->scene = scene;
    for (QGraphicsItemGroup* anchor : qAsConst(powerItem->anchorsInLeft))
        group->addToGroup(anchor);
    group->addToGroup(powerItem->mainAnchorIn);
    for (QGraphicsItemGroup* anchor : qAsConst(powerItem->anchorsInRight))
        group->addToGroup(anchor);
    scene->addItem(group);
    group->setFlags(QGraphicsItem::ItemIsMovable);
    powerItem->anchorsGroup = group;
}

void MainWnd::createAnchorOUT()
{
    const auto make = [this](int n) {
        QGraphicsItemGroup* anchor = makeOutAnchor(n, getDigitalPix(digit_anchor_out, n));
        ui.outKeyboardGraphicsView->scene()->addItem(anchor);
        return anchor;
    };
    powerItem->mainAnchorOut = make(0);
    for (int n = 1; n <= AnchorItem::eachSide; ++n) {
        powerItem->anchorsOutRight.append(make(n));
        powerItem->anchorsOutLeft.append(make(-n));
    }
}
