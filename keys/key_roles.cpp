#include "keys/key_roles.h"

#include <QGraphicsItem>
#include <QVariant>

namespace key_roles {
namespace {

QVariant read(const QGraphicsItem* item, key_role role)
{
    return item ? item->data(role) : QVariant();
}

void write(QGraphicsItem* item, key_role role, const QVariant& value)
{
    if (item)
        item->setData(role, value);
}

// The words are made once: a remap writes some 300 of them.
const QString& onOff(bool on)
{
    static const QString words[] = {QStringLiteral("off"), QStringLiteral("on")};
    return words[on ? 1 : 0];
}

bool reads(const QGraphicsItem* item, key_role role, QLatin1String word)
{
    return read(item, role).toString() == word;
}

} // namespace

QString side(const QGraphicsItem* item)
{
    return read(item, ROLE_SIDE).toString();
}

void setSide(QGraphicsItem* item, const QString& side)
{
    write(item, ROLE_SIDE, side);
}

bool isIn(const QGraphicsItem* item)
{
    return reads(item, ROLE_SIDE, QLatin1String("in"));
}

bool isOut(const QGraphicsItem* item)
{
    return reads(item, ROLE_SIDE, QLatin1String("out"));
}

bool isHeader(const QGraphicsItem* item)
{
    return reads(item, ROLE_SIDE, QLatin1String("header"));
}

bool isPower(const QGraphicsItem* item)
{
    return reads(item, ROLE_SIDE, QLatin1String("power"));
}

int pitch(const QGraphicsItem* item)
{
    return read(item, ROLE_PITCH).toInt();
}

void setPitch(QGraphicsItem* item, int pitch)
{
    write(item, ROLE_PITCH, pitch);
}

void setPitchText(QGraphicsItem* item, const QString& pitch)
{
    write(item, ROLE_PITCH, pitch);
}

QString name(const QGraphicsItem* item)
{
    return read(item, ROLE_NAME).toString();
}

void setName(QGraphicsItem* item, const QString& name)
{
    write(item, ROLE_NAME, name);
}

bool isBlack(const QGraphicsItem* item)
{
    return reads(item, ROLE_NAME, QLatin1String("#"));
}

bool isStateOn(const QGraphicsItem* item)
{
    return reads(item, ROLE_STATE, QLatin1String("on"));
}

void setStateOn(QGraphicsItem* item, bool on)
{
    write(item, ROLE_STATE, onOff(on));
}

int soundedOut(const QGraphicsItem* item)
{
    return read(item, ROLE_SOUNDED_OUT).toInt();
}

void setSoundedOut(QGraphicsItem* item, int pitch)
{
    write(item, ROLE_SOUNDED_OUT, pitch);
}

bool isInScale(const QGraphicsItem* item)
{
    return reads(item, ROLE_IN_SCALE, QLatin1String("on"));
}

void setInScale(QGraphicsItem* item, bool on)
{
    write(item, ROLE_IN_SCALE, onOff(on));
}

bool isDeactive(const QGraphicsItem* item)
{
    return reads(item, ROLE_ACTIVITY, QLatin1String("deactive"));
}

void setActive(QGraphicsItem* item, bool active)
{
    static const QString words[] = {QStringLiteral("deactive"), QStringLiteral("active")};
    write(item, ROLE_ACTIVITY, words[active ? 1 : 0]);
}

int target(const QGraphicsItem* item)
{
    return read(item, ROLE_TARGET).toInt();
}

QString targetText(const QGraphicsItem* item)
{
    return read(item, ROLE_TARGET).toString();
}

void setTarget(QGraphicsItem* item, int pitch)
{
    write(item, ROLE_TARGET, pitch);
}

void setTargetText(QGraphicsItem* item, const QString& pitch)
{
    write(item, ROLE_TARGET, pitch);
}

bool isColoured(const QGraphicsItem* item)
{
    return reads(item, ROLE_TARGET, QLatin1String("on"));
}

void setColoured(QGraphicsItem* item, bool on)
{
    write(item, ROLE_TARGET, onOff(on));
}

bool isEdgeReleased(const QGraphicsItem* item)
{
    return reads(item, ROLE_OUT_EDGE, QLatin1String("released"));
}

void setEdgeReleased(QGraphicsItem* item, bool released)
{
    static const QString words[] = {QStringLiteral("pushed"), QStringLiteral("released")};
    write(item, ROLE_OUT_EDGE, words[released ? 1 : 0]);
}

int velocity(const QGraphicsItem* item)
{
    return read(item, ROLE_VELOCITY).toInt();
}

void setVelocity(QGraphicsItem* item, int velocity)
{
    write(item, ROLE_VELOCITY, velocity);
}

int headerSlot(const QGraphicsItem* item)
{
    return read(item, ROLE_HEADER_SLOT).toInt();
}

void setHeaderSlot(QGraphicsItem* item, int pitch)
{
    write(item, ROLE_HEADER_SLOT, pitch);
}

int blackOut(const QGraphicsItem* item)
{
    return read(item, ROLE_BLACK_OUT).toInt();
}

QString anchorName(const QGraphicsItem* anchor)
{
    return read(anchor, ROLE_TARGET).toString();
}

void setAnchorName(QGraphicsItem* anchor, const QString& name)
{
    write(anchor, ROLE_TARGET, name);
}

void markMainAnchor(QGraphicsItem* anchor)
{
    write(anchor, ROLE_SIDE, 59);
}

void markMainPicture(QGraphicsItem* picture)
{
    write(picture, ROLE_PITCH, QStringLiteral("0"));
}

bool bears(const QGraphicsItem* item, int role, const QString& word)
{
    return item && item->data(role).toString() == word;
}

} // namespace key_roles
