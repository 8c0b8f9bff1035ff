#pragma once

#include "keys/ResizableItem.h"

/// The power button. It sits over the black key whose pitch its item data holds, 49 at start.
class PowerItem : public ResizableItem
{
public:
    [[nodiscard]] bool isSwitchOn() const { return switchOn; }
    /// Stores the state; nothing else follows. Kept: the name is one letter short.
    void setSwithOn(bool on) { switchOn = on; }
    /// The button's picture of a state, its own or one to come.
    void showSwitch(bool on);
    /// The other pictures: lit under the pointer, pressed by it, in the hand, lit as a drop target.
    void showHover();
    void showPressed();
    void showDrop();
    void showAsTarget();
    /// True on the square at the top of the picture, in item coordinates. Below it is the sleeve.
    [[nodiscard]] static bool isOnButton(QPointF pos);

    /// Everything that follows from a change of tonic, scale, power or pitch position.
    void remap();

    /// Moves the button, in scene coordinates, and remembers where.
    void setLastPos(const QPointF& pos);
    /// Back to the remembered place.
    void restorePos();

private:
    QPointF lastPos;
    bool switchOn = false;
};
