#pragma once

#include <QList>

/// Frees the ports that a list of slots holds. The lists keep raw pointers because their shape is fixed.
template <typename Port>
class PortKeeper
{
public:
    explicit PortKeeper(QList<Port*>& portSlots) : ports(portSlots) {}
    ~PortKeeper() { qDeleteAll(ports); }
    Q_DISABLE_COPY_MOVE(PortKeeper)

private:
    QList<Port*>& ports;
};
