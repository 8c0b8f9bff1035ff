#include "keys/PowerItem.h"

#include "keys/pictures.h"

namespace {

const QRectF button(3, 3, 13, 25);

QPixmap picture(const char* state)
{
    return pictures::load(QStringLiteral(":/Resources/Power/POWERBUTTON%1.png").arg(QLatin1String(state)));
}

QPixmap laidOver(const QPixmap& base, const char* state)
{
    return pictures::overlay(base, picture(state));
}

} // namespace

void PowerItem::showSwitch(bool on)
{
    setPixmap(picture(on ? "On" : "Off"));
}

void PowerItem::showHover()
{
    setPixmap(laidOver(picture(switchOn ? "On" : "Off"), "Hover"));
}

void PowerItem::showPressed()
{
    setPixmap(laidOver(laidOver(picture(switchOn ? "On" : "Off"), "Press"), "Hover"));
}

void PowerItem::showDrop()
{
    setPixmap(picture(switchOn ? "On_Drop" : "Off_Drop"));
}

void PowerItem::showAsTarget()
{
    setPixmap(picture("On_Switch"));
}

bool PowerItem::isOnButton(QPointF pos)
{
    return button.contains(pos);
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
