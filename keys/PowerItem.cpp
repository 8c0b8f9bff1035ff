#include "keys/PowerItem.h"

#include "keys/pictures.h"

void PowerItem::showSwitch(bool on)
{
    setPixmap(pictures::load(on ? QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")
                                : QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
}

void PowerItem::remap()
{
    changeScaleByTonic();
    setKeysDeactive();
}

void PowerItem::setLastPos(const QPointF& pos)
{
    lastPos = pos;
    setPos(pos);
}

void PowerItem::restorePos()
{
    setPos(lastPos);
}
