#include "keys/SwitchItem.h"

#include "keys/KeyControllerBase.h"
#include "keys/pictures.h"
#include "logging/categories.h"

#include <QPainterPath>

namespace {

QPixmap statusPicture(int type, const char* status)
{
    const bool scale = type == SwitchItem::scaleSwitch;
    return pictures::load(QStringLiteral(":/Resources/Switch/%1Switch%2.png")
                              .arg(QLatin1String(scale ? "Scale" : "Tonic"), QLatin1String(status)));
}

} // namespace

SwitchItem::SwitchItem(int switchType, KeyControllerBase* ctrl) : type(switchType), controller(ctrl)
{
    controller->switchItem = this;
    setPixmap(statusPicture(type, "Neutral"));
}

QPainterPath SwitchItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void SwitchItem::setStatus(switch_status status, bool toHeader)
{
    if (status == currentStatus)
        return;
    currentStatus = status;
    if (status == status_unset)
        qCDebug(lcKeys) << "SwitchItem status must be initialized before use";
    else if (status == status_off)
        controller->setSwitchOff(toHeader);
    else if (status == status_on)
        controller->setSwitchOn(toHeader);
    showStatus();
}

void SwitchItem::showStatus()
{
    const QPixmap neutral = statusPicture(type, "Neutral");
    if (currentStatus != status_off && currentStatus != status_on) {
        setPixmap(neutral);
        return;
    }
    setPixmap(pictures::overlay(neutral, statusPicture(type, currentStatus == status_on ? "On" : "Off")));
}

void SwitchItem::setStatusCtrl()
{
    setStatus(controller->switchOn ? status_on : status_off, false);
}

bool SwitchItem::switchStatus(bool toHeader)
{
    if (currentStatus == status_unset)
        qCDebug(lcKeys) << "SwitchItem status must be initialized before use";
    if (currentStatus != status_off && currentStatus != status_on)
        return false;
    setStatus(currentStatus == status_on ? status_off : status_on, toHeader);
    return true;
}

void SwitchItem::mousePressEvent(QGraphicsSceneMouseEvent*) {}
