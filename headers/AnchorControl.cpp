#include "headers/AnchorControl.h"

#include "headers/AnchorItem.h"
#include "headers/AnchorsGroup.h"
#include "headers/anchor_snap.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"

AnchorControl::AnchorControl(QGraphicsItemGroup& onAnchor, AnchorsGroup& all)
    : StageControl(onAnchor), anchor(onAnchor), group(all)
{
}

QString AnchorControl::name() const
{
    const QString number = key_roles::anchorName(&anchor);
    return tr("Anchor %1").arg(number == AnchorItem::nameOf(0) ? QStringLiteral("0") : number);
}

QString AnchorControl::description() const
{
    return tr("Slides the scale along the white keys");
}

bool AnchorControl::isReachable() const
{
    const qreal x = anchor.scenePos().x();
    return x >= anchor_snap::barLeft && x <= anchor_snap::barRight;
}

// The slider on the bar; the beam above it lies over a key.
QRectF AnchorControl::place() const
{
    QRectF whole = anchor.sceneBoundingRect();
    whole.setTop(anchor_snap::barTop);
    return whole;
}

int AnchorControl::value() const
{
    return static_cast<int>(group.x()) / pitch_mapping::whiteKeyWidth;
}

int AnchorControl::lowest() const
{
    return static_cast<int>(anchor_snap::barLeft - anchor.x()) / pitch_mapping::whiteKeyWidth;
}

int AnchorControl::highest() const
{
    return static_cast<int>(anchor_snap::barRight - anchor.x()) / pitch_mapping::whiteKeyWidth;
}

void AnchorControl::slide(int steps)
{
    group.slide(steps, anchor);
}
