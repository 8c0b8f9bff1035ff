#pragma once

#include <QGraphicsPixmapItem>

class KeyControllerBase;

/// The on/off switch of a selector row. It shows the state of its controller and drives it when clicked.
class SwitchItem : public QGraphicsPixmapItem
{
public:
    enum switch_status { status_unset = -1, status_neutral = 0, status_off = 1, status_on = 2 };

    static constexpr int scaleSwitch = 3; ///< the type of the scale row; any other is the tonic row

    /// `ctrl` is required and learns of its switch here.
    SwitchItem(int switchType, KeyControllerBase* ctrl);

    QPainterPath shape() const override;

    /// The neutral status is the picture alone; off and on reach the controller. No effect if unchanged.
    void setStatus(switch_status status, bool toHeader);
    /// Takes the status from the controller.
    void setStatusCtrl();
    /// Flips off and on. False, with no effect, for any other status.
    bool switchStatus(bool toHeader);
    [[nodiscard]] switch_status status() const { return currentStatus; }
    [[nodiscard]] bool isOfScale() const { return type == scaleSwitch; }

protected:
    /// Does nothing: the scene tells a click from a drag.
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void showStatus();

    const int type;
    switch_status currentStatus = status_unset;
    KeyControllerBase* const controller;
};
